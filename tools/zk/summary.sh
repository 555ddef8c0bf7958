#!/usr/bin/env bash
# Sums the results of the given build trees: GoogleTest programs count their
# tests (results/*.xml); every other ctest entry counts as one.
set -u
passed=0; failed=0
for dir in "$@"; do
  junit="$dir/ctest-junit.xml"
  [ -f "$junit" ] || continue
  # ctest entries: name and whether they failed.
  while IFS='|' read -r name state; do
    xml="$dir/results/$name.xml"
    if [ -f "$xml" ]; then
      read -r t f e d < <(grep -m1 -o '<testsuites [^>]*' "$xml" |
        awk '{ for (i=1;i<=NF;i++){ split($i,kv,"="); gsub(/"/,"",kv[2]); v[kv[1]]=kv[2] } }
             END { print v["tests"]+0, v["failures"]+0, v["errors"]+0, v["disabled"]+0 }')
      passed=$((passed + t - f - e - d)); failed=$((failed + f + e))
      # A program that crashed after writing partial results still failed.
      if [ "$state" = fail ] && [ $((f + e)) = 0 ]; then failed=$((failed + 1)); fi
    elif [ "$state" = fail ]; then failed=$((failed + 1)); else passed=$((passed + 1)); fi
  done < <(awk 'match($0, /<testcase name="[^"]*"/) { n = substr($0, RSTART+16, RLENGTH-17);
                 s = ($0 ~ /status="fail"/) ? "fail" : "pass";
                 if ($0 !~ /\/>/) { getline nxt; if (nxt ~ /<failure/) s = "fail" }
                 print n "|" s }' "$junit")
done
echo "$passed passed, $failed failed"
[ "$failed" = 0 ]

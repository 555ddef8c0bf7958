#!/usr/bin/env bash
# The figures: builds the library and the benchmarks, runs every benchmark at
# its full sizes under Wine + Xvfb, one after the other, and prints one table
# of figure, bound and whether it is within. Exits non-zero when a figure
# misses its bound or a benchmark gives a wrong result.
#   ./zk bench [name...]   e.g. ./zk bench files outline_file
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
"$top/tools/zk/deps.sh" || exit 1
build="$top/build/win64"
mkdir -p "$top/build"
echo "== build"
"$top/tools/zk/build.sh" win64 ZKLIB zkhost >"$top/build/win64.bench-build.log" 2>&1 || {
  tail -50 "$top/build/win64.bench-build.log"; exit 1; }
names=("$@")
if [ ${#names[@]} = 0 ]; then
  for source in "$top"/bench/*_bench.cpp; do
    stem=$(basename "$source" .cpp)
    names+=("${stem%_bench}")
  done
fi
targets=()
for name in "${names[@]}"; do targets+=("bench_$name"); done
"$top/tools/zk/build.sh" win64 "${targets[@]}" >>"$top/build/win64.bench-build.log" 2>&1 || {
  tail -50 "$top/build/win64.bench-build.log"; exit 1; }

export ZK_WINEPREFIX="$build/wineprefix"
"$top/cmake/wine-prefix.sh" "$ZK_WINEPREFIX" || exit 1
# The directory listing reads 20,000 files made here, outside Wine, where
# making them is quick (under Wine each new name is a walk of the folder).
dosdir="$build/dosbench"
mkdir -p "$dosdir" && (cd "$dosdir" && seq -f 'file%05g.dat' 0 19999 | xargs touch)
export ZK_DOSBENCH_DIR="Z:$dosdir"

logs="$build/bench-figures"
rm -rf "$logs" && mkdir -p "$logs"
echo "== benchmarks (full sizes; logs in $logs)"
xvfb-run -a -s "-screen 0 1024x768x24" bash -c '
  server=$(command -v wineserver || echo /usr/lib/wine/wineserver64)
  WINEPREFIX="$ZK_WINEPREFIX" "$server" -p >/dev/null 2>&1 </dev/null
  status=0
  cd "$1/bin"; shift; logs=$1; shift
  for target in "$@"; do
    start=$(date +%s)
    '"$top"'/cmake/wine-run.sh "./$target.exe" --full >"$logs/$target.log" 2>&1
    rc=$?
    echo "$rc" >"$logs/$target.rc"
    printf "  %-22s %s in %ss\n" "$target" "$([ $rc = 0 ] && echo done || echo WRONG RESULTS)" $(( $(date +%s) - start ))
  done
  WINEPREFIX="$ZK_WINEPREFIX" "$server" -k >/dev/null 2>&1
  exit 0' _ "$build" "$logs" "${targets[@]}"

status=0
echo
printf "%-20s %-54s %10s %12s  %s\n" program figure value bound ""
for target in "${targets[@]}"; do
  log="$logs/$target.log"
  rc=$(cat "$logs/$target.rc" 2>/dev/null || echo 1)
  if [ "$rc" != 0 ]; then
    printf "%-20s %-54s %10s %12s  %s\n" "$target" "(wrong results: see $log)" "" "" "FAILED"
    status=1
  fi
  found=0
  while IFS='|' read -r _ program figure value op bound; do
    found=1
    if [ "$op" = "-" ]; then
      printf "%-20s %-54s %10.2f %12s  %s\n" "$program" "$figure" "$value" "" "(told)"
      continue
    fi
    if awk -v v="$value" -v b="$bound" -v op="$op" 'BEGIN { exit !((op == "<=") ? v <= b : v >= b) }'; then
      verdict=within
    else
      verdict=MISSED; status=1
    fi
    printf "%-20s %-54s %10.2f %12s  %s\n" "$program" "$figure" "$value" "$op $bound" "$verdict"
  done < <(tr -d '\r' <"$log" | grep '^@figure|')
  if [ $found = 0 ] && [ "$rc" = 0 ]; then
    printf "%-20s %-54s %10s %12s  %s\n" "$target" "(no figure printed)" "" "" "FAILED"
    status=1
  fi
done
echo
[ $status = 0 ] && echo "every figure within its bound" || echo "a figure missed its bound or a result was wrong"
exit $status

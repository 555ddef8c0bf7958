#!/usr/bin/env bash
# Formats the project's C and C++ sources with .clang-format, or with
# --check only reports the files whose format differs (exit 1 if any).
set -u
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
tool=$(command -v clang-format-14 || command -v clang-format) || { echo "clang-format not found" >&2; exit 2; }
mapfile -t files < <(git ls-files '*.c' '*.cpp' '*.h' | grep -v '^res/')
if [ "${1:-}" = "--check" ]; then
  "$tool" --style=file --dry-run --Werror "${files[@]}" 2>&1 | grep -E '^[^ ].*: (error|warning):' | cut -d: -f1 | sort -u
  "$tool" --style=file --dry-run --Werror "${files[@]}" >/dev/null 2>&1
  exit $?
fi
"$tool" --style=file -i "${files[@]}"

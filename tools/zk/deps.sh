#!/usr/bin/env bash
# Installs the build and test tools when one of them is missing (Debian 12, root).
set -u
need=0
for tool in python3 cmake ninja g++ x86_64-w64-mingw32-g++-posix i686-w64-mingw32-g++-posix xvfb-run xauth clang-14 clang-format-14 flock; do
  command -v "$tool" >/dev/null 2>&1 || need=1
done
[ -x /usr/lib/wine/wine64 ] || command -v wine64 >/dev/null 2>&1 || need=1
[ -f /usr/share/wine/fonts/tahoma.ttf ] || need=1
[ -d /usr/src/googletest/googletest ] || need=1
[ -f /usr/include/gtest/gtest.h ] || need=1
[ -x /usr/bin/convert ] || need=1
[ -f /usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.fuzzer-x86_64.a ] || ls /usr/lib/llvm-14/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1 || need=1
locale -a 2>/dev/null | grep -qi '^ja_JP.utf8$' || need=1
if [ "$need" = 1 ]; then
  echo "== installing build and test tools"
  export DEBIAN_FRONTEND=noninteractive
  # An index of a hand-added architecture may fail to update: that is harmless here.
  apt-get update -qq || true
  apt-get install -y -qq --no-install-recommends cmake ninja-build g++ googletest libgtest-dev \
    g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 fonts-wine xvfb xauth \
    imagemagick clang-14 clang-format-14 libclang-rt-14-dev locales util-linux python3 >/dev/null || exit 1
  # The double-byte string tests run in a Japanese locale (code page 932 under Wine).
  if ! locale -a 2>/dev/null | grep -qi '^ja_JP.utf8$'; then
    localedef -i ja_JP -f UTF-8 ja_JP.UTF-8 || echo "warning: could not make the ja_JP.UTF-8 locale"
  fi
fi
exit 0

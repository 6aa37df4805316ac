#!/bin/sh
# Installs the library below a folder of its own, builds two programs against it the ways a page
# author can, and runs them, under an emulator if one is named. The plain C program has libcrypt
# along, the page that hashes no password does without:
# link_installed.sh BUILD_FOLDER C_COMPILER [EMULATOR ...]
set -eu
build=$1 compiler=$2 sources=$(cd "$(dirname "$0")" && pwd)
shift 2
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
DESTDIR=$root cmake --install "$build" --prefix /opt/tavik >/dev/null
cd "$root"

PKG_CONFIG_PATH=$(dirname "$(find "$root" -name tavik.pc)")
LD_LIBRARY_PATH=$(dirname "$PKG_CONFIG_PATH")
export PKG_CONFIG_PATH
mkdir pkg-config
compile() {
  module=$1 program=$2
  shift 2
  # shellcheck disable=SC2046,SC2086  # the flags are words
  "$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$@" -o "pkg-config/$program" \
    $(pkg-config --cflags --libs "$module") ${LDFLAGS:-}
}
compile tavik plain "$sources"/plain/*.c
compile tavik-nocrypt echo "$sources/../pages/echo.c"

# As a plain user's project: what the installed files say is all that it knows.
CC=$compiler cmake -G Ninja -S "$sources/installed" -B find_package \
  -Dtavik_DIR="$LD_LIBRARY_PATH/cmake/tavik" >/dev/null
cmake --build find_package >/dev/null

export LD_LIBRARY_PATH
for folder in pkg-config find_package; do
  "$@" $folder/plain "$sources/plain/page.html"
  REQUEST_METHOD=GET "$@" $folder/echo
  if grep -q 'libcrypt[.]so' $folder/echo; then echo "$folder/echo needs libcrypt"; exit 1; fi
done

#!/bin/sh
# Installs the library below a folder of its own, links the plain C program against it the way a
# page author does, and runs it, under an emulator if one is named:
# link_installed.sh BUILD_FOLDER SOURCE C_COMPILER [EMULATOR ...]
set -eu
build=$1 source=$2 compiler=$3
shift 3
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
DESTDIR=$root cmake --install "$build" --prefix /opt/tavik >/dev/null
PKG_CONFIG_PATH=$(dirname "$(find "$root" -name tavik.pc)")
export PKG_CONFIG_PATH
# shellcheck disable=SC2046,SC2086  # the flags are words
"$compiler" -std=c99 -pedantic -Wall -Wextra -Werror "$source" -o "$root/program" \
  $(pkg-config --cflags --libs tavik) ${LDFLAGS:-}
cd "$root"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir tavik) "$@" ./program

# shellcheck shell=bash
# Sourced by scripts/target: uClibc for 32-bit ARM and the compilers that build for it.

cross=arm-linux-gnueabihf-
cross_headers=/usr/arm-linux-gnueabihf/include
uclibc_archive=/usr/src/uClibc-ng-1.0.35.tar.xz

need_cross_compilers() {
  need "${cross}g++=g++-arm-linux-gnueabihf" qemu-arm=qemu-user
}

# The kernel's headers alone: their folder holds those of glibc too.
copy_kernel_headers() {
  mkdir -p "$1"
  (cd "$cross_headers" && cp -r asm asm-generic drm linux misc mtd rdma scsi sound video xen "$1")
}

# With ABI version 0 the loader's link for older programs would point to itself.
drop_loader_link() {
  sed -i '/# link for backward compatibility/,+1d' "$1"
}

# ABI_VERSION=0 gives the classic names libc.so.0 and ld-uClibc.so.0.
uclibc_make() {
  nice make -C "$build" ARCH=arm "CROSS_COMPILE=$cross" ABI_VERSION=0 "$@"
}

# Chained, since its caller looks at the result, and set -e then ends nothing here.
build_uclibc() {
  local root=$1 build=$1/build
  mkdir -p "$build" &&
    tar xf "$uclibc_archive" -C "$build" --strip-components=1 &&
    drop_loader_link "$build/ldso/ldso/Makefile.in" &&
    copy_kernel_headers "$root/usr/include" &&
    cat scripts/lib/uclibc/config - <<<"KERNEL_HEADERS=\"$root/usr/include\"" >"$build/.config" &&
    { yes '' || true; } | uclibc_make oldconfig &&
    uclibc_make -j2 &&
    uclibc_make "PREFIX=$root" install &&
    rm -rf "$build"
}

# A compiler that finds uClibc's headers, start files and libraries from its own place, with more
# words for the languages that need them. It is the C driver for C++ too, which brings no C++
# runtime along.
write_compiler() {
  local own=$1
  shift
  cat >"$own" <<END
#!/bin/sh
root=\$(dirname "\$(dirname "\$(readlink -f "\$0")")")
exec ${cross}gcc -muclibc --sysroot="\$root" -B "\$root/usr/lib/" -static-libgcc -nostdinc \\
  $* -isystem $("${cross}gcc" -print-file-name=include) -isystem "\$root/usr/include" "\$@"
END
  chmod +x "$own"
}

write_compilers() {
  local root=$1 cxx
  cxx=$cross_headers/c++/$("${cross}gcc" -dumpversion)
  mkdir -p "$root/bin"
  cp scripts/lib/uclibc/libstdcxx.h "$root/usr/include"
  write_compiler "$root/bin/arm-uclibc-gcc"
  # shellcheck disable=SC2016  # the compiler's own $root
  write_compiler "$root/bin/arm-uclibc-g++" '-include "$root/usr/include/libstdcxx.h"' \
    -isystem "$cxx" -isystem "$cxx/${cross%-}" -isystem "$cxx/backward"
}

make_sysroot() {
  local root=$1
  echo "Building uClibc for ARM, once on this machine: 2 to 5 minutes"
  if ! build_uclibc "$root" >"$root/build.log" 2>&1; then
    tail -n 20 "$root/build.log" >&2
    return 1
  fi
  write_compilers "$root"
}

need_sysroot() {
  need_cross_compilers
  need "$uclibc_archive=uclibc-source" make=make bison=bison flex=flex xz=xz-utils
  cached uclibc make_sysroot scripts/lib/uclibc/*
}

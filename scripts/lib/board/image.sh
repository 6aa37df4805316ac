# Sourced by scripts/target: what the emulated board boots.

board=scripts/lib/board

# Kernel, modules, device tree and busybox.
make_board_parts() {
  local folder=$1 kernel modules
  echo "Fetching a kernel and busybox for the board, once on this machine: 50 MB"
  armhf_update
  kernel=$(armhf_apt apt-cache depends linux-image-armmp | sed -n 's/^ *Depends: //p')
  mapfile -t modules < <(sed 's/$/.ko/' "$board/modules")
  unpack_armhf "$folder" "$kernel" 'vmlinuz-*' imx6q-sabrelite.dtb "${modules[@]}"
  mv "$folder"/vmlinuz-* "$folder/vmlinuz"
  unpack_armhf "$folder" busybox-static bin/busybox
}

need_board_parts() {
  need qemu-system-arm=qemu-system-arm cpio=cpio fdtput=device-tree-compiler
  cached board make_board_parts "$board/modules"
}

# The package's device tree with our flash partitions. A new node comes first of its siblings, so
# the last partition is added first.
make_device_tree() {
  local tree=$1 offset size label node
  local parts=/soc/bus@2000000/spba-bus@2000000/spi@2008000/flash@0/partitions
  cp "$cache/board/imx6q-sabrelite.dtb" "$tree"
  fdtput -c "$tree" "$parts"
  fdtput -t s "$tree" "$parts" compatible fixed-partitions
  fdtput -t u "$tree" "$parts" '#address-cells' 1
  fdtput -t u "$tree" "$parts" '#size-cells' 1
  tac "$board/partitions" | while read -r offset size label; do
    node=$parts/partition@$(printf %x "$offset")
    fdtput -c "$tree" "$node"
    fdtput -t s "$tree" "$node" label "$label"
    fdtput -t u "$tree" "$node" reg $((offset)) "$size"
  done
}

# A boot environment of so many bytes: the CRC-32 of what follows, the entries, and NULs. gzip ends
# its output with that checksum, low byte first, and four more bytes.
environment() {
  local size=$1 body
  shift
  body=$(mktemp)
  printf '%s\0' "$@" >"$body"
  truncate -s $((size - 4)) "$body"
  gzip -c "$body" | tail -c 8 | head -c 4
  cat "$body"
  rm "$body"
}

# The flash chip: every partition holds a good environment, but for the damaged one's first byte.
make_flash() {
  local image=$1 offset size label
  truncate -s 2M "$image"
  while read -r offset size label; do
    environment "$size" "partition=$label" 'serial#=TK-0042' bootdelay=3 bootcmd= |
      dd of="$image" bs=4k seek=$((offset / 4096)) conv=notrunc status=none
    [ "$label" != damaged ] ||
      printf '\0\0\0\0' | dd of="$image" bs=1 seek=$((offset)) conv=notrunc status=none
  done <"$board/partitions"
}

# The first file system: busybox, libc, the library and the demo device.
make_root() {
  local root=$1 build=build/arm-uclibc module
  mkdir -p "$root"/{bin,dev,proc,sys,tmp,modules,lib}
  cp "$board/init" "$root/init"
  cp "$cache/board/busybox" "$root/bin"
  ln -s busybox "$root/bin/sh"
  while read -r module; do cp "$cache/board/$module.ko" "$root/modules"; done <"$board/modules"
  cp "$board/modules" "$root/modules/list"
  cp -L "$cache"/uclibc/lib/{ld-uClibc,libc}.so.0 "$root/lib"
  cp -L "$build/lib/libtavik.so.1" "$root/lib"
  arm-linux-gnueabihf-strip "$root"/lib/*
  mkdir "$root/demo"
  cp -r "$build"/demo/{setup,assets,www} "$root/demo"
}

# make_board FOLDER [PROGRAM ...]: the board with the demo device, and with the programs in /tests.
make_board() {
  local folder=$1
  shift
  rm -rf "$folder"
  mkdir -p "$folder/root/tests"
  make_root "$folder/root"
  [ $# -eq 0 ] || cp "$@" "$folder/root/tests"
  (cd "$folder/root" && find . | cpio -o -H newc -R 0:0 --quiet | gzip -1) >"$folder/initramfs.gz"
  ln -s "$cache/board/vmlinuz" "$folder/vmlinuz"
  make_device_tree "$folder/board.dtb"
  make_flash "$folder/flash.img"
}

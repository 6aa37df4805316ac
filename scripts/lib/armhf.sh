# Sourced by scripts/target: parts of Debian packages for 32-bit ARM, unpacked into the cache and
# never installed. apt gets a state of its own, so that the machine's knows nothing of armhf.

# The main archive of this release, as apt's own sources name it.
debian_main() {
  local release
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Identifier: Packages' 'Component: main' | grep -m 1 " $release main\$"
}

armhf_apt() {
  local tool=$1 state=$cache/armhf-apt
  shift
  "$tool" -q -o APT::Architecture=armhf -o APT::Architectures=armhf \
    -o "Dir::State::lists=$state/lists" -o "Dir::State::status=$state/status" \
    -o "Dir::Cache=$state" -o "Dir::Etc::sourcelist=$state/sources.list" \
    -o Dir::Etc::sourceparts=/dev/null -o APT::Sandbox::User=root "$@"
}

armhf_update() {
  local state=$cache/armhf-apt
  mkdir -p "$state/lists/partial" "$state/archives/partial"
  : >"$state/status"
  [ -n "$(debian_main)" ] || as_root apt-get update -q >/dev/null
  debian_main >"$state/sources.list"
  armhf_apt apt-get update >/dev/null
}

# unpack_armhf FOLDER PACKAGE PATTERN ...: fetches the package, checked against the archive's
# signature, and unpacks the files that match a pattern, all into the one folder.
unpack_armhf() {
  local folder=$1 package=$2
  shift 2
  (cd "$folder" && armhf_apt apt-get download "$package" >/dev/null)
  dpkg-deb --fsys-tarfile "$folder"/*.deb |
    tar x -C "$folder" --transform='s,.*/,,' --wildcards --no-anchored "$@"
  rm "$folder"/*.deb
}

# The cross compiler comes without libcrypt.
make_libcrypt() {
  armhf_update
  unpack_armhf "$1" libcrypt1 'libcrypt.so.*'
  ln -s libcrypt.so.1 "$1/libcrypt.so"
}

need_libcrypt() {
  cached libcrypt make_libcrypt
}

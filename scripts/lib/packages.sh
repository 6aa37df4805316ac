# Sourced by the other scripts: installs what is missing on a Debian machine.

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# need COMMAND=PACKAGE or need /FILE=PACKAGE ...: installs the packages whose command or file is
# not there yet, and says which.
need() {
  local pair missing=()
  for pair in "$@"; do
    case "$pair" in
      /*) [ -e "${pair%%=*}" ] || missing+=("${pair#*=}") ;;
      *) command -v "${pair%%=*}" >/dev/null || missing+=("${pair#*=}") ;;
    esac
  done
  [ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
}

install_packages() {
  echo "Installing with apt: $*"
  as_root apt-get update -q >/dev/null
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "$@" >/dev/null
}

need_build_tools() {
  need g++=g++ cmake=cmake ninja=ninja-build pkg-config=pkg-config python3=python3 \
    openssl=openssl
}

need_test_tools() {
  need /usr/include/gtest/gtest.h=libgtest-dev /usr/include/gmock/gmock.h=libgmock-dev \
    xmllint=libxml2-utils busybox=busybox node=nodejs npm=npm chromium=chromium \
    curl=curl mandoc=mandoc groff=groff-base
}

need_check_tools() {
  need clang-format=clang-format clang-tidy=clang-tidy valgrind=valgrind shellcheck=shellcheck \
    cppcheck=cppcheck git=git
}

# The npm packages of the end-to-end tests, unless they are the locked ones already.
install_e2e_packages() {
  cmp -s tests/e2e/package-lock.json tests/e2e/node_modules/.installed-lock && return
  echo "Installing the end-to-end tests' npm packages"
  npm ci --prefix tests/e2e --no-audit --no-fund --loglevel=error >/dev/null
  cp tests/e2e/package-lock.json tests/e2e/node_modules/.installed-lock
}

# The web server lighttpd, unpacked but not installed: its package would start a server that listens
# on every address. The result is in build/tools/lighttpd.
unpack_lighttpd() {
  local folder=build/tools/lighttpd
  if [ ! -x "$folder/usr/sbin/lighttpd" ]; then
    echo "Fetching lighttpd into $folder"
    mkdir -p "$folder"
    apt-cache show lighttpd >/dev/null 2>&1 || as_root apt-get update -q >/dev/null
    (cd "$folder" && apt-get download -q lighttpd >/dev/null 2>&1 && dpkg -x lighttpd_*.deb .)
  fi
  if ldd "$folder/usr/sbin/lighttpd" | grep -q 'not found'; then
    install_packages libnettle8 libpcre2-8-0 libxxhash0
  fi
}

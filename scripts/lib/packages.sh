# Sourced by the other scripts: installs what is missing on a Debian machine.

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
  [ "${#missing[@]}" -eq 0 ] && return
  echo "Installing with apt: ${missing[*]}"
  local sudo=()
  [ "$(id -u)" -eq 0 ] || sudo=(sudo)
  "${sudo[@]}" apt-get update -q >/dev/null
  "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -q --no-install-recommends "${missing[@]}" >/dev/null
}

need_build_tools() {
  need g++=g++ cmake=cmake ninja=ninja-build pkg-config=pkg-config
}

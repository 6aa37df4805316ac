# Sourced by the other scripts: the folder for what is made or fetched once on a machine.

cache=${XDG_CACHE_HOME:-$HOME/.cache}/tavik

# cached FOLDER MAKER [INPUT ...]: unless $cache/FOLDER is there, made from the same input files,
# has MAKER fill a new folder, whose name it gets, and puts that in its place when it is whole.
cached() {
  local folder=$cache/$1 maker=$2 stamp
  shift 2
  stamp=$(cat "$@" </dev/null | sha256sum)
  [ "$(cat "$folder/.stamp" 2>/dev/null)" = "$stamp" ] && return
  mkdir -p "$cache"
  exec {cache_lock}>"$cache/.lock"
  flock "$cache_lock"
  if [ "$(cat "$folder/.stamp" 2>/dev/null)" != "$stamp" ]; then
    rm -rf "$folder.new"
    mkdir -p "$folder.new"
    "$maker" "$folder.new"
    echo "$stamp" >"$folder.new/.stamp"
    rm -rf "$folder"
    mv "$folder.new" "$folder"
  fi
  exec {cache_lock}>&-
}

# Sourced by the scripts that serve on a loopback port.

# need_free_port PORT COMMAND: ends the script, whose command line is told, unless the port is free.
need_free_port() {
  case "$1" in
    '' | *[!0-9]*) echo "usage: $2 [PORT]" >&2; exit 2 ;;
  esac
  if (exec 3<>"/dev/tcp/127.0.0.1/$1") 2>/dev/null; then
    echo "Port $1 is taken; name another: $2 PORT" >&2
    exit 1
  fi
}

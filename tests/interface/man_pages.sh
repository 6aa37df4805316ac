#!/bin/sh
# Every exported function has a manual page, and both formatters have nothing to say about any:
# man_pages.sh MAN_FOLDER EXPORT_MAP
set -eu
cd "$1/man3"
for name in tavik $(sed -n 's/^ *\(\w*\);$/\1/p' "$2"); do
  grep -q "^\.Nm $name\$" "$name.3" || { echo "$name: no page"; exit 1; }
done
mandoc -Tlint -Wwarning ./*.3
warnings=$(groff -ww -mandoc -rLL=100n -Tutf8 -z ./*.3 2>&1)
[ -z "$warnings" ] || { echo "$warnings"; exit 1; }

#!/bin/sh
# Prints the demo's Content-Security-Policy: policy.sh STYLE SCRIPT...
# Style and scripts are inlined, so the policy admits them by hash. The browser hashes what stands
# between the tags, which begins with the line end behind the opening tag.
set -eu

hash_text() { printf " 'sha256-%s'" "$(openssl dgst -sha256 -binary | openssl base64 -A)"; }
hash_file() { { echo; cat "$1"; } | hash_text; }

style=$1
shift
printf "default-src 'none'; img-src 'self'; connect-src 'self'; form-action 'self'; base-uri 'none'; "
printf "frame-ancestors 'none'; style-src"
hash_file "$style"
# The style attributes that print_flags() writes.
printf " 'unsafe-hashes'"
printf 'display: none;' | hash_text
printf 'visibility: hidden;' | hash_text
printf '; script-src'
for script; do hash_file "$script"; done
# The script that print_timeline() writes.
printf 'document.write(fl_time());' | hash_text
echo

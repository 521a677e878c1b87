#!/bin/sh
# sendmail_path for the tests: keeps each mail PHP sends as one file in "$1".
d="$1"
t="$d/.incoming-$$"
cat > "$t" && mv "$t" "$d/mail-$(date +%s%N)-$$.txt"

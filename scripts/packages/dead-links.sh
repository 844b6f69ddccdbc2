#!/usr/bin/env bash
# Fails for links in Markdown files below a directory that lead to no file there: dead-links.sh DIRECTORY
set -euo pipefail

cd "$1"
dead=0
# Addresses and places in the same file lead to no other one.
while IFS=: read -r page link; do
  target=${link#*](}
  target=${target%%[#)]*}
  case $target in '' | http://* | https://* | mailto:*) continue ;; esac
  [ -e "$(dirname "$page")/$target" ] && continue
  echo "$page: $target is not there" >&2
  dead=1
done < <(grep -roE --include='*.md' '\]\([^)]*\)' .)
exit $dead

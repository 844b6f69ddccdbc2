# Sourced by the tests of packages: called with the tree and its build directory.
set -euo pipefail
tree=$1
build=$2
here=$tree/tests/packages
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8

Fail() {
  echo "$*" >&2
  exit 1
}

# FilesOf DIRECTORY: every file and link below it, sorted.
FilesOf() { (cd "$1" && find . -not -type d | sed 's|^\./||' | sort); }

# Same EXPECTED ACTUAL WHAT: two files with the same lines.
Same() { diff -u "$1" "$2" || Fail "$3 differ"; }

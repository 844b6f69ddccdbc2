#!/usr/bin/env bash
# Usage: scripts/tidy.sh BUILD [--all]
# KIVU_TIDY_SECONDS: no further source is begun after so many seconds (none: no limit); the next run goes on there.
# Runs clang-tidy over the program's sources (src/) in a build that have changed since they were last found clean: whose
# text, with all that they include of this tree, has another hash than then. The hashes are kept outside of the tree.
# Where there are none yet, the sources that the last commit touched are looked at; --all: all of them, whatever the
# hashes say.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-packages.sh tidy
build=$(realpath "$1")
all=${2-}
root=$(pwd -P)
kept=${KIVU_CACHE:-$HOME/.cache/kivu}/tidy/clean
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# What each source includes, as the compiler has told: "source<tab>included", those of this tree alone.
ninja -C "$build" -t deps | awk -v root="$root/" -v build="$build" '
  function inside(path) { return index(path, root) == 1 && index(path, build) != 1 }
  /^[^ ].*: #deps/ { source = ""; next }
  NF == 1 {
    path = $1
    if (path !~ /^\//) path = build "/" path
    while (sub(/\/[^\/]+\/\.\.\//, "/", path)) { }
    if (!inside(path)) next
    if (source == "") source = path
    if (source ~ /\/src\/.*\.cpp$/) print substr(source, length(root) + 1) "\t" substr(path, length(root) + 1)
  }' | sort -u > "$work/includes"

# A hash for each source, of what it is made of and of the rules.
rules=$( (clang-tidy --version; cat .clang-tidy) | sha256sum | cut -c1-16)
cut -f2 "$work/includes" | sort -u | xargs -d '\n' sha256sum | awk '{ print $2 "\t" $1 }' > "$work/hashes"
awk -F '\t' 'NR == FNR { hash[$1] = $2; next } { print $1 "\t" $2 hash[$2] }' "$work/hashes" "$work/includes" |
  awk -F '\t' -v work="$work" '
    $1 != source { if (file) close(file); source = $1; file = work "/of-" ++count; print source "\t" file }
    { print $2 > file }' > "$work/units"
while IFS=$'\t' read -r source file; do
  printf '%s-%s %s\n' "$rules" "$(sha256sum < "$file" | cut -c1-40)" "$source"
done < "$work/units" > "$work/now"

if [ "$all" = --all ]; then
  cp "$work/now" "$work/todo"
elif [ -s "$kept" ]; then
  grep -vxFf "$kept" "$work/now" > "$work/todo" || true
else
  git diff --name-only HEAD~1 -- 'src/*.cpp' > "$work/changed" || true
  awk 'NR == FNR { changed[$1]; next } $2 in changed' "$work/changed" "$work/now" > "$work/todo"
fi
echo "clang-tidy: $(wc -l < "$work/todo") of $(wc -l < "$work/now") sources"

# The compiler's precompiled headers are not clang's: it reads their texts, beside which none lie.
commands=$build/tidy
mkdir -p "$commands"
find "$build" -name cmake_pch.hxx -print0 | while IFS= read -r -d '' header; do
  cp "$header" "$(dirname "$header")/tidy_pch.hxx"
done
sed 's|/cmake_pch\.hxx |/tidy_pch.hxx |g; s|-Winvalid-pch ||g' "$build/compile_commands.json" > "$commands/compile_commands.json"

mkdir -p "$(dirname "$kept")"
until=$(($(date +%s) + ${KIVU_TIDY_SECONDS:-86400}))
look() {
  local source=${1#* }
  if [ "$(date +%s)" -ge "$until" ]; then
    echo "$1" >> "$work/left"
    return 0
  fi
  if clang-tidy --quiet -p "$commands" \
      --extra-arg=-Wno-unknown-warning-option "$source" > "$work/out.$$" 2> "$work/err.$$"; then
    return 0
  fi
  cat "$work/out.$$" "$work/err.$$"
  echo "$1" >> "$work/bad"
  return 1
}
export -f look
export commands work until
touch "$work/left" "$work/bad"
failed=0
xargs -d '\n' -r -n 1 -P "$(nproc)" bash -c 'look "$1"' look < "$work/todo" || failed=1

if [ -s "$work/left" ]; then
  echo "clang-tidy: $(wc -l < "$work/left") sources are left for the next run"
fi
cat "$work/left" "$work/bad" > "$work/open"
grep -vxFf "$work/open" "$work/now" > "$work/looked" || true
cp "$work/looked" "$kept"
exit $failed

# Sourced by the scripts that make packages, with the tree as the working directory: what all of them must agree on.

# One version for all of them.
version="$(sed -n 's/^project(Kivu VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)"

# Times in packages are those of the last commit, or a second build of it would differ. A tree without its history
# has the time of its last release.
if [ -z "${SOURCE_DATE_EPOCH:-}" ]; then
  SOURCE_DATE_EPOCH="$(git log -1 --format=%ct 2>/dev/null || dpkg-parsechangelog -S Timestamp)"
fi
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8

# SetTimes DIRECTORY: everything in it has the time of the last commit, and not that of a checkout.
SetTimes() { find "$1" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +; }

# ExportTree DIRECTORY: a copy of the tree's files, as they are now and without any that belong to nobody.
ExportTree() {
  rm -rf "$1"
  mkdir -p "$1"
  git ls-files -z | while IFS= read -r -d '' file; do
    [ ! -e "$file" ] || printf '%s\0' "$file"
  done | tar --null -cf - -T - | tar -xf - -C "$1"
  # Whoever unpacks it, and with whatever mask.
  chmod -R u=rwX,go=rX "$1"
  SetTimes "$1"
}

#!/usr/bin/env bash
# Puts beside a program the libraries and plugins that it needs and a system may lack: tarball-libraries.sh DIRECTORY,
# which holds the program Kivu. Its licences come with each.
set -euo pipefail
directory="$1"
triplet="$(gcc -print-multiarch)"
plugins="/usr/lib/$triplet/qt6/plugins"

# What belongs to the system: the C and C++ libraries, whose newest must serve all that runs on it, what talks to the
# display and to its drivers, and what reads the system's own fonts and their set-up.
system=' libc libm libdl libpthread librt libresolv libutil ld-linux-x86-64 ld-linux-aarch64 libstdc++ libgcc_s '
system+='libGL libGLX libEGL libOpenGL libGLdispatch libdrm libgbm libX11 libX11-xcb libxcb libXau libXdmcp '
system+='libfontconfig libfreetype libexpat libuuid libz '
system+='libwayland-client libwayland-cursor libwayland-egl libdbus-1 libsystemd '

# Needed FILE: where what it asks for itself lies; what the system's libraries need in turn is the system's.
Needed() {
  join -o 2.2 <(objdump -p "$1" | awk '$1 == "NEEDED" { print $2 }' | sort) \
    <(ldd "$1" | awk '$2 == "=>" && $3 ~ /^\// { print $1, $3 }' | sort)
}
IsSystems() { [[ $system == *" $(basename "$1" | sed 's/\.so.*//') "* ]]; }

# Take LIBRARY: it and what it needs in turn.
Take() {
  local name
  name="$(basename "$1")"
  if IsSystems "$1" || [ -e "$directory/lib/$name" ]; then return; fi
  install -m 644 "$(readlink -f "$1")" "$directory/lib/$name"
  From "$1"
}
From() {
  local library
  while IFS= read -r library; do Take "$library"; done < <(Needed "$1")
}

# Its copyright is that of the package that it comes from. The package's database may know it by its older place.
Licence() {
  local file package
  file="$(readlink -f "$1")"
  package="$(dpkg-query -S "$file" 2>/dev/null || dpkg-query -S "${file#/usr}")"
  package="${package%%:*}"
  install -m 644 "/usr/share/doc/$package/copyright" "$directory/licences/$package.txt"
}

mkdir -p "$directory/lib" "$directory/plugins" "$directory/licences"
From "$directory/Kivu"
# Loaded by name and not linked.
Take "/usr/lib/$triplet/libxcb-randr.so.0"
for plugin in platforms/libq{xcb,wayland-generic}.so wayland-shell-integration/libxdg-shell.so \
              wayland-decoration-client/libbradient.so imageformats/libq{gif,ico,jpeg,webp}.so \
              platforminputcontexts/lib{compose,ibus}platforminputcontextplugin.so; do
  install -D -m 644 "$plugins/$plugin" "$directory/plugins/$plugin"
  Licence "$plugins/$plugin"
  From "$plugins/$plugin"
done
for library in "$directory"/lib/*; do
  Licence "/usr/lib/$triplet/$(basename "$library")"
done

# Each finds the others by where it lies itself: a variable in the environment would reach the emulators, too.
patchelf --set-rpath '$ORIGIN/lib' "$directory/Kivu"
for library in "$directory"/lib/*; do patchelf --set-rpath '$ORIGIN' "$library"; done
for plugin in "$directory"/plugins/*/*.so; do patchelf --set-rpath '$ORIGIN/../../lib' "$plugin"; done
printf '[Paths]\nPrefix = .\nPlugins = plugins\n' >"$directory/qt.conf"

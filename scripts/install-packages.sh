#!/usr/bin/env bash
# Installs what is missing of the Debian packages that a job needs: install-packages.sh build|run|test|bench|assets ...
set -euo pipefail

build=(g++ cmake ninja-build ccache qt6-base-dev libgl-dev libfontconfig-dev libsdl2-dev
       libxcb-randr0-dev libcurl4-openssl-dev)
run=(dosbox nasm bash gawk xdg-utils fonts-dejavu-core qt6-qpa-plugins libxcb-cursor0 libsdl2-2.0-0
     libxcb-randr0 libcurl4)
screen=(xvfb xauth openbox xdotool wmctrl imagemagick x11-utils procps)
test=(libgtest-dev libgmock-dev nlohmann-json3-dev libpng-dev zlib1g-dev libdeflate-dev clang-format procps
      xserver-xorg-core xserver-xorg-video-dummy python3 openssl fuseiso
      desktop-file-utils appstream man-db imagemagick nasm mawk
      python3-pyatspi gir1.2-atspi-2.0 at-spi2-core dbus
      sway wtype qt6-wayland util-linux qt6-base-private-dev)
windows=(g++-mingw-w64-x86-64-posix libz-mingw-w64-dev dpkg-dev libpng-dev zip file)
package=(debhelper dpkg-dev fakeroot git lintian nasm)
tarball=(patchelf binutils xz-utils dpkg-dev qt6-wayland qt6-image-formats-plugins)
installer=(nsis unzip file)
tree=(mmdebstrap debian-archive-keyring util-linux)
tidy=(clang-tidy)
wine=(wine wine64 googletest nlohmann-json3-dev fonts-dejavu-core python3 openssl libgnutls30)
assets=(librsvg2-bin imagemagick fonts-dejavu-core)
fuzz=(clang libclang-rt-14-dev)
bench=(libbenchmark-dev libxcb1-dev libpng-dev zlib1g-dev libdeflate-dev dpkg-dev findutils grep)

wanted=()
for job in "$@"; do
  declare -n packages="$job"
  wanted+=("${packages[@]}")
done

missing=()
for package in "${wanted[@]}"; do
  dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Please install as root: apt-get install ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null

#!/usr/bin/env bash
# Sourced: installs what the Windows build needs, gets its libraries and configures it in build/windows.
scripts/install-packages.sh build windows wine
KIVU_WINDOWS_LIBRARIES="$(scripts/windows/libraries.sh)"
export KIVU_WINDOWS_LIBRARIES
cmake --preset windows >/dev/null

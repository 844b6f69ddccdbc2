#!/usr/bin/env bash
# Fails unless a Windows program is one file that asks for nothing but Windows' own DLLs, with its icon, version and
# manifest: check-program.sh FILE
set -euo pipefail
program="$1"

# Those that every Windows 10 has.
own=' advapi32 authz comdlg32 d2d1 d3d11 d3d9 d3d12 dinput8 dwmapi dwrite dxgi gdi32 imm32 kernel32 msvcrt mpr netapi32 ole32 '
own+='oleaut32 rpcrt4 setupapi shcore shell32 shlwapi user32 userenv uxtheme version winhttp winmm wtsapi32 ws2_32 comctl32 '

for dll in $(x86_64-w64-mingw32-objdump -p "$program" | sed -n 's/.*DLL Name: //p'); do
  name="$(echo "${dll%.*}" | tr '[:upper:]' '[:lower:]')"
  # The system's own names for parts of kernel32 and the like.
  [[ $name == api-ms-win-core-* ]] && continue
  case "$own" in
    *" $name "*) ;;
    *) echo "$program needs $dll, which Windows does not bring" >&2; exit 1 ;;
  esac
done

resources="$(x86_64-w64-mingw32-windres -J coff -i "$program" -O rc 2>/dev/null || true)"
for kind in ICON VERSIONINFO; do
  grep -q "$kind" <<<"$resources" || { echo "$program has no $kind" >&2; exit 1; }
done
for sign in longPathAware PerMonitorV2 asInvoker; do
  grep -aq "$sign" "$program" || { echo "the manifest of $program says nothing of $sign" >&2; exit 1; }
done

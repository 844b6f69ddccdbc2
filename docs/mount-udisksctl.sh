#!/bin/sh
# Mounts CD images through udisks, without rights of root. Copy it, make it executable and name it in the settings
# as the program that mounts CD images. Kivu calls it in front of each start:
#
#   mount-udisksctl.sh -unmount 0          the image of the last game is taken out
#   mount-udisksctl.sh -mount 0, IMAGE     the image of this game is put in
#
# udisks tells the loop device that it has taken, which is kept for the next call.
state="${XDG_RUNTIME_DIR:-$HOME/.cache}/kivu-udisks-device"

case "$1" in
  -unmount)
    [ -f "$state" ] || exit 0
    device="$(cat "$state")"
    rm -f "$state"
    udisksctl unmount --block-device "$device"
    udisksctl loop-delete --block-device "$device"
    ;;
  -mount)
    # "Mapped file IMAGE as /dev/loop0."
    answer="$(udisksctl loop-setup --read-only --file "$3")" || exit 1
    device="$(printf '%s\n' "$answer" | sed -n 's|.* as \(/dev/loop[0-9]*\)\.*$|\1|p' | tail -n 1)"
    [ -n "$device" ] || exit 1
    printf '%s\n' "$device" > "$state"
    udisksctl mount --block-device "$device"
    ;;
  *)
    echo "usage: $0 -unmount 0 | -mount 0, IMAGE" >&2
    exit 2
    ;;
esac

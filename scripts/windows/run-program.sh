#!/usr/bin/env bash
# Runs a Windows program under Wine and then prints what it has written. Wine's own services, which come up with the
# first program and stay, would otherwise hold on to the output that somebody reads to its end.
output="$(mktemp)"
trap 'rm -f "$output"' EXIT
status=0
wine "$@" >"$output" 2>&1 </dev/null || status=$?
cat "$output"
exit "$status"

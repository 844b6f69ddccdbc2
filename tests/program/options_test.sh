#!/usr/bin/env bash
# What the program makes of its options, with no display at all: options_test.sh KIVU VERSION
set -euo pipefail

kivu=$1
version=$2
work=$(mktemp -d)
started=()
Finish() {
  for process in "${started[@]}"; do
    kill "$process" 2>/dev/null || true
    # It stores its window's place as it ends.
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}
trap Finish EXIT
Fail() {
  echo "FAILED: $*" >&2
  exit 1
}

unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM
export HOME=$work/home XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME=$work/share XDG_STATE_HOME=$work/state
export XDG_CONFIG_HOME=$work/config LC_ALL=C.UTF-8
unset LANGUAGE LANG
mkdir -m 700 "$work/run"
mkdir "$work/home" "$work/bin" "$work/here"
cp "$kivu" "$work/bin/Kivu"
cd "$work/here"

# Answered WORDS..: standard output, standard error and status into out, err and status.
Answered() {
  status=0
  timeout 60 "$work/bin/Kivu" "$@" >"$work/out" 2>"$work/err" </dev/null || status=$?
  out=$(cat "$work/out")
  err=$(cat "$work/err")
}

Answered --version
[ "$out" = "Kivu $version" ] && [ -z "$err" ] && [ "$status" -eq 0 ] || Fail "--version: $status, $out, $err"
Answered --help
[[ $out == Usage:* && $out == *--data* ]] && [ -z "$err" ] && [ "$status" -eq 0 ] || Fail "--help: $status, $out, $err"
out=$(env LC_ALL=de_DE.UTF-8 "$work/bin/Kivu" --help)
[[ $out == Aufruf:* ]] || Fail "--help in German: $out"
for word in --fast -- "--data" "--my game.adf"; do
  Answered "$word"
  [ -z "$out" ] && [[ $err == "Kivu: "* ]] && [ "$status" -eq 2 ] || Fail "$word: $status, $out, $err"
done
status=0
"$work/bin/Kivu" --version >/dev/full 2>/dev/null || status=$?
[ "$status" -eq 1 ] || Fail "an answer that nobody gets: $status"
[ -z "$(ls -A "$work/bin" | grep -v '^Kivu$')" ] && [ ! -e "$work/share" ] || Fail "an answer leaves something behind"
# Behind the toolkit's own options too.
Answered -platform offscreen --version
[ "$out" = "Kivu $version" ] && [ "$status" -eq 0 ] || Fail "behind the toolkit's options: $status, $out, $err"

export QT_QPA_PLATFORM=offscreen
Started() {
  "$@" >"$work/log" 2>&1 </dev/null &
  started+=($!)
}
Stands() {
  for _ in $(seq 600); do
    if [ -s "$1/Config/Kivu.ini" ]; then return; fi
    kill -0 "${started[-1]}" 2>/dev/null || break
    sleep 0.1
  done
  Fail "no settings in $1: $(cat "$work/log")"
}

# The named directory holds all of it, and the program's own nothing.
Started "$work/bin/Kivu" --data ../my\ data --log
Stands "$work/my data"
[ ! -e "$work/bin/Config" ] && [ ! -e "$work/here/Config" ] || Fail "it has taken another directory as well"
# The same one by another way to it is the same instance, and one elsewhere is another.
ln -s "my data" "$work/link"
Answered --data "$work/link/"
[ "$status" -eq 0 ] || Fail "a second start: $status, $err"
Started "$work/bin/Kivu"
Stands "$work/bin"
Answered
[ "$status" -eq 0 ] || Fail "a second start beside its file: $status, $err"
for process in "${started[@]}"; do
  kill -0 "$process" 2>/dev/null || Fail "one of the two is gone"
done

# Installed, it never takes a directory beside its file, whatever can be written to.
mkdir -p "$work/prefix/bin" "$work/prefix/share/kivu"
cp "$kivu" "$work/prefix/bin/Kivu"
Started "$work/prefix/bin/Kivu"
Stands "$work/share/Kivu"
[ ! -e "$work/prefix/bin/Config" ] || Fail "an installed one has written beside its file"
echo "All as it should be."

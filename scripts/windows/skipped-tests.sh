#!/usr/bin/env bash
# Prints the tests that a GoogleTest report (XML) tells of as skipped, each with its reason: skipped-tests.sh FILE
set -euo pipefail
awk '
  # Names stand in order: name="..." first, classname="..." last.
  function attribute(line, name) {
    return match(line, "[ <]" name "=\"[^\"]*\"") ?
           substr(line, RSTART + length(name) + 3, RLENGTH - length(name) - 4) : ""
  }
  /<testcase / { test = attribute($0, "classname") "." attribute($0, "name") }
  /<skipped / {
    reason = attribute($0, "message")
    sub(/^.*&#x0A;/, "", reason)
    gsub(/&quot;/, "\"", reason); gsub(/&apos;/, "\047", reason); gsub(/&lt;/, "<", reason)
    gsub(/&gt;/, ">", reason); gsub(/&amp;/, "\\&", reason)
    printf "%-42s %s\n", test, reason
  }
' "$1"

#!/usr/bin/env bash
# Runs each tarnix-cli case and compares its output byte for byte with the
# expected file. A case is NAME.args (the arguments, one line), an optional
# NAME.in (standard input) and NAME.out (expected standard output). Each case
# runs in a fresh program folder.
set -u
cli=$1
dir=$2
failed=0
passed=0
for args in "$dir"/cases/*.args; do
  name=$(basename "$args" .args)
  home=$(mktemp -d)
  input=/dev/null
  [ -f "$dir/cases/$name.in" ] && input="$dir/cases/$name.in"
  actual=$(mktemp)
  eval "set -- $(cat "$args")"
  TARNIX_HOME="$home" "$cli" "$@" <"$input" >"$actual" 2>&1
  if cmp -s "$actual" "$dir/cases/$name.out"; then
    passed=$((passed + 1))
  else
    echo "FAIL $name"
    diff "$dir/cases/$name.out" "$actual" | head -40
    failed=$((failed + 1))
  fi
  rm -rf "$home" "$actual"
done
echo "cli golden: $passed passed, $failed failed"
[ "$failed" -eq 0 ]

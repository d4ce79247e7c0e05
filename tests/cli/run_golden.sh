#!/usr/bin/env bash
# Runs each tarnix-cli case and compares its output byte for byte with the
# expected file. A case is NAME.args (the arguments, one line) with an
# optional NAME.in (standard input), or NAME.sh (a script that runs $CLI in a
# fresh working folder); NAME.out is the expected output. Each case runs in a
# fresh program folder.
set -u
cli=$(realpath "$1")
dir=$(cd "$2" && pwd)
failed=0
passed=0
check() {  # check NAME ACTUAL
  if cmp -s "$2" "$dir/cases/$1.out"; then
    passed=$((passed + 1))
  else
    echo "FAIL $1"
    diff "$dir/cases/$1.out" "$2" | head -40
    failed=$((failed + 1))
  fi
}
for args in "$dir"/cases/*.args; do
  name=$(basename "$args" .args)
  home=$(mktemp -d)
  input=/dev/null
  [ -f "$dir/cases/$name.in" ] && input="$dir/cases/$name.in"
  actual=$(mktemp)
  eval "set -- $(cat "$args")"
  TARNIX_HOME="$home" "$cli" "$@" <"$input" >"$actual" 2>&1
  check "$name" "$actual"
  rm -rf "$home" "$actual"
done
for script in "$dir"/cases/*.sh; do
  name=$(basename "$script" .sh)
  home=$(mktemp -d)
  work=$(mktemp -d)
  actual=$(mktemp)
  (cd "$work" && TARNIX_HOME="$home" CLI="$cli" bash "$script" </dev/null >"$actual" 2>&1)
  check "$name" "$actual"
  rm -rf "$home" "$work" "$actual"
done
echo "cli golden: $passed passed, $failed failed"
[ "$failed" -eq 0 ]

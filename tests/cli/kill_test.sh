#!/usr/bin/env bash
# A logger killed outright (SIGKILL) loses nothing that was logged: QSOs are
# fed one at a time to "tarnix-cli enter"; as soon as the file shows a QSO
# written, the process is killed at once, and the log must open with every
# QSO that was entered and no torn record.
set -u
cli=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TARNIX_HOME="$work/home"
log="$work/kill.TNX"
"$cli" new "$log" --contest 12 >/dev/null || { echo "kill test: cannot create the log"; exit 1; }

failed=0
total=0
for round in 1 2 3 4 5; do
  fifo="$work/in$round"
  mkfifo "$fifo"
  "$cli" enter "$log" --clock "2026-11-22 12:00" <"$fifo" >/dev/null 2>&1 &
  pid=$!
  exec 3>"$fifo"
  for qso in $(seq 1 $((round * 3))); do
    total=$((total + 1))
    echo "R${round}Q${qso} NOTE $total" >&3
    want=$(((total + 1) * 60))
    for _ in $(seq 1 500); do
      [ "$(stat -c %s "$log")" -ge "$want" ] && break
      sleep 0.01
    done
  done
  kill -9 "$pid"
  wait "$pid" 2>/dev/null
  exec 3>&-
  got=$("$cli" dump "$log" | awk -F'\t' '$1=="TOTAL"{print $2}')
  size=$(stat -c %s "$log")
  if [ "$got" != "$total" ] || [ $((size % 60)) -ne 0 ]; then
    echo "kill test round $round: expected $total QSOs, the log holds $got (file of $size bytes)"
    failed=$((failed + 1))
  fi
done
# Every QSO is there, in order, with its own notes.
"$cli" dump "$log" | awk -F'\t' 'NR>1 && $1!="TOTAL" && $1!="BAND" && $9!="NOTE " $1 {bad++} END{exit bad>0}' ||
  { echo "kill test: a record was torn or out of order"; failed=$((failed + 1)); }
echo "kill test: $((5 - failed)) passed, $failed failed"
[ "$failed" -eq 0 ]

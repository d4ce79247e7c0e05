#!/usr/bin/env bash
# A logger killed outright (SIGKILL) at any moment loses nothing that was
# logged. Round after round, "tarnix-cli enter LOG --progress" opens the same
# log and enters QSOs from a file, acknowledging each one once its Enter has
# returned, and is killed after a random delay: while it starts, while it
# replays the log, between two QSOs or in the middle of one. After each kill
# the log must open with every QSO acknowledged (and at most the one being
# entered besides), every record whole and in its place: QSO n carries the
# note "NOTE n". Part of a record behind the last whole one, the QSO being
# written when the kill came, is left out when the log opens.
#
#   kill_test.sh TARNIX-CLI [KILLS] [SEED]
#
# KILLS defaults to 200; SEED repeats an earlier run's delays.
set -u
cli=$1
kills_wanted=${2:-200}
seed=${3:-$$}
RANDOM=$seed
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export TARNIX_HOME="$work/home"
log="$work/kill.TNX"
new_log() {
  rm -f "$log"
  "$cli" new "$log" --contest 12 >/dev/null || { echo "kill test: cannot create the log"; exit 1; }
}
new_log

# A failure keeps the log it was found in, for whoever looks into it.
fail() {
  kept="${TMPDIR:-/tmp}/kill-test-$seed.TNX"
  cp "$log" "$kept" 2>/dev/null
  echo "kill test (seed $seed), round $round: $* (the log is kept in $kept)"
  exit 1
}

# check_log | check_records: the QSOs in the log and the check of every
# record, "TOTAL n", or a message. A dump that hangs fails the test.
check_log() {
  timeout 60 "$cli" dump "$log" || echo "dump failed or hung (status $?)"
}
check_records() {
  awk -F'\t' '
    $1 == "HEADER" || $1 == "BAND" { next }
    $1 == "TOTAL" { total = $2; next }
    { rows++; if ($1 != rows || $9 != "NOTE " rows) { print "record " rows " is " $0; bad = 1; exit } }
    END { if (!bad) { if (total != rows) print "TOTAL " total " but " rows " records"; else print "TOTAL " total } }'
}

per_round=2000 # QSOs offered to each child: entering them takes about as long as a start
held=0         # QSOs in the log, checked
kills=0
round=0
logged=0       # QSOs logged in all the logs of the run
early=0        # kills before the child had written a QSO
between=0      # kills after a QSO was written and before its Enter returned
torn=0         # kills that left part of a record behind the last whole one

# Milliseconds a child takes to enter the QSO lines of the file given.
time_child() {
  local start=$EPOCHREALTIME
  "$cli" enter "$log" --clock "2026-11-22 12:00" <"$1" >/dev/null 2>&1
  local end=$EPOCHREALTIME
  echo $(((${end/./} - ${start/./}) / 1000))
}

# The delays: a quarter of the kills fall in the start (reading the program's
# files, replaying the log), the rest while QSOs are entered. A first child
# with nothing to enter and one with a round's worth measure the two.
: >"$work/none"
startup=$(time_child "$work/none")
seq 1 "$per_round" | awk '{ print "W" $1 "A NOTE " $1 }' >"$work/calibrate"
whole=$(time_child "$work/calibrate")
new_log
[ "$startup" -ge 1 ] || startup=1
[ "$whole" -gt "$startup" ] || whole=$((startup + 1))
# On a loaded machine (a parallel build, the sanitizers) the children are
# slow and their timings vary from one to the next: the kills during entry
# fall in its first 300 ms at most, so that a run keeps its length.
entering=$((whole - startup))
[ "$entering" -le 300 ] || entering=300
while [ "$kills" -lt "$kills_wanted" ]; do
  round=$((round + 1))
  if [ "$held" -ge 4000 ]; then  # a new log before this one nears the 8000 QSOs a log holds
    logged=$((logged + held))
    held=0
    new_log
  fi
  [ "$round" -le $((kills_wanted * 3)) ] || fail "only $kills kills in $round rounds"
  seq 1 "$per_round" | awk -v r="$round" -v h="$held" '{ print "R" r "Q" $1 " NOTE " h + $1 }' >"$work/qsos"
  : >"$work/acks"
  "$cli" enter "$log" --clock "2026-11-22 12:00" --progress <"$work/qsos" >"$work/acks" 2>/dev/null &
  pid=$!
  if [ $((RANDOM % 4)) -eq 0 ]; then
    delay=$((RANDOM % startup))
  else
    delay=$((startup + RANDOM % entering))
  fi
  sleep "$((delay / 1000)).$(printf '%03d' $((delay % 1000)))"
  kill -KILL "$pid" 2>/dev/null
  wait "$pid" 2>/dev/null
  status=$?
  acked=$(awk '$1 == "ENTERED" { n = $2 } END { print n + 0 }' "$work/acks")
  result=$(check_log | check_records)
  case "$result" in
    "TOTAL "*) got=${result#TOTAL } ;;
    *) fail "$result" ;;
  esac
  # A kill can stop the kernel in the middle of even a 60-byte write where it
  # crosses a page of the file: the file then ends in part of a record. That
  # can only be the QSO whose Enter had not returned; the log opens without
  # it, and the next QSO is written over it.
  size=$(stat -c %s "$log")
  if [ "$got" -gt 0 ] && [ $((size % 60)) -ne 0 ]; then
    [ "$size" -lt $(((got + 2) * 60)) ] || fail "a file of $size bytes for $got QSOs"
    [ "$got" -eq "$acked" ] || [ "$got" -eq "$held" ] || fail "a torn record behind $got QSOs, $acked acknowledged"
    torn=$((torn + 1))
  fi
  lowest=$held
  [ "$acked" -gt "$lowest" ] && lowest=$acked
  if [ "$got" -lt "$lowest" ] || [ "$got" -gt $((lowest + 1)) ] || [ "$got" -gt $((held + per_round)) ]; then
    fail "the log held $held, $acked were acknowledged, and it holds $got"
  fi
  if [ "$status" -eq 137 ]; then
    kills=$((kills + 1))
    if [ "$got" -eq "$held" ]; then early=$((early + 1)); fi             # before its first QSO was on disk
    if [ "$got" -gt "$acked" ] && [ "$got" -gt "$held" ]; then between=$((between + 1)); fi  # on disk, not yet acknowledged
  fi
  held=$got
done
echo "kill test (seed $seed): a child starts in ${startup} ms and enters $per_round QSOs in ${whole} ms;" \
  "$kills kills in $round rounds, $((logged + held)) QSOs logged, none lost;" \
  "$early kills before a QSO of the round was written, $between between a write and its acknowledgement," \
  "$torn in the middle of a write"

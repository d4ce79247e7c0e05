# The keyboard of a CQWW CW log driven by a script: Space to the exchange
# (the zone comes in behind a blank), Enter, F1 on an empty Enter, the call
# stack, a band down, the speed, the radio swap, a too-long call refused,
# the box's own editing keys, Insert, a wipe and the repeat command. Then a
# second script appends to a saved log, and a bad line ends a script.
cat >run.txt <<'SCRIPT'
clock 2026-11-22 14:02
show
type k3zzz
key Space
show
key Enter
key Enter
type w1aw
key Alt+M
type dl1abc
key Alt+M
key Alt+Up
key Alt+Up
key Ctrl+Down
type +
key F9
show
type va3abcdefgh
answer No
key Enter
key Backspace
key Home
key Delete
key Insert
show
key Ctrl+X
type r
key Enter
show
SCRIPT
$CLI script run.txt --contest 3 --mode cw --qth usa --clock "2026-11-22 14:00"
echo "exit $?"
$CLI new gen.TNX --contest 12 --clock "2026-11-22 14:00" >/dev/null
cat >log.txt <<'SCRIPT'
clock 2026-11-22 15:10
type n2ic 599 tx
key Enter
type dl1abc
key Ctrl+Left
key Space
type 59 dok
key Enter
type tu0
key Enter
show
SCRIPT
$CLI script log.txt --log gen.TNX
echo "exit $?"
$CLI dump gen.TNX
printf 'type k3zzz\nkey Ctrl+Q+\nshow\n' >bad.txt
$CLI script bad.txt
echo "exit $?"

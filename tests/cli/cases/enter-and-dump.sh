# QSOs appended to a log file across runs, then the log dumped; a damaged
# copy of it opens as far as it is whole.
$CLI new gen.TNX --contest 12 >/dev/null
printf 'K3ZZZ 599 PA\nW1AW\n' | $CLI enter gen.TNX --clock "2026-11-22 14:00"
printf 'N5DX 73\n' | $CLI enter gen.TNX --clock "2026-11-22 14:05"
$CLI dump gen.TNX
stat -c %s gen.TNX
head -c 200 gen.TNX > torn.TNX
$CLI dump torn.TNX
head -c 20 gen.TNX > garbage.TNX
$CLI dump garbage.TNX | sed "s|$PWD/||"; echo "exit ${PIPESTATUS[0]}"

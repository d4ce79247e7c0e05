# The dupe check of a CQWW CW log with K3ZZZ and DL1ABC/P worked on 20m: a
# station is a dupe on its band; on 40m, typed portable it is found through
# the plain call, and typed plain through the portable table.
$CLI new ww.TNX --contest 3 --mode cw --qth usa >/dev/null
printf 'K3ZZZ 5\nDL1ABC/P 14\n' | $CLI enter ww.TNX --clock "2026-11-22 14:00" >/dev/null
$CLI dupe ww.TNX K3ZZZ
$CLI dupe ww.TNX k3zzz/p --band 4
$CLI dupe ww.TNX DL1ABC --band 4
$CLI dupe ww.TNX K3ZZZ --band 25; echo "exit $?"

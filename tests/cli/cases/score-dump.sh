# Scores as a log is opened again: a CQWW log from the USA on 20m CW (a
# country and a zone each count once per band; a dupe scores 0 but passes the
# multiplier step), and a PAQP log, whose points are kept in tenths and whose
# score divides them by ten.
$CLI new ww.TNX --contest 3 --mode cw --qth usa >/dev/null
printf 'DL1ABC 14\nDL2XYZ 14\nJA1XYZ 25\nVE3EJ 4\nK3ZZZ 5\nDL1ABC 14\n' |
  $CLI enter ww.TNX --clock "2026-11-28 12:00" >/dev/null
$CLI dump ww.TNX
$CLI new pa.TNX --contest 8 >/dev/null
printf 'K3ZZZ 1 ALL\nW3AB 2 ALLEG\nN3CD 3 PHI\nK3ZZZ 4 BUC\n' | $CLI enter pa.TNX --clock "2026-10-10 16:00" >/dev/null
$CLI dump pa.TNX

# New logs: the header bytes of a new log, and dump of each kind of header.
$CLI new ten.TNX --contest 10 && od -An -tx1 ten.TNX
$CLI dump ten.TNX
$CLI new ss.TNX --contest 5 --mode cw && $CLI dump ss.TNX
$CLI new cqp.TNX --contest 2 --qth out && $CLI dump cqp.TNX
$CLI new wpx.TNX --contest 6 --qth OC --mode phone && $CLI dump wpx.TNX
$CLI new cwo.TNX --contest 13 --cwo-hour 1200 && $CLI dump cwo.TNX
$CLI new arl.TNX --contest 1 --qth dx && $CLI dump arl.TNX
$CLI new neq.TNX --contest 11 --qth in || echo "refused: $?"
$CLI new cwo.TNX --contest 12 | sed "s|$PWD/||" ; echo "exit ${PIPESTATUS[0]}"

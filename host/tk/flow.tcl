# Widgets side by side, and on further lines where the window is too narrow for all of them.

# The frame shows those of its children: pairs of a widget and the gap in front of it, which those at the beginning of
# a line do without.
proc ::znbrowser::flowIn {n frame pairs} {
    upvar #0 ::znbrowser::window$n w
    set w(flow,$frame) $pairs
    set widgets [dict keys $pairs]
    foreach widget [place slaves $frame] {
        if {$widget ni $widgets} {place forget $widget}
    }
    foreach widget [linsert $widgets 0 $frame] {bind $widget <Configure> [list ::znbrowser::flowSoon $n $frame]}
    flowSoon $n $frame
}

proc ::znbrowser::flowSoon {n frame} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,flow,$frame)]} return
    set w(timer,flow,$frame) [after idle [list ::znbrowser::flow $n $frame]]
}

proc ::znbrowser::flow {n frame} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,flow,$frame)
    if {![isOpen $n] || ![winfo exists $frame]} return
    set room [winfo width $frame]
    if {$room <= 1} return ;# it has no place yet
    set top 0
    set line {}
    set x 0
    foreach {widget gap} $w(flow,$frame) {
        if {$line ne ""} {incr x $gap}
        if {$line ne "" && $x + [winfo reqwidth $widget] > $room} {
            incr top [expr {[placeLine $line $top] + 4}]
            set line {}
            set x 0
        }
        lappend line $widget $x
        incr x [winfo reqwidth $widget]
    }
    set height [expr {max(1, $top + [placeLine $line $top])}]
    if {[winfo reqheight $frame] != $height} {$frame configure -height $height}
}

# Answers the height of the line; all stand in the middle of it.
proc ::znbrowser::placeLine {line top} {
    set height 0
    foreach {widget x} $line {set height [expr {max($height, [winfo reqheight $widget])}]}
    foreach {widget x} $line {place $widget -x $x -y [expr {$top + ($height - [winfo reqheight $widget]) / 2}]}
    return $height
}

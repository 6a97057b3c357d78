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
    foreach widget [linsert $widgets 0 $frame] {
        bind $widget <Configure> [string map {% %%} [list ::znbrowser::flowSoon $n $frame]] ;# a user named the window's
    }
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
            incr top [expr {[placeLine $frame $line $top] + 4}]
            set line {}
            set x 0
        }
        lappend line $widget $x
        incr x [winfo reqwidth $widget]
    }
    set height [expr {max(1, $top + [placeLine $frame $line $top])}]
    if {[winfo reqheight $frame] != $height} {$frame configure -height $height}
}

# Answers the height of the line; all stand in the middle of it.
proc ::znbrowser::placeLine {frame line top} {
    set height 0
    foreach {widget x} $line {set height [expr {max($height, [winfo reqheight $widget])}]}
    foreach {widget x} $line {place $widget -in $frame -x $x -y [expr {$top + ($height - [winfo reqheight $widget]) / 2}]}
    return $height
}

# ---- The bar above the rows
#
# The search stands left, the buttons right; where both have no room on one line the field is shorter, and where that
# does not suffice they stand below it.

proc ::znbrowser::buildTools {n bar} {
    ttk::frame $bar.tools -style Browser.TFrame
    lower $bar.tools
    bind $bar <Configure> [list ::znbrowser::layoutBar $n %W]
    layoutBar $n $bar
}

proc ::znbrowser::layoutBar {n bar} {
    upvar #0 ::znbrowser::window$n w
    set tools {}
    foreach widget [pack slaves $bar] { # what was packed on the right since
        if {$widget ne "$bar.tools" && [dict get [pack info $widget] -side] eq "right"} {
            pack forget $widget
            set tools [linsert $tools 0 $widget 6]
        }
    }
    if {[info exists w(flow,$bar.tools)]} {lappend tools {*}$w(flow,$bar.tools)}
    set room 0
    foreach widget [dict keys $tools] {incr room [expr {[winfo reqwidth $widget] + 6}]}
    if {![info exists w(searchWidth)]} {set w(searchWidth) [$w(searchField) cget -width]}
    # As if the field had its whole width: else it would be too narrow and wide enough by turns.
    set needed [expr {$room + [scaled 30] + ($w(searchWidth) - [$w(searchField) cget -width]) * [font measure znBrowser00 0]}]
    foreach widget [winfo children $bar] {
        if {$widget ni [linsert [dict keys $tools] 0 $bar.tools]} {incr needed [expr {[winfo reqwidth $widget] + 6}]}
    }
    set wide [winfo width $bar]
    set digit [font measure znBrowser00 0]
    set short [expr {min(14, $w(searchWidth))}]
    set below [expr {$wide > 1 && $wide < $needed - ($w(searchWidth) - $short) * $digit}]
    set missing [expr {$wide > 1 ? $needed - $wide - ($below ? $room + [scaled 12] : 0) : 0}]
    $bar.tools configure -width $room
    $w(searchField) configure -width [expr {max(5, min($below ? $short : $w(searchWidth), $w(searchWidth) - ($missing + $digit - 1) / $digit))}]
    if {$below} {
        pack $bar.tools -side bottom -fill x -pady {4 0} -before [lindex [pack slaves $bar] 0]
    } else {
        pack $bar.tools -side right -fill none -pady 0
    }
    flowIn $n $bar.tools $tools
}

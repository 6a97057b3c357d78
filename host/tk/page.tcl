# Scrolling. The tree widget holds only the rows that are on the screen: its items are slots, filled with the
# rows from position `first` on. So a million expanded rows cost no more here than fifty.

# The tree and its scrollbars.
proc ::znbrowser::buildTree {n frame} {
    upvar #0 ::znbrowser::window$n w
    set w(tree) $frame.tree
    treectrl $w(tree) -showroot no -showbuttons no -showlines no -itemheight [rowHeight] -borderwidth 0 \
        -highlightthickness 1 -font znBrowser00 -yscrollincrement [rowHeight] \
        -xscrollincrement 20 -columnresizemode realtime -usetheme no -takefocus 1 -showheader yes \
        -headerfont znBrowser00 -width 100 -height 100
    ttk::scrollbar $frame.y -orient vertical -command [list ::znbrowser::yview $n]
    ttk::scrollbar $frame.x -orient horizontal -command [list ::znbrowser::scrollSideways $n]
    $w(tree) configure -xscrollcommand [list ::znbrowser::xscrolled $frame.x]
    grid $w(tree) $frame.y -sticky nsew
    grid $frame.x -sticky ew
    grid rowconfigure $frame 0 -weight 1
    grid columnconfigure $frame 0 -weight 1
    bindtags $w(tree) [list $w(tree) znBrowserTree TreeCtrl [winfo toplevel $w(tree)] all]
    prepareCells $n
    prepareColumns $n
}

# A scrollbar that would have nothing to do is not there.
proc ::znbrowser::xscrolled {bar first last} {
    if {$first <= 0 && $last >= 1} {
        grid remove $bar
    } else {
        grid $bar
        $bar set $first $last
    }
}

# What a scrollbar, a key or a wheel says. Cells are drawn before they are seen.
proc ::znbrowser::scrollSideways {n args} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) xview {*}$args
    if {![host busy] && [visibleColumns $n] ne $w(visible)} {drawPage $n}
}

# The columns that are drawn: of many those in sight, and a little beside.
proc ::znbrowser::visibleColumns {n} {
    upvar #0 ::znbrowser::window$n w
    if {[llength $w(shown)] <= 40} {return $w(shown)}
    set end [expr {[winfo width $w(tree)] + 200}]
    set visible [lrange $w(shown) 0 $w(locked)] ;# where what cannot be read says why
    lassign [$w(tree) column bbox [wideColumn $n]] left top x
    foreach number [lrange $w(shown) $w(locked)+1 end] {
        set next [expr {$x + $w(width,$number)}]
        if {$next > -200 && $x < $end} {lappend visible $number}
        set x $next
    }
    return $visible
}

# ---- Positions

# The slot in which a row is drawn; -1 when it is not on the screen.
proc ::znbrowser::slotOf {n tkIndex} {
    upvar #0 ::znbrowser::window$n w
    return [lsearch -exact -integer -index 0 $w(page) $tkIndex]
}

# The row at a position: a list, as the host gives it; empty when there is none.
proc ::znbrowser::rowAt {n position} {
    upvar #0 ::znbrowser::window$n w
    set slot [expr {$position - $w(first)}]
    if {$slot >= 0 && $slot < [llength $w(page)]} {return [lindex $w(page) $slot]}
    return [lindex [host page $n $position 1] 0]
}

# The last position at which the first row can stand.
proc ::znbrowser::lastFirst {n} {
    upvar #0 ::znbrowser::window$n w
    return [expr {max(0, [dict get $w(look) rows] - $w(full))}]
}

# Rows came or went: what was on the screen stays there, as far as it still exists. Who looks at the beginning
# goes on looking at the beginning.
proc ::znbrowser::keepPlace {n} {
    upvar #0 ::znbrowser::window$n w
    set scroll [dict get $w(look) scroll]
    if {$scroll != $w(reported)} { # a saved state was restored
        set w(first) $scroll
        set w(reported) $scroll
    } elseif {$w(first) > 0} {
        set slot 0
        foreach row $w(page) {
            set position [host position $n [lindex $row 0]]
            if {$position >= 0} {
                set w(first) [expr {$position - $slot}]
                break
            }
            incr slot
        }
    }
    set w(first) [expr {max(0, min($w(first), [lastFirst $n]))}]
}

# Scrolls so far that a row can be seen, and gives it the focus.
proc ::znbrowser::reveal {n tkIndex} {
    upvar #0 ::znbrowser::window$n w
    set position [host position $n $tkIndex]
    if {$position < 0} return
    set w(active) $tkIndex
    set w(anchor) $tkIndex
    if {$position < $w(first) || $position >= $w(first) + $w(full)} {
        set w(first) [expr {max(0, min($position - $w(full) / 3, [lastFirst $n]))}]
    }
}

# ---- Scrolling

proc ::znbrowser::scrollTo {n first} {
    upvar #0 ::znbrowser::window$n w
    set first [expr {max(0, min($first, [lastFirst $n]))}]
    if {$first == $w(first)} return
    set w(first) $first
    drawPage $n
}

# What a scrollbar says.
proc ::znbrowser::yview {n action amount {unit ""}} {
    upvar #0 ::znbrowser::window$n w
    flush $n
    if {$action eq "moveto"} {
        scrollTo $n [expr {round($amount * [dict get $w(look) rows])}]
    } else {
        scrollTo $n [expr {$w(first) + $amount * ($unit eq "pages" ? max(1, $w(full) - 1) : 1)}]
    }
}

# The tree, or its header, has another size: another number of rows fits.
proc ::znbrowser::resized {n} {
    upvar #0 ::znbrowser::window$n w
    measure $n
    changed $n resized 0
}

# How many rows fit; whether that is another number than before.
proc ::znbrowser::measure {n} {
    upvar #0 ::znbrowser::window$n w
    lassign [$w(tree) contentbox] x1 y1 x2 y2
    set full [expr {$y2 eq "" ? 1 : max(1, ($y2 - $y1) / [rowHeight])}]
    if {$full == $w(full)} {return 0}
    set w(full) $full
    return 1
}

# Draws the rows from `first` on, one more than fit whole, and tells the host where the window stands.
proc ::znbrowser::drawPage {n} {
    upvar #0 ::znbrowser::window$n w
    if {$w(shown) eq ""} return
    set w(page) [host page $n $w(first) [expr {$w(full) + 1}]]
    if {![isOpen $n]} return ;# a script that computed a value closed it
    set w(visible) [visibleColumns $n]
    if {$w(bare)} {growColumns $n}
    fitTree $n
    set slot 0
    foreach row $w(page) {
        drawRow $n $slot $row
        incr slot
    }
    clearSlots $n $slot
    preselect $n
    $w(tree) yview moveto 0 ;# the widget may have scrolled by itself, before it knew how many rows fit
    set rows [expr {double(max(1, [dict get $w(look) rows]))}]
    set bar [winfo parent $w(tree)].y
    if {$w(full) >= $rows} {grid remove $bar} else {grid $bar}
    $bar set [expr {$w(first) / $rows}] [expr {min(1.0, ($w(first) + $w(full)) / $rows)}]
    lookedAt $n
    if {$w(first) != $w(reported)} {
        if {[info exists w(timer,report)]} {after cancel $w(timer,report)}
        set w(timer,report) [after 150 [list ::znbrowser::reportScroll $n]]
    }
}

# Other rows are looked at, or another row is the current one: who wants to know, such as the detail pane, hears of it
# a moment later, once for all that changes meanwhile. `watchers` are their commands, which take the window's number.
proc ::znbrowser::lookedAt {n} {
    upvar #0 ::znbrowser::window$n w
    if {$w(watchers) ne "" && ![info exists w(timer,look)]} {
        set w(timer,look) [after 60 [list ::znbrowser::tellWatchers $n]]
    }
}

proc ::znbrowser::tellWatchers {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    unset -nocomplain w(timer,look)
    if {[host busy]} {return [lookedAt $n]}
    foreach watcher $w(watchers) {
        {*}$watcher $n
        if {![isOpen $n]} return
    }
}

# Tells the host where the window stands, as soon as it stands still.
proc ::znbrowser::reportScroll {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,report)]} {after cancel $w(timer,report)}
    unset -nocomplain w(timer,report)
    if {$w(first) == $w(reported)} return
    set w(reported) $w(first)
    event $n OnTkTreeSetStatePos $w(first)
    recordScroll $n
}

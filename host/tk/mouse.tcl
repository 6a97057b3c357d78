# The mouse on rows. The tree widget's own bindings are left the headers.

proc ::znbrowser::bindMouse {} {
    bind znBrowserTree <Configure> {::znbrowser::onTree resized %W}
    foreach {sequence handler} {
        <ButtonPress-1> press <Double-ButtonPress-1> pressTwice <ButtonRelease-1> release
        <Button1-Motion> drag <Motion> motion <ButtonPress-3> pressRight
    } {
        bind znBrowserTree $sequence "if {\[::znbrowser::onTree $handler %W %x %y %s %X %Y\]} break"
    }
    bind znBrowserTree <Leave> {::znbrowser::onTree leave %W}
    foreach {sequence rows} {<ButtonPress-4> -3 <ButtonPress-5> 3} {
        bind znBrowserTree $sequence "::znbrowser::onTree wheel %W $rows; break"
        bind znBrowserTree <Shift-[string trim $sequence <>]> "::znbrowser::onTree scrollSideways %W scroll $rows units; break"
    }
}

# Calls a handler with the number of the window to which a tree belongs. True: the event has been dealt with.
proc ::znbrowser::onTree {handler tree args} {
    variable numberOf
    if {![info exists numberOf($tree)]} {return 1}
    if {[host busy]} {return [waitForHost $numberOf($tree) $handler $tree {*}$args]}
    set done [$handler $numberOf($tree) {*}$args]
    return [expr {$done ne "header"}]
}

# What is done to rows while the host works for who types is more urgent than that: it is given up, done later, and this
# is done first. What only moves the pointer is not done at all.
proc ::znbrowser::waitForHost {n handler tree args} {
    upvar #0 ::znbrowser::window$n w
    if {$handler in {motion leave drag}} {return 1}
    if {[info exists w(typing)] && $handler ne "resized"} {
        host cancel
        searchSoon $n 300
    }
    after 10 [list ::znbrowser::onTree $handler $tree {*}$args]
    return 1
}

# What lies at a point: a dictionary of where (item, header or nothing) and, on a row, the slot, the row, the
# column's number and name, and the element: its kind, its place in the cell, and its name.
proc ::znbrowser::pointed {n x y} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) identify -array at $x $y
    set found [dict create where $at(where) kind "" place -1 element "" text ""]
    if {$at(where) eq "header" && [info exists w(number,$at(column))]} {dict set found number $w(number,$at(column))}
    if {$at(where) ne "item" || ![info exists w(slot,$at(item))]} {return $found}
    set slot $w(slot,$at(item))
    dict set found slot $slot
    dict set found row [lindex $w(page) $slot]
    if {![info exists w(number,$at(column))]} {
        dict set found where tail
        return $found
    }
    set number $w(number,$at(column))
    dict set found column [dict get [lindex $w(columns) $number] name]
    if {$at(element) in {expander icon}} {dict set found kind $at(element)}
    set cell [lsearch -exact -integer -inline -index 0 [lindex [dict get $found row] 11] $number]
    if {[regexp {^(text|found|null|icon|disabled|check|button)(\d+)} $at(element) -> kind place]} {
        dict set found kind $kind
        dict set found place $place
    } else {
        set place 0
    }
    lassign [lindex $cell [expr {$place + 1}]] - text - element
    dict set found text $text
    dict set found element $element
    return $found
}

# ---- The left button

proc ::znbrowser::press {n x y state args} {
    upvar #0 ::znbrowser::window$n w
    focus $w(tree)
    hideTip $n
    flush $n
    set at [pointed $n $x $y]
    unset -nocomplain w(pressed)
    if {[dict get $at where] eq "header"} {return header}
    if {![dict exists $at row]} return
    set row [dict get $at row]
    set w(pressed) [dict create at $at x $x y $y state $state later 0]
    if {![dict exists $at column]} {dict set at column [firstColumn $n]} ;# behind the last one
    switch [dict get $at kind] {
        expander {toggle $n $row}
        check {
            setActive $n [lindex $row 0]
            event $n OnTkTreeCheckBoxClick [dict get $at column] [dict get $at element] [lindex $row 0] \
                [expr {[dict get $at text] eq "true" ? "false" : "true"}]
        }
        button {}
        default {
            pressRow $n $row $state
            if {![isOpen $n]} return
            event $n OnTkTreeLeftHandClick [dict get $at column] [dict get $at element] [lindex $row 0]
        }
    }
}

# A click that selects. On a row that is selected already the others are deselected only when the button is
# let go: until then it may be the beginning of a drag.
proc ::znbrowser::pressRow {n row state} {
    upvar #0 ::znbrowser::window$n w
    set index [lindex $row 0]
    if {$state & 1} {
        selectTo $n $index
    } elseif {$state & 4} {
        set w(anchor) $index
        setActive $n $index
        selectRows $n [expr {[lindex $row 6] ? "OnTkTreeRequestDeselect" : "OnTkTreeRequestSelect"}] $index
    } else {
        set w(anchor) $index
        setActive $n $index
        if {[lindex $row 6]} {
            dict set w(pressed) later 1
        } else {
            selectRows $n OnTkTreeRequestSelectionUpdate $index
        }
    }
}

proc ::znbrowser::pressTwice {n x y args} {
    flush $n
    set at [pointed $n $x $y]
    if {[dict get $at where] eq "header"} {return header}
    if {![dict exists $at row]} return
    if {[dict get $at kind] in {check button expander}} {
        return [press $n $x $y {*}$args]
    }
    if {[lindex [dict get $at row] 7]} {toggle $n [dict get $at row]}
}

proc ::znbrowser::release {n x y args} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(pressed)]} {
        after idle [list ::znbrowser::columnsResized $n]
        return header
    }
    set pressed $w(pressed)
    unset w(pressed)
    if {[dict exists $pressed dragging]} {
        drop $n $x $y
        return
    }
    set before [dict get $pressed at]
    set row [dict get $before row]
    if {[dict get $before kind] eq "button"} {
        set at [pointed $n $x $y]
        if {[dict exists $at row] && [lindex [dict get $at row] 0] == [lindex $row 0]
                && [dict get $at kind] eq "button" && [dict get $at place] == [dict get $before place]} {
            if {[lindex $row 10] eq "note"} {return [readAgain $n]}
            event $n OnTkTreeWindowButtonClick [dict get $at column] [dict get $at element] \
                [lindex $row 0] [dict get $at text]
        }
    } elseif {[dict get $pressed later]} {
        selectRows $n OnTkTreeRequestSelectionUpdate [lindex $row 0]
    }
}

# ---- Selecting and opening

# Tells the host what to select, and that this was all.
proc ::znbrowser::selectRows {n event args} {
    upvar #0 ::znbrowser::window$n w
    if {$args ne ""} {selectBy $n [list $event $w(name) {*}$args]}
}

proc ::znbrowser::selectBy {n words} {
    upvar #0 ::znbrowser::window$n w
    if {[fromCollector $n click none] ne "none"} {reportScroll $n} ;# it may become a step
    tell $n $words
    if {[isOpen $n]} {event $n OnTkTreeSelectionChangeFinished}
}

# Selects from the anchor to that row.
proc ::znbrowser::selectTo {n index} {
    upvar #0 ::znbrowser::window$n w
    set from [host position $n $w(anchor)]
    set to [host position $n $index]
    setActive $n $index
    if {$from < 0 || [dict get $w(look) single]} {
        set w(anchor) $index
        set from $to
    }
    selectRows $n OnTkTreeRequestSelectionUpdate \
        {*}[host indices $n [expr {min($from, $to)}] [expr {abs($from - $to) + 1}]]
}

proc ::znbrowser::setActive {n index} {
    upvar #0 ::znbrowser::window$n w
    if {$w(active) == $index} return
    set w(active) $index
    changed $n active 0
}

# Opens or closes a row.
proc ::znbrowser::toggle {n row} {
    if {[lindex $row 10] eq "note"} {
        readAgain $n
    } elseif {[lindex $row 5]} {
        event $n OnTkTreeRequestCollapse [lindex $row 0]
    } elseif {[lindex $row 7]} {
        event $n OnTkTreeRequestExpand [lindex $row 0]
    }
}

# ---- Motion

proc ::znbrowser::motion {n x y state rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    set at [pointed $n $x $y]
    hover $n [expr {[dict exists $at slot] ? [dict get $at slot] : -1}]
    if {[dict get $at where] eq "header"} {
        hideTip $n
        return header
    }
    # The tree widget knows nothing of rows; but it shall notice that its headers were left.
    TreeCtrl::CursorCheck $w(tree) $x $y
    TreeCtrl::MotionInHeader $w(tree) $x $y
    pointTip $n $x $y $rootX $rootY
}

proc ::znbrowser::hover {n slot} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(hover)] && $w(hover) == $slot} return
    if {[info exists w(hover)] && $w(hover) >= 0} {$w(tree) item state set $w(item,$w(hover)) {!hover !pointed}}
    set w(hover) $slot
    if {$slot >= 0} {$w(tree) item state set $w(item,$slot) hover}
    preselect $n
}

proc ::znbrowser::leave {n} {
    upvar #0 ::znbrowser::window$n w
    hover $n -1
    if {!$w(menu)} {hideTip $n} ;# a menu that opens takes the pointer, and has tips of its own
    return header
}

proc ::znbrowser::wheel {n rows} {
    upvar #0 ::znbrowser::window$n w
    flush $n
    hideTip $n
    scrollTo $n [expr {$w(first) + $rows}]
}

# ---- Drag and drop

# With the button down: a drag begins as soon as the mouse has moved a little.
proc ::znbrowser::drag {n x y args} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(pressed)]} {return header}
    set pressed $w(pressed)
    if {[dict get $pressed at kind] in {check button expander}} return
    if {![dict exists $pressed dragging]} {
        if {abs($x - [dict get $pressed x]) + abs($y - [dict get $pressed y]) < 6} return
        dict set w(pressed) dragging 1
        dict set w(pressed) later 0
        $w(tree) configure -cursor fleur
    }
    if {$y < [lindex [$w(tree) contentbox] 1]} {scrollTo $n [expr {$w(first) - 1}]}
    if {$y > [winfo height $w(tree)]} {scrollTo $n [expr {$w(first) + 1}]}
    set at [pointed $n $x $y]
    markDrop $n [expr {[dict exists $at slot] ? [dict get $at slot] : -1}]
}

# Shows onto which row would be dropped.
proc ::znbrowser::markDrop {n slot} {
    upvar #0 ::znbrowser::window$n w
    foreach key [array names w item,*] {
        $w(tree) item state set $w($key) [expr {$key eq "item,$slot" ? "drop" : "!drop"}]
    }
}

# The selected rows are dropped, onto any row that is not one of them.
proc ::znbrowser::drop {n x y} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) configure -cursor {}
    markDrop $n -1
    set at [pointed $n $x $y]
    if {![dict exists $at row]} return
    set target [lindex [dict get $at row] 0]
    set dragged [host selected $n]
    if {$dragged eq "" || $target in $dragged} return
    event $n OnTkTreeSetDropItem $target {*}$dragged
}

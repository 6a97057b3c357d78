# The popup menu of rows: when it opens and closes. What stands in it is made in menu_entries.tcl.
#
#   menu           the number of the menu that is open; 0 while there is none
#   menus          how many have been opened
#
# Scripts run when a menu opens, while it is open and when an entry is chosen; each may close the window, or delete
# the menu. Tk's own procedures go on with a menu after they unposted it: so the host hears that it closed a moment
# later, and no script runs before that.

# The menu of a window, for scripts and tests.
proc ::znbrowser::popup {name} {return [set ::znbrowser::window[number $name](path)].popup}

proc ::znbrowser::pressRight {n x y state rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    focus $w(tree)
    hideTip $n
    flush $n
    set at [pointed $n $x $y]
    if {[dict get $at where] eq "header"} {
        openChooser $n $rootX $rootY
        return
    }
    if {![dict exists $at row]} {return [openMenuAside $n $rootX $rootY]}
    if {![dict exists $at column]} {dict set at column [firstColumn $n]}
    openMenu $n [dict get $at row] [dict get $at column] $rootX $rootY
}

# The name of the first column that is shown.
proc ::znbrowser::firstColumn {n} {
    upvar #0 ::znbrowser::window$n w
    return [dict get [lindex $w(columns) [lindex $w(shown) 0]] name]
}

# By the keyboard: below the row with the focus, or at the top where there is none. The first entry is the active one.
proc ::znbrowser::menuAtActive {n} {
    upvar #0 ::znbrowser::window$n w
    hideTip $n
    set row [activeRow $n]
    set slot [expr {$row eq "" ? -1 : [slotOf $n [lindex $row 0]]}]
    set x [expr {[winfo rootx $w(tree)] + 24}]
    if {$slot < 0} {
        openMenuAside $n $x [expr {[winfo rooty $w(tree)] + [lindex [$w(tree) contentbox] 1]}]
    } else {
        lassign [$w(tree) item bbox $w(item,$slot)] x1 y1 x2 y2
        openMenu $n $row [firstColumn $n] [expr {$x + $x1}] [expr {[winfo rooty $w(tree)] + $y2}]
    }
    if {[isOpen $n] && $w(menu)} {tk::MenuFirstEntry $w(path).popup}
}

# A menu is about the selected rows, the clicked one before the others; a click on another row selects that one first.
proc ::znbrowser::openMenu {n row column rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    set index [lindex $row 0]
    closeMenu $n
    if {![isOpen $n]} return
    setActive $n $index
    if {![lindex $row 6]} {
        set w(anchor) $index
        selectRows $n OnTkTreeRequestSelectionUpdate $index
        if {![isOpen $n]} return
    }
    set rows [host selected $n]
    set others [lsearch -all -inline -not -exact -integer $rows $index]
    if {[llength $others] == [llength $rows]} {set others {}} ;# the row could not be selected: it is about that one
    event $n OnTkTreeRightHandClick $column $index {*}$others
    if {[isOpen $n]} {showMenu $n $index $column $rootX $rootY}
}

# Beside all rows: about the selected ones, without a column.
proc ::znbrowser::openMenuAside {n rootX rootY} {
    closeMenu $n
    if {![isOpen $n]} return
    host aside $n
    showMenu $n -1 "" $rootX $rootY
}

proc ::znbrowser::showMenu {n index column rootX rootY} {
    upvar #0 ::znbrowser::window$n w
    set w(menu) [incr w(menus)]
    event $n OnTkTreePopupMenu true
    if {![isOpen $n]} return
    flush $n
    if {![isOpen $n] || !$w(menu)} return ;# what runs before a menu is shown may have deleted it
    fillMenu $n [rowOfIndex $n $index] $column
    popupAt $w(path).popup $rootX $rootY
}

# The row of a Tk index; empty when there is none any more.
proc ::znbrowser::rowOfIndex {n index} {
    set position [host position $n $index]
    if {$position < 0} return
    return [rowAt $n $position]
}

proc ::znbrowser::fillMenu {n row column} {
    upvar #0 ::znbrowser::window$n w
    set menu [newMenu $n $w(path).popup]
    bind $menu <Unmap> [list after idle [list ::znbrowser::menuClosed $n $w(menu)]]
    set entries [host popup $n]
    if {$entries eq ""} {set entries [operationEntries $n]}
    set own [standardEntries $n $row $column]
    if {$entries ne "" && $own ne ""} {set own [linsert $own 0 {kind separator}]}
    addEntries $n $menu $entries $own
}

proc ::znbrowser::popupAt {menu rootX rootY} {tk_popup $menu $rootX $rootY}

# An entry was chosen: the host looks for its item again.
proc ::znbrowser::perform {n item value} {
    if {[isOpen $n]} {event $n OnTkTreePerformPopupOperation $item $value}
}

# ---- Closing

# The menu has gone from the screen. Only the one that is open: another may have opened since.
proc ::znbrowser::menuClosed {n menu} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || $w(menu) != $menu} return
    hideHelp $n
    set w(menu) 0
    set message [$w(path).status.message cget -text]
    event $n OnTkTreePopupMenu false
    # What was chosen may have been refused: the reason stays.
    if {[isOpen $n] && [$w(path).status.message cget -text] eq ""} {say $n $message}
}

# Closes the menu that is open, if there is one, and tells the host.
proc ::znbrowser::closeMenu {n} {
    upvar #0 ::znbrowser::window$n w
    if {!$w(menu)} return
    unpostMenu $n
    menuClosed $n $w(menu)
}

# The host has closed the menu: an item of it is gone.
proc ::znbrowser::dropMenu {n} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(menu)] || !$w(menu)} return
    set w(menu) 0
    if {![isOpen $n]} return
    unpostMenu $n
    hideHelp $n
}

# Takes the menu off the screen; Tk would keep the mouse and the keyboard for one that is destroyed.
proc ::znbrowser::unpostMenu {n} {
    upvar #0 ::znbrowser::window$n w
    if {[stands $w(path).popup] && [winfo ismapped $w(path).popup]} {tk::MenuUnpost $w(path).popup}
}

# The chooser of columns: a list that can be searched, scrolled and ordered, and that stays open.
#
#   offered   in some windows: the names of the columns that are offered; else all are
#   choices   in some windows: pairs of a value and a text, to be chosen between, and `choose` is called with the value
#   choice    which of them holds
#   chooserAt where on the screen it opens; as a rule below its button

# The button beside the search field.
proc ::znbrowser::buildChooser {n bar} {
    ttk::button $bar.columns -text "Columns" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::openChooser $n]
    ttk::button $bar.expand -text "Expand all" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::command $n window expandall]
    ttk::button $bar.collapse -text "Collapse all" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::command $n window collapseall]
    pack $bar.columns $bar.collapse $bar.expand -side right -padx {6 0}
}

# The chooser of a window, for scripts and tests.
proc ::znbrowser::chooser {name} {return [set ::znbrowser::window[number $name](path)].chooser}

# Opens the chooser; one that is open comes to the front.
proc ::znbrowser::openChooser {n {rootX ""} {rootY ""}} {
    upvar #0 ::znbrowser::window$n w
    set w(chooserAt) [list $rootX $rootY]
    if {[winfo exists $w(path).chooser]} {return [showChooser $n]}
    switchAid $n chooser true
}

proc ::znbrowser::closeChooser {n} {switchAid $n chooser false}

proc ::znbrowser::hideChooser {n} {
    upvar #0 ::znbrowser::window$n w
    destroy $w(path).chooser
    focus $w(tree)
}

proc ::znbrowser::showChooser {n} {
    upvar #0 ::znbrowser::window$n w
    set top $w(path).chooser
    lassign $w(chooserAt) rootX rootY
    if {![winfo exists $top]} {makeChooser $n $top}
    ttk::style configure Chooser.Treeview -rowheight [rowHeight] -background [colour paper] \
        -fieldbackground [colour paper] -foreground [colour text]
    ttk::style map Chooser.Treeview -background [list selected [colour chosen]] -foreground [list selected [colour text]]
    fillChooser $n
    if {$rootX eq ""} {
        set button [winfo parent $w(searchField)].columns
        set rootX [winfo rootx $button]
        set rootY [expr {[winfo rooty $button] + [winfo height $button] + 2}]
    }
    update idletasks
    set x [expr {max(0, min($rootX, [winfo screenwidth $top] - [winfo reqwidth $top]))}]
    set y [expr {max(0, min($rootY, [winfo screenheight $top] - [winfo reqheight $top]))}]
    wm geometry $top +$x+$y
    wm deiconify $top
    raise $top
    focus $top.search
}

proc ::znbrowser::makeChooser {n top} {
    upvar #0 ::znbrowser::window$n w
    set w(wanted) ""
    toplevel $top -background [colour surface]
    wm withdraw $top
    wm title $top "Columns"
    wm transient $top [winfo toplevel $w(path)]
    wm protocol $top WM_DELETE_WINDOW [list ::znbrowser::closeChooser $n]
    ttk::entry $top.search -style Search.TEntry -textvariable ::znbrowser::window${n}(wanted) -width 30
    ttk::frame $top.choice -style Browser.TFrame
    ttk::frame $top.list -style Browser.TFrame
    ttk::treeview $top.list.tree -style Chooser.Treeview -show tree -selectmode browse -height 14 \
        -yscrollcommand [list $top.list.y set]
    ttk::scrollbar $top.list.y -orient vertical -command [list $top.list.tree yview]
    pack $top.list.y -side right -fill y
    pack $top.list.tree -side left -fill both -expand 1
    ttk::frame $top.buttons -style Browser.TFrame
    foreach {button text command} [list all All [list ::znbrowser::chooseAll $n true] \
            none None [list ::znbrowser::chooseAll $n false] close Close [list ::znbrowser::closeChooser $n]] {
        ttk::button $top.buttons.$button -text $text -style Tool.TButton -command $command
    }
    pack $top.buttons.all $top.buttons.none -side left -padx {0 6}
    pack $top.buttons.close -side right
    pack $top.search -side top -fill x -padx 8 -pady {8 4}
    pack $top.choice -side top -fill x -padx 8
    pack $top.buttons -side bottom -fill x -padx 8 -pady {4 8}
    pack $top.list -side top -fill both -expand 1 -padx 8
    trace remove variable ::znbrowser::window${n}(wanted) write [list ::znbrowser::refillChooser $n]
    trace add variable ::znbrowser::window${n}(wanted) write [list ::znbrowser::refillChooser $n]
    bind $top <Escape> [list ::znbrowser::closeChooser $n]
    bind $top.search <Down> [list focus $top.list.tree]
    bindChooserList $n $top.list.tree
}

proc ::znbrowser::bindChooserList {n tree} {
    bind $tree <space> "[list ::znbrowser::chooseFocused $n]; break"
    bind $tree <Return> "[list ::znbrowser::chooseFocused $n]; break"
    bind $tree <ButtonPress-1> "[list ::znbrowser::pressChoice $n]\ %x %y"
    bind $tree <B1-Motion> "[list ::znbrowser::dragChoice $n]\ %x %y; break"
    bind $tree <ButtonRelease-1> "[list ::znbrowser::dropChoice $n]\ %x %y"
    foreach {key step} {Up -1 Down 1} {
        bind $tree <Alt-$key> "[list ::znbrowser::moveFocused $n $step]; break"
    }
}

# ---- What stands in it

proc ::znbrowser::refillChooser {n args} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n] && [winfo exists $w(path).chooser]} {fillChooser $n}
}

# The numbers of the columns that are offered, but for the one with the tree, which stays.
proc ::znbrowser::offeredColumns {n} {
    upvar #0 ::znbrowser::window$n w
    set numbers {}
    set number -1
    foreach column $w(columns) {
        incr number
        if {[dict get $column tree]} continue
        if {[info exists w(offered)] && [dict get $column name] ni $w(offered)} continue
        lappend numbers $number
    }
    return $numbers
}

# One line for each column whose caption has the text that is looked for. Its place in the list is kept.
proc ::znbrowser::fillChooser {n} {
    upvar #0 ::znbrowser::window$n w
    set top $w(path).chooser
    fillChoices $n $top.choice
    set tree $top.list.tree
    set wanted [string tolower $w(wanted)]
    set at [lindex [$tree yview] 0]
    set focus [$tree focus]
    $tree delete [$tree children {}]
    foreach number [offeredColumns $n] {
        set column [lindex $w(columns) $number]
        set caption [oneLine [dict get $column caption]]
        if {$wanted ne "" && [string first $wanted [string tolower $caption]] < 0} continue
        $tree insert {} end -id $number -text " $caption" \
            -image [checkImage [expr {[dict get $column shown] ? "true" : "false"}]]
    }
    if {$focus eq "" || ![$tree exists $focus]} {set focus [lindex [$tree children {}] 0]}
    if {$focus ne ""} {
        $tree focus $focus
        $tree selection set [list $focus]
    }
    $tree yview moveto $at
}

proc ::znbrowser::fillChoices {n frame} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(choices)] || [winfo children $frame] ne ""} return
    foreach {value text} $w(choices) {
        ttk::radiobutton $frame.$value -text $text -variable ::znbrowser::window${n}(choice) -value $value \
            -command [list {*}$w(choose) $value]
        pack $frame.$value -side left -padx {0 10} -pady {0 4}
    }
}

# ---- What is chosen

proc ::znbrowser::showColumn {n number shown} {
    upvar #0 ::znbrowser::window$n w
    columnCommand $n [dict get [lindex $w(columns) $number] name] view column show $shown
}

proc ::znbrowser::chooseFocused {n} {
    upvar #0 ::znbrowser::window$n w
    set number [$w(path).chooser.list.tree focus]
    if {$number eq ""} return
    showColumn $n $number [expr {[dict get [lindex $w(columns) $number] shown] ? "false" : "true"}]
}

# All columns that are listed: where something is looked for, those with that text.
proc ::znbrowser::chooseAll {n shown} {
    upvar #0 ::znbrowser::window$n w
    foreach number [$w(path).chooser.list.tree children {}] {
        if {[dict get [lindex $w(columns) $number] shown] == $shown} continue
        if {![showColumn $n $number $shown]} return
    }
}

# ---- The order

proc ::znbrowser::pressChoice {n x y} {
    upvar #0 ::znbrowser::window$n w
    set w(grabbed) [$w(path).chooser.list.tree identify row $x $y]
    set w(carried) 0
}

proc ::znbrowser::dragChoice {n x y} {
    upvar #0 ::znbrowser::window$n w
    set tree $w(path).chooser.list.tree
    set over [$tree identify row $x $y]
    if {![info exists w(grabbed)] || $w(grabbed) eq "" || $over in [list "" $w(grabbed)]} return
    set w(carried) 1
    $tree move $w(grabbed) {} [$tree index $over]
}

# A click turns the check box over; what was dragged goes in front of the column that now stands behind it.
proc ::znbrowser::dropChoice {n x y} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(grabbed)]} return
    set number $w(grabbed)
    unset w(grabbed)
    if {$number eq ""} return
    if {$w(carried)} {
        placeColumn $n $number
    } elseif {[$w(path).chooser.list.tree identify row $x $y] eq $number} {
        chooseFocused $n
    }
}

proc ::znbrowser::moveFocused {n step} {
    upvar #0 ::znbrowser::window$n w
    set tree $w(path).chooser.list.tree
    set number [$tree focus]
    if {$number eq ""} return
    $tree move $number {} [expr {max(0, [$tree index $number] + $step)}]
    placeColumn $n $number
}

# The column stands where its line does: behind the one above it, or in front of the first.
proc ::znbrowser::placeColumn {n number} {
    upvar #0 ::znbrowser::window$n w
    set tree $w(path).chooser.list.tree
    set above [$tree prev $number]
    set below [$tree next $number]
    if {$above ne ""} {
        set to [expr {$above < $number ? $above + 1 : $above}]
    } elseif {$below ne ""} {
        set to [expr {$below > $number ? $below - 1 : $below}]
    } else {
        return
    }
    if {$to == $number} return
    set w(placed) [dict get [lindex $w(columns) $number] name]
    columnCommand $n $w(placed) view column move $to
}

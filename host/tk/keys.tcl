# The keyboard on rows.

proc ::znbrowser::bindKeys {} {
    foreach {key step} {
        Up {rows -1} Down {rows 1} Prior {pages -1} Next {pages 1} Home {first 0} End {last 0}
    } {
        foreach {modifier how} {{} select Shift- extend Control- move} {
            bind znBrowserTree <${modifier}Key-$key> "::znbrowser::onTree go %W $how $step; break"
        }
    }
    foreach {key handler} {
        Right openOrEnter Left closeOrLeave plus openRow KP_Add openRow minus closeRow KP_Subtract closeRow
        asterisk openBelow KP_Multiply openBelow Return toggleActive space typedBlank
        Control-space toggleSelected Control-a selectAll Control-A selectAll
        Control-c copySelected Control-C copySelected Escape clearSearch
        Menu menuAtActive Shift-F10 menuAtActive F4 toggleDetails F5 readAgain
    } {
        set modifiers [lrange [split $key -] 0 end-1]
        bind znBrowserTree <[join [concat $modifiers Key [lindex [split $key -] end]] -]> \
            "::znbrowser::onTree $handler %W; break"
    }
    foreach {key pages} {Left -1 Right 1} {
        bind znBrowserTree <Control-Key-$key> "::znbrowser::onTree scrollSideways %W scroll $pages pages; break"
    }
    bind znBrowserTree <Key> {if {[::znbrowser::onTree typed %W %A %s]} break}
    bind znBrowserTree <Control-Key-f> {::znbrowser::onTree focusSearch %W; break}
    foreach key {f F} {bind znBrowserTree <Control-Shift-Key-$key> {::znbrowser::onTree switchScope %W; break}}
    foreach sequence {<Tab> <Shift-Tab> <<PrevWindow>> <<NextWindow>>} {
        bind znBrowserTree $sequence {continue}
    }
}

# Keys of the window as a whole, wherever the focus is; those in the second table in fields, too.
proc ::znbrowser::bindWindowKeys {} {
    foreach {keys handler inFields} {
        {Control-Key-k Control-Key-K} toggleCollector 0
        {Control-Key-z Control-Key-Z} undoStep 0 {Control-Shift-Key-z Control-Shift-Key-Z} restoreStep 0
        {Control-Key-plus Control-Key-equal Control-Key-KP_Add Control-ButtonPress-4} zoomIn 1
        {Control-Key-minus Control-Key-KP_Subtract Control-ButtonPress-5} zoomOut 1
        {Control-Key-0 Control-Key-KP_0} zoomBack 1 Key-F1 showKeys 1
    } {
        foreach key $keys {bind znBrowserWindow <$key> "if {\[::znbrowser::atKey %W $handler $inFields\]} break"}
    }
    foreach key {a A} {bind znBrowserField <Control-Key-$key> {%W selection range 0 end; %W icursor end; break}}
}

# The widget and those in it have these keys; they go before what else is done with a key.
proc ::znbrowser::takeWindowKeys {widget} {
    set tags [bindtags $widget]
    if {[winfo class $widget] eq "TButton"} {$widget configure -takefocus ttk::takefocus}
    if {"znBrowserWindow" ni $tags} {
        set own [expr {[isField $widget] ? {znBrowserWindow znBrowserField} : {znBrowserWindow}}]
        bindtags $widget [linsert $tags 1 {*}$own]
    }
    foreach child [winfo children $widget] {takeWindowKeys $child}
}

# Fields of dialogs have keys of their own only.
proc ::znbrowser::takeFieldKeys {widget} {
    foreach child [winfo children $widget] {
        if {[isField $child]} {bindtags $child [linsert [bindtags $child] 1 znBrowserField]}
    }
}

proc ::znbrowser::isField {widget} {expr {[winfo class $widget] in {TEntry TSpinbox TCombobox}}}

# A key of the window in which a widget stands. Answers whether it was for the window.
proc ::znbrowser::atKey {widget handler inFields} {
    variable numberOf
    if {!$inFields && [isField $widget]} {return 0}
    for {set path $widget} {$path ne ""} {set path [winfo parent $path]} {
        if {![info exists numberOf($path)]} continue
        $handler $numberOf($path)
        return 1
    }
    return 0
}

# The position of the row with the focus; where there is none, of the first row on the screen.
proc ::znbrowser::activePosition {n} {
    upvar #0 ::znbrowser::window$n w
    flush $n
    set position [host position $n $w(active)]
    return [expr {$position < 0 ? $w(first) : $position}]
}

proc ::znbrowser::activeRow {n} {return [rowAt $n [activePosition $n]]}

# Moves the focus: and selects that row, or up to that row, or nothing.
proc ::znbrowser::go {n how unit amount} {
    upvar #0 ::znbrowser::window$n w
    set last [expr {[dict get $w(look) rows] - 1}]
    if {$last < 0} return
    set known [expr {[host position $n $w(active)] >= 0}]
    set position [activePosition $n]
    switch $unit {
        rows {if {$known} {incr position $amount}}
        pages {incr position [expr {$amount * max(1, $w(full) - 1)}]}
        first {set position 0}
        last {set position $last}
    }
    goTo $n $how [expr {max(0, min($position, $last))}]
}

proc ::znbrowser::goTo {n how position} {
    upvar #0 ::znbrowser::window$n w
    set index [host indices $n $position 1]
    if {$index eq ""} return
    if {$position < $w(first)} {scrollTo $n $position}
    if {$position >= $w(first) + $w(full)} {scrollTo $n [expr {$position - $w(full) + 1}]}
    switch $how {
        extend {selectTo $n $index}
        move {setActive $n $index}
        select {
            setActive $n $index
            set w(anchor) $index
            selectRows $n OnTkTreeRequestSelectionUpdate $index
        }
    }
}

# ---- Opening and closing

proc ::znbrowser::openRow {n} {
    set row [activeRow $n]
    if {$row ne "" && ![lindex $row 5]} {toggle $n $row}
}

proc ::znbrowser::closeRow {n} {
    set row [activeRow $n]
    if {$row ne "" && [lindex $row 5]} {toggle $n $row}
}

proc ::znbrowser::toggleActive {n} {
    set row [activeRow $n]
    if {$row ne ""} {toggle $n $row}
}

proc ::znbrowser::openOrEnter {n} {
    set row [activeRow $n]
    if {$row eq ""} return
    if {[lindex $row 5]} {
        goTo $n select [expr {[activePosition $n] + 1}]
    } else {
        toggle $n $row
    }
}

proc ::znbrowser::closeOrLeave {n} {
    set row [activeRow $n]
    if {$row eq ""} return
    if {[lindex $row 5]} {
        toggle $n $row
    } elseif {[lindex $row 1] >= 0} {
        goTo $n select [host position $n [lindex $row 1]]
    }
}

# Opens all that lies below the row with the focus.
proc ::znbrowser::openBelow {n} {
    upvar #0 ::znbrowser::window$n w
    set row [activeRow $n]
    if {$row eq ""} return
    if {![lindex $row 6]} {selectRows $n OnTkTreeRequestSelectionUpdate [lindex $row 0]}
    if {[isOpen $n]} {command $n window expandselected}
}

# ---- Selecting

proc ::znbrowser::selectActive {n} {goTo $n select [activePosition $n]}

proc ::znbrowser::toggleSelected {n} {
    set row [activeRow $n]
    if {$row eq ""} return
    set event [expr {[lindex $row 6] ? "OnTkTreeRequestDeselect" : "OnTkTreeRequestSelect"}]
    selectRows $n $event [lindex $row 0]
}

proc ::znbrowser::selectAll {n} {
    upvar #0 ::znbrowser::window$n w
    flush $n
    if {[dict get $w(look) single]} return
    selectBy $n [list app select all $w(name)]
}

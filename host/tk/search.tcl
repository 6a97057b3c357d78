# The search field: it filters as one types, and Enter goes from match to match.

proc ::znbrowser::buildSearch {n bar} {
    upvar #0 ::znbrowser::window$n w
    set w(search) ""
    set w(searchField) $bar.search
    ttk::label $bar.glass -image znbrowser::image::search
    ttk::entry $bar.search -style Search.TEntry -width 34 -textvariable ::znbrowser::window${n}(search)
    ttk::button $bar.clear -text "Clear" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::clearSearch $n]
    pack $bar.glass $bar.search -side left -padx {0 6}
    bind $bar.search <Return> [list ::znbrowser::findNext $n next]
    bind $bar.search <Shift-Return> [list ::znbrowser::findNext $n previous]
    bind $bar.search <Escape> [list ::znbrowser::clearSearch $n]
    bind $bar.search <Down> [list ::znbrowser::focusTree $n]
    trace add variable ::znbrowser::window${n}(search) write [list ::znbrowser::searchChanged $n]
}

# The field has another text: it can be cleared, or not. Filtering waits until the fingers rest.
proc ::znbrowser::searchChanged {n args} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,search)]} {after cancel $w(timer,search)}
    set w(timer,search) [after 120 [list ::znbrowser::applySearch $n]]
    set bar [winfo parent $w(searchField)]
    if {$w(search) eq ""} {
        pack forget $bar.clear
    } else {
        pack $bar.clear -side left -after $bar.search
    }
}

# The field for scripts and tests.
proc ::znbrowser::searchField {name} {return [set ::znbrowser::window[number $name](searchField)]}

proc ::znbrowser::focusTree {n} {
    upvar #0 ::znbrowser::window$n w
    focus $w(tree)
}

proc ::znbrowser::focusSearch {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    focus $w(searchField)
    $w(searchField) selection range 0 end
}

# What matches lies in rows that are not expanded, perhaps: they are, as far as a moment suffices for it.
# When the filter goes, the host expands again what was expanded before; of the rest only the way to what is
# selected stays so.
proc ::znbrowser::applySearch {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,search)]} {after cancel $w(timer,search)}
    unset -nocomplain w(timer,search)
    flush $n
    set text $w(search)
    if {$text eq [dict get $w(look) filter]} return
    if {$text eq ""} {host prune $n}
    if {![command $n view filter string current $text]} return
    if {$text ne ""} {
        host begin $n
        host time 300
        command $n window expandall
        host end
    }
    flush $n
}

# The view's filter is another one: the field shows it, unless somebody is typing in it.
proc ::znbrowser::followSearch {n} {
    upvar #0 ::znbrowser::window$n w
    if {![dict exists $w(look) filter] || [info exists w(timer,search)]} return
    set filter [dict get $w(look) filter]
    if {$w(search) ne $filter} {set w(search) $filter}
}

proc ::znbrowser::clearSearch {n} {
    upvar #0 ::znbrowser::window$n w
    set w(search) ""
    applySearch $n
    if {[isOpen $n]} {focus $w(tree)}
}

# Goes to the next match, or to the one before: by the window's find request, for the text in the field.
proc ::znbrowser::findNext {n direction} {
    upvar #0 ::znbrowser::window$n w
    applySearch $n
    if {![isOpen $n] || $w(search) eq ""} return
    foreach words {
        {window find property add Name} {window find property current Name}
    } {
        if {![command $n {*}$words]} return
    }
    # Choosing the window anew would choose the first property again.
    foreach words [list [list window find property criterion value $w(search)] \
            [list window find type $direction] {window find perform}] {
        if {![tell $n $words]} return
    }
}

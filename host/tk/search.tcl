# The search field: it filters as one types, and Enter goes from match to match.
#
# What matches is found before the filter is set, a little at a time: so a key is heard at any moment, and the next
# letter begins anew. As soon as there is a page of matches the filter is set, and shows them; the others follow.
#
#   search         the text in the field
#   seeking        while the host searches: a dictionary of the text, since when, how many rows were looked at, how
#                  many are found, and whether those are shown already
#   named          in some windows: the command that answers labels and commands for what bears a text in its name
#   typing         exists while the host does what is waited for by somebody who types

namespace eval ::znbrowser {
    variable expandTime 300 ;# milliseconds to open what matches
}

proc ::znbrowser::buildSearch {n bar} {
    upvar #0 ::znbrowser::window$n w
    set w(search) ""
    set w(searchField) $bar.search
    ttk::label $bar.glass -image znbrowser::image::search
    ttk::entry $bar.search -style Search.TEntry -width 30 -textvariable ::znbrowser::window${n}(search)
    ttk::button $bar.scope -style Tool.TButton -takefocus 0 -command [list ::znbrowser::switchScope $n]
    ttk::button $bar.clear -text "Clear" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::clearSearch $n]
    pack $bar.glass $bar.search $bar.scope -side left -padx {0 6}
    bind $bar.search <Return> [list ::znbrowser::findNext $n next]
    bind $bar.search <Shift-Return> [list ::znbrowser::findNext $n previous]
    bind $bar.search <Escape> [list ::znbrowser::clearSearch $n]
    bind $bar.search <Down> [list ::znbrowser::focusTree $n]
    foreach key {f F} {bind $bar.search <Control-Shift-$key> "[list ::znbrowser::switchScope $n]; break"}
    trace add variable ::znbrowser::window${n}(search) write [list ::znbrowser::searchChanged $n]
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

# Does something for who types; what is typed meanwhile cancels it. Answers whether it was done to the end.
proc ::znbrowser::quietly {n script} {
    upvar #0 ::znbrowser::window$n w
    host quietly $n
    set w(typing) 1
    try {
        uplevel 1 $script
    } finally {
        set cancelled [host end]
        unset -nocomplain w(typing)
    }
    return [expr {!$cancelled && [isOpen $n]}]
}

# ---- Typing

# The field has another text: what was searched for until now is not wanted any more.
proc ::znbrowser::searchChanged {n args} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(typing)] && [host busy]} {host cancel}
    stopSeeking $n
    searchSoon $n 60
    set bar [winfo parent $w(searchField)]
    if {$w(search) eq ""} {
        pack forget $bar.clear
    } else {
        pack $bar.clear -side left -after $bar.scope
    }
}

proc ::znbrowser::searchSoon {n milliseconds} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,search)]} {after cancel $w(timer,search)}
    set w(timer,search) [after $milliseconds [list ::znbrowser::seek $n]]
}

proc ::znbrowser::stopSeeking {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,seek)]} {after cancel $w(timer,seek)}
    unset -nocomplain w(seeking) w(timer,seek)
}

# Begins to search for what stands in the field. As long as its timer is there the field is not to show the filter.
proc ::znbrowser::seek {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    if {[host busy]} {return [searchSoon $n 30]}
    if {![quietly $n {flush $n}]} {
        if {[isOpen $n]} {searchSoon $n 30}
        return
    }
    unset -nocomplain w(timer,search)
    if {![dict exists $w(look) filter] || $w(search) eq [dict get $w(look) filter]} return
    if {$w(search) eq ""} {return [setFilter $n ""]}
    host search $n $w(search)
    set w(seeking) [dict create text $w(search) since [clock milliseconds] looked 0 found 0 shown 0]
    seekMore $n
}

proc ::znbrowser::seekMore {n} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,seek)
    if {![isOpen $n] || ![info exists w(seeking)]} return
    if {![host busy]} {
        lassign [host searchmore $n] done looked found
        dict set w(seeking) looked $looked
        dict set w(seeking) found $found
        if {$done} {return [showFound $n]}
        showSeeking $n
    }
    if {[info exists w(seeking)]} {set w(timer,seek) [after 1 [list ::znbrowser::seekMore $n]]}
}

# After a moment how far the search has come is seen, and the first page of what it found.
proc ::znbrowser::showSeeking {n} {
    upvar #0 ::znbrowser::window$n w
    set seeking $w(seeking)
    if {[clock milliseconds] - [dict get $seeking since] < 150} return
    if {![dict get $seeking shown] && [dict get $seeking found] > $w(full)} {
        dict set w(seeking) shown 1
        setFilter $n [dict get $seeking text]
    }
    if {[isOpen $n]} {drawStatus $n}
}

# All is found.
proc ::znbrowser::showFound {n} {
    upvar #0 ::znbrowser::window$n w
    set seeking $w(seeking)
    unset w(seeking)
    if {[dict get $seeking shown]} {
        showMatches $n
    } else {
        setFilter $n [dict get $seeking text]
    }
}

# ---- The filter

# Sets the view's filter. What it shows begins at the top; when it goes, what is selected is in sight again.
proc ::znbrowser::setFilter {n text} {
    upvar #0 ::znbrowser::window$n w
    if {$text eq [dict get $w(look) filter]} {return 1}
    set w(active) -1
    set w(first) 0
    set w(page) {}
    set done [quietly $n {
        if {$text eq ""} {pruneRows $n}
        command $n view filter string current $text
    }]
    if {![isOpen $n]} {return 0}
    if {$text ne ""} {
        showMatches $n
    } else {
        showSelected $n
    }
    return $done
}

# What matches lies in rows that are not expanded, perhaps: they are, as far as a moment suffices for it. Which rows the
# filter leaves is found out before that: it takes the time that it takes.
proc ::znbrowser::showMatches {n} {
    upvar #0 ::znbrowser::window$n w
    quietly $n {
        flush $n
        host time $::znbrowser::expandTime
        command $n window expandall
        flush $n
    }
}

# When the filter goes, the host expands again what was expanded before; of the rest only the way to what is
# selected stays so.
proc ::znbrowser::pruneRows {n} {
    upvar #0 ::znbrowser::window$n w
    command $n app prune $w(name)
}

proc ::znbrowser::showSelected {n} {
    upvar #0 ::znbrowser::window$n w
    quietly $n {
        flush $n
        set index [expr {[isOpen $n] ? [host firstselected $n] : 0}]
        if {$index} {
            changed $n shown $index
            flush $n
        }
    }
}

# The view's filter is another one: the field shows it, unless somebody is typing in it.
proc ::znbrowser::followSearch {n} {
    upvar #0 ::znbrowser::window$n w
    if {![dict exists $w(look) filter] || [info exists w(timer,search)] || [info exists w(seeking)]} return
    set filter [dict get $w(look) filter]
    if {$w(search) ne $filter} {set w(search) $filter}
    showScope $n
}

# Everything that was searched for is shown: now, and not as soon as the fingers rest.
proc ::znbrowser::applySearch {n} {
    upvar #0 ::znbrowser::window$n w
    set text $w(search)
    searchSoon $n 300 ;# unless it is done now
    stopSeeking $n
    if {![quietly $n {flush $n}] || ![dict exists $w(look) filter] || $w(search) ne $text} {return 0}
    after cancel $w(timer,search)
    unset w(timer,search)
    return [setFilter $n $w(search)]
}

proc ::znbrowser::clearSearch {n} {
    upvar #0 ::znbrowser::window$n w
    if {[stopFinding $n]} return
    set w(search) ""
    if {[host busy]} return ;# the field was left: the search follows
    applySearch $n
    if {[isOpen $n]} {focus $w(tree)}
}

# Goes to the next match, or to the one before: by the window's find request, for the text in the field.
proc ::znbrowser::findNext {n direction} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    if {[host busy]} {
        after 20 [list ::znbrowser::findNext $n $direction]
        return
    }
    if {![applySearch $n] || ![isOpen $n] || $w(search) eq ""} return
    quietly $n {findMatch $n $direction}
}

proc ::znbrowser::findMatch {n direction} {
    upvar #0 ::znbrowser::window$n w
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

# ---- Where it is searched

# In the names of rows, or in all columns that are shown.
proc ::znbrowser::switchScope {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || [host busy] || ![dict exists $w(look) allcolumns]} return
    set scope [expr {[dict get $w(look) allcolumns] ? "name" : "shown"}]
    stopSeeking $n
    set text $w(search)
    if {[dict get $w(look) filter] ne ""} {setFilter $n ""}
    if {![isOpen $n]} return
    quietly $n {command $n app filter scope [dict get $w(look) view] $scope; flush $n}
    if {![isOpen $n]} return
    showScope $n
    focus $w(searchField)
    set w(search) $text
}

proc ::znbrowser::showScope {n} {
    upvar #0 ::znbrowser::window$n w
    if {![dict exists $w(look) allcolumns]} return
    [winfo parent $w(searchField)].scope configure -text [scopeName $n]
}

proc ::znbrowser::scopeName {n} {
    upvar #0 ::znbrowser::window$n w
    if {[dict get $w(look) allcolumns]} {return "all columns shown"}
    foreach column $w(columns) {
        if {[dict get $column tree]} {return [dict get $column caption]}
    }
}

# ---- Nothing is found

# What says so stands where the rows would, with a way out of it.
proc ::znbrowser::showNoMatch {n} {
    upvar #0 ::znbrowser::window$n w
    set panel $w(path).body.none
    set empty [expr {[dict exists $w(look) filtered] && [dict get $w(look) filtered] && ![dict get $w(look) rows]}]
    if {!$empty || [info exists w(seeking)]} {
        destroy $panel
        return
    }
    if {![winfo exists $panel]} {makeNoMatch $n $panel}
    $panel.text configure -text [noMatchText $n]
    offerNamed $n $panel.named
    if {[dict get $w(look) allcolumns] || [dict get $w(look) filter] eq ""} {
        grid remove $panel.scope
    } else {
        grid $panel.scope
    }
}

proc ::znbrowser::noMatchText {n} {
    upvar #0 ::znbrowser::window$n w
    set text [dict get $w(look) filter]
    set parts [lmap column $w(columns) {
        if {[dict get $column filter] eq ""} continue
        string cat [dict get $column caption] " " [join [dict get $column filter] " "]
    }]
    if {$text ne ""} {set parts [linsert $parts 0 "\"[oneLine $text]\" in [scopeName $n]"]}
    return "no match for [join $parts {, }]"
}

# Nothing in it takes the keyboard: who goes on typing presses none of the buttons.
proc ::znbrowser::makeNoMatch {n panel} {
    upvar #0 ::znbrowser::window$n w
    ttk::frame $panel -style Panel.TFrame -padding {18 14}
    ttk::label $panel.text -style Panel.TLabel -wraplength 360 -justify center
    ttk::button $panel.scope -text "Search all columns shown" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::switchScope $n]
    ttk::button $panel.clear -text "Show all rows" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::clearFilters $n]
    ttk::label $panel.named -style Panel.TLabel
    grid $panel.text -columnspan 2
    grid $panel.scope -row 2 -column 0 -pady {10 0} -padx 4
    grid $panel.clear -row 2 -column 1 -pady {10 0} -padx 4
    place $panel -in $w(path).body -relx 0.5 -rely 0.35 -anchor center
    raise $panel
}

# What bears the text in its own name is no match: `named` is the command that finds it, if there is one, and leads there.
proc ::znbrowser::offerNamed {n frame} {
    upvar #0 ::znbrowser::window$n w
    destroy {*}[winfo children $frame]
    grid forget $frame
    if {![info exists w(named)] || [dict get $w(look) filter] eq ""} return
    foreach {label command} [{*}$w(named) $n [dict get $w(look) filter]] {
        set button $frame.go[llength [winfo children $frame]]
        ttk::button $button -text [oneLine $label] -style Tool.TButton -takefocus 0 -command $command
        pack $button -side top -pady {6 0}
    }
    if {[winfo children $frame] ne ""} {grid $frame -row 1 -columnspan 2}
}

# ---- What matched

# Where in a text of a cell the filter's text stands: its first and last character; empty where it does not.
proc ::znbrowser::foundIn {n text inTree} {
    upvar #0 ::znbrowser::window$n w
    if {![dict exists $w(look) filter]} return
    set pattern [dict get $w(look) filter]
    if {$pattern eq "" || !($inTree || [dict get $w(look) allcolumns])} return
    if {![dict get $w(look) matchcase]} {
        set pattern [string tolower $pattern]
        set text [string tolower $text]
    }
    if {[string first * $pattern] >= 0 || [string first ? $pattern] >= 0} {
        set pattern [string map {\\ \\\\ \[ \\\[ \] \\\]} $pattern]
        if {![string match $pattern $text]} return
        return [list 0 [expr {[string length $text] - 1}]]
    }
    set length [string length $pattern]
    for {set start [string first $pattern $text]} {$start >= 0} {set start [string first $pattern $text [incr start]]} {
        set end [expr {$start + $length - 1}]
        if {![dict get $w(look) matchword] || [isWordAt $text $start $end]} {return [list $start $end]}
    }
}

proc ::znbrowser::isWordAt {text start end} {
    foreach {inside outside} [list $start [expr {$start - 1}] $end [expr {$end + 1}]] {
        if {[string is wordchar -strict [string index $text $inside]]
                && [string is wordchar -strict [string index $text $outside]]} {return 0}
    }
    return 1
}

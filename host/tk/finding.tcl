# Typing to find: characters typed one soon after the other are the beginning of the text to go to.
#
# Every row is looked at, from the next one on and round, a little at a time: so the next key is heard at any moment,
# and begins anew. What takes longer than a moment is shown, with a way to stop it.
#
#   typed     the characters so far
#   finding   while rows are looked at: the text, the position to begin at and the next one to look at, whether the end
#             has been passed, and since when

proc ::znbrowser::typed {n character state} {
    upvar #0 ::znbrowser::window$n w
    if {$state & 12 || ![string is print -strict $character]} {return header}
    if {[info exists w(timer,typed)]} {after cancel $w(timer,typed)}
    set w(timer,typed) [after 1000 [list ::znbrowser::forgetTyped $n]]
    append w(typed) $character
    # The first character goes on from the next row; more of them may still mean the same one.
    set from [expr {[activePosition $n] + ([string length $w(typed)] == 1)}]
    if {$from >= [dict get $w(look) rows]} {set from 0}
    stopFinding $n
    set w(finding) [dict create text $w(typed) from $from next $from around 0 since [clock milliseconds]]
    findMore $n
}

# A blank belongs to what is typed, once that has begun.
proc ::znbrowser::typedBlank {n} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(typed)]} {typed $n " " 0} else {selectActive $n}
}

# What is still being looked for is not forgotten: the next character adds to it.
proc ::znbrowser::forgetTyped {n} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,typed)
    if {[info exists w(finding)]} {
        set w(timer,typed) [after 1000 [list ::znbrowser::forgetTyped $n]]
    } else {
        unset -nocomplain w(typed)
    }
}

proc ::znbrowser::findMore {n} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,find)
    if {![isOpen $n] || ![info exists w(finding)]} return
    if {![host busy]} {
        set finding $w(finding)
        lassign [host find $n [dict get $finding next] [dict get $finding text]] position next
        if {![isOpen $n]} return
        if {$position >= 0} {
            stopFinding $n
            return [goTo $n select $position]
        }
        if {$next < 0} {
            if {[dict get $finding around] || [dict get $finding from] == 0} {return [foundNone $n]}
            dict set w(finding) around 1
            set next 0
        }
        if {[dict get $w(finding) around] && $next >= [dict get $finding from]} {return [foundNone $n]}
        dict set w(finding) next $next
        showFinding $n
    }
    set w(timer,find) [after 1 [list ::znbrowser::findMore $n]]
}

proc ::znbrowser::foundNone {n} {
    upvar #0 ::znbrowser::window$n w
    set text [dict get $w(finding) text]
    stopFinding $n
    say $n "No row begins with \"$text\""
}

# Stops looking. Answers whether something was being looked for.
proc ::znbrowser::stopFinding {n} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(finding)]} {return 0}
    if {[info exists w(timer,find)]} {after cancel $w(timer,find)}
    unset -nocomplain w(finding) w(timer,find)
    destroy $w(path).finding
    return 1
}

# ---- The panel

# The panel for scripts and tests. The keyboard stays with the rows.
proc ::znbrowser::findingPanel {name} {return [set ::znbrowser::window[number $name](path)].finding}

proc ::znbrowser::showFinding {n} {
    upvar #0 ::znbrowser::window$n w
    set finding $w(finding)
    if {[clock milliseconds] - [dict get $finding since] < 200} return
    set panel $w(path).finding
    if {![winfo exists $panel]} {makeFinding $n $panel}
    set rows [dict get $w(look) rows]
    set looked [expr {[dict get $finding next] - [dict get $finding from]}]
    if {$looked < 0} {incr looked $rows}
    $panel.text configure -text \
        "Looking for \"[oneLine [dict get $finding text]]\" … [grouped $looked] of [grouped $rows] rows"
}

proc ::znbrowser::makeFinding {n panel} {
    upvar #0 ::znbrowser::window$n w
    ttk::frame $panel -style Panel.TFrame -padding {18 14}
    ttk::label $panel.text -style Panel.TLabel
    ttk::button $panel.cancel -text "Cancel" -style Tool.TButton -takefocus 0 \
        -command [list ::znbrowser::stopFinding $n]
    pack $panel.text $panel.cancel -side left -padx {0 14}
    place $panel -in $w(path).body -relx 0.5 -rely 0.4 -anchor center
    raise $panel
}

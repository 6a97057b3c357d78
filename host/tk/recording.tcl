# Recording: what is done in a window becomes a line of script that does it again. Rows stand in it by the names on the
# way to them, as their numbers are others on another day.

proc ::znbrowser::buildRecorder {n bar} {
    ttk::checkbutton $bar.record -text "Record" -style Status.Toolbutton \
        -variable ::znbrowser::recording -command ::znbrowser::switchRecording
    pack $bar.record -side right -padx {4 0}
}

# The button of a window, for scripts and tests.
proc ::znbrowser::recordButton {name} {return [set ::znbrowser::window[number $name](path)].status.record}

# The button was pressed: what was recorded is kept in a file, where its user wants that.
proc ::znbrowser::switchRecording {} {
    variable recording
    if {$recording} {
        manager app record on
        return
    }
    manager app record off
    set lines [manager app record]
    if {$lines eq ""} return
    set file [tk_getSaveFile -title "Save what was recorded" -defaultextension .tcl -initialfile recorded.tcl \
        -filetypes {{"Tcl scripts" .tcl} {"All files" *}}]
    if {$file ne ""} {saveRecording $file $lines}
}

proc ::znbrowser::saveRecording {file lines} {
    set channel [open $file w]
    chan configure $channel -encoding utf-8
    puts $channel [join $lines \n]
    close $channel
}

# The buttons show what scripts say, too.
proc ::znbrowser::followRecording {} {set ::znbrowser::recording [host recording]}

# The line that does something again; empty while nothing is recorded. It is made before that is done: rows that are
# gone afterwards have no way to them.
proc ::znbrowser::lineFor {n words} {
    if {![host recording]} return
    set event [lindex $words 0]
    if {![string match OnTkTree* $event]} {return [list znbrowsermanager {*}$words]}
    set arguments [lrange $words 2 end]
    switch $event {
        OnTkTreeSetStatePos {return}
        OnTkTreePopupMenu - OnTkTreePerformPopupOperation - OnTkTreeSelectionChangeFinished {set before 1000}
        OnTkTreeCheckBoxClick - OnTkTreeLeftHandClick - OnTkTreeWindowButtonClick {set before 2}
        OnTkTreeRightHandClick {set before 1}
        default {set before 0}
    }
    set rows [lrange $arguments $before end]
    set behind {}
    if {$event in {OnTkTreeCheckBoxClick OnTkTreeWindowButtonClick}} {
        set behind [lrange $rows 1 end]
        set rows [lrange $rows 0 0]
    }
    set line [list znbrowsermanager $event {*}[lrange $words 1 $before+1]]
    append line [rowWords $n $rows]
    if {$behind ne ""} {append line " " $behind}
    return $line
}

# Words that stand for rows: each by its path, and neighbours by those of the first and the last.
proc ::znbrowser::rowWords {n rows} {
    upvar #0 ::znbrowser::window$n w
    set words ""
    while {$rows ne ""} {
        set count [neighbours $n $rows]
        set call [list znbrowsermanager app row $w(name) [host path $n [lindex $rows 0]]]
        if {$count == 1} {
            append words " \[$call\]"
        } else {
            append words " {*}\[[concat $call [list [host path $n [lindex $rows $count-1]]]]\]"
        }
        set rows [lrange $rows $count end]
    }
    return $words
}

# How many of the rows stand one below the other, from the first on.
proc ::znbrowser::neighbours {n rows} {
    set count [llength $rows]
    set position [host position $n [lindex $rows 0]]
    while {$count > 1} {
        if {[host indices $n $position $count] eq [lrange $rows 0 $count-1]} {return $count}
        set count [expr {$count / 2}]
    }
    return 1
}

# What was done is recorded.
proc ::znbrowser::record {n line} {
    if {$line eq "" || ![host recording]} return
    if {[catch {host record $line} problem] && [isOpen $n]} {say $n $problem}
}

# The window stands still after it was scrolled: the row at its top. The next such line takes the place of this one.
proc ::znbrowser::recordScroll {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n] || ![host recording] || $w(page) eq ""} return
    set line [list znbrowsermanager app scroll $w(name)]
    if {[catch {host record [concat $line [list [host path $n [lindex $w(page) 0 0]]]] "$line "} problem]} {say $n $problem}
}

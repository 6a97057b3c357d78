# Rows that lie below themselves, in tables where it takes longer than a moment to find them: they are sought while
# nothing happens in the window.

namespace eval ::znbrowser::any {
    variable timeForCycles 8000 ;# milliseconds for a table: what takes longer is given up
}

proc ::znbrowser::any::SeekCyclesSoon {control milliseconds} {
    variable unsought
    if {[dict exists $unsought $control]} {after $milliseconds [list ::znbrowser::any::SeekCycles $control]}
}

# Seeks in one more table, unless something happens meanwhile: then it is tried again.
proc ::znbrowser::any::SeekCycles {control} {
    variable unsought
    if {[catch {::znbrowser::number $control} n] || ![dict size [dict get $unsought $control]]} {
        dict unset unsought $control
        return
    }
    set table [lindex [dict get $unsought $control] 0]
    lassign [dict get $unsought $control $table] key below
    lassign [::znbrowser::meanwhile $n {FindCycle $n $control $table $key}] done rows
    if {$done} {
        dict unset unsought $control $table
        if {$rows ne ""} {ShowCycle $n $control $table $rows $below}
    }
    SeekCyclesSoon $control [expr {$done ? 20 : 400}]
}

# Nothing where there are none, or where they cannot be found.
proc ::znbrowser::any::FindCycle {n control table key} {
    ::znbrowser::host time $::znbrowser::any::timeForCycles
    if {![catch {RowsInCycle $control $table $key sql} rows]} {return $rows}
}

# Lists them in the window, with the values of all columns that it has. What is current stays so.
proc ::znbrowser::any::ShowCycle {n control table rows below} {
    variable followed
    set before [lmap kind {window datactrl} {list $kind current [Do $kind current]}]
    Do window current $control
    Do datactrl current $control
    Do view folder current $table
    set source [MakeCycle $control $table $rows $below]
    dict set followed($control,sources) $source $table
    foreach {column type isKey isNamed} [dict get $followed($control,tables) $table] {
        if {![dict exists $followed($control,made) $column]} continue
        Do view property current $column
        Do view property connect $source $column
    }
    foreach words $before {
        if {[lindex $words end] ne ""} {catch {Do {*}$words}}
    }
    ::znbrowser::changed $n allCells 0
}

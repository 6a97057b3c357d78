# Rows on the clipboard: lines of cells with tabs between them, as tables take them.

proc ::znbrowser::copy {text} {
    clipboard clear
    clipboard append -- $text
}

# The text of a row's cell: what is drawn in it, but for pictures.
proc ::znbrowser::cellText {n row column} {
    upvar #0 ::znbrowser::window$n w
    set number [lsearch -exact [lmap each $w(columns) {dict get $each name}] $column]
    if {$number < 0} return
    return [textOfCell $n $row $number]
}

proc ::znbrowser::textOfCell {n row number} {
    upvar #0 ::znbrowser::window$n w
    set cell [lsearch -exact -integer -inline -index 0 [lindex $row 11] $number]
    if {$cell eq "" && [dict get [lindex $w(columns) $number] tree]} {return [lindex $row 4]}
    return [join [lmap element [lrange $cell 1 end] {
        if {[lindex $element 0] in {icon disabled}} continue
        lindex $element 1
    }] " "]
}

# A cell with a tab, a line break or a quote in it stands between quotes, and quotes in it are doubled.
proc ::znbrowser::tsvLine {texts} {
    return [join [lmap text $texts {
        if {[regexp {[\t\n\r"]} $text]} {string cat \" [string map {\" \"\"} $text] \"} else {set text}
    }] \t]
}

proc ::znbrowser::tsvRow {n row} {
    upvar #0 ::znbrowser::window$n w
    return [tsvLine [lmap number $w(shown) {textOfCell $n $row $number}]]
}

proc ::znbrowser::copySelected {n} {
    if {![isOpen $n]} return
    flush $n
    set rows [host selected $n]
    if {$rows eq ""} return
    if {[llength $rows] > $::znbrowser::copiedRows} {
        return [say $n "No more than [grouped $::znbrowser::copiedRows] rows are copied at once"]
    }
    copy [join [lmap index $rows {tsvRow $n [rowOfIndex $n $index]}] \n]\n
}

# Every row, a page at a time.
proc ::znbrowser::copyAll {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    flush $n
    set lines [list [tsvLine [lmap number $w(shown) {dict get [lindex $w(columns) $number] caption}]]]
    set page 1000
    for {set first 0} {$first < [dict get $w(look) rows]} {incr first $page} {
        foreach row [host page $n $first $page] {lappend lines [tsvRow $n $row]}
    }
    copy [join $lines \n]\n
}

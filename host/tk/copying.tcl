# Rows on the clipboard and in files: lines of cells with tabs or commas between them, as tables take them.

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

# Rows as lines of text, or into a file: "all", "selected" or a row's index. Answers the text or the number of rows, and
# nothing when they cannot be had, which is said then.
proc ::znbrowser::exportRows {n rows format args} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    flush $n
    set name $w(name)
    host begin $n
    set failed [catch {manager app export $name $rows $format {*}$args} answer]
    set cancelled [host end]
    if {!$failed} {return $answer}
    if {[isOpen $n]} {say $n [expr {$cancelled ? "Cancelled: nothing was written." : $answer}]}
    return
}

proc ::znbrowser::copySelected {n {format cells}} {
    if {![isOpen $n]} return
    flush $n
    set count [llength [host selected $n]]
    if {$count == 0} return
    if {$count > $::znbrowser::copiedRows} {
        return [say $n "No more than [grouped $::znbrowser::copiedRows] rows are copied at once: export them into a file"]
    }
    copyText [exportRows $n selected $format]
}

# Every row that is open.
proc ::znbrowser::copyAll {n} {copyText [exportRows $n all tsv]}

proc ::znbrowser::copyText {text} {
    if {$text ne ""} {copy $text}
}

# Asks for a file, whose name tells the format, and writes rows into it; closed ones too, with `deep`.
proc ::znbrowser::export {n rows args} {
    upvar #0 ::znbrowser::window$n w
    set types {{{Comma-separated values} .csv} {{Tab-separated values} {.tsv .txt}} {{SQL statements} .sql}}
    set file [tk_getSaveFile -parent $w(path) -title Export -filetypes $types -defaultextension .csv]
    if {$file eq "" || ![isOpen $n]} return
    switch [string tolower [file extension $file]] {
        .tsv - .txt - .tab {set format tsv}
        .sql {set format sql}
        default {set format csv}
    }
    set count [exportRows $n $rows $format $file {*}$args]
    if {$count ne "" && [isOpen $n]} {say $n "[grouped $count] rows are in [file tail $file]"}
}

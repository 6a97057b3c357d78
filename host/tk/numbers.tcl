# Columns and what is in them: a number is never cut off, as what is left of it would be another number.
#
#   width,COLUMN  how wide a column is, by its number
#   grown         how wide columns have become for what is in them, by their names
#   measured      by the names of columns: the data sources whose texts they have grown with
#   sized         the columns whose width the user has chosen

namespace eval ::znbrowser {
    variable widestNumber 220 ;# pixels: no column grows beyond that
    variable besideNumber 14  ;# pixels of a column beside its text
}

# Whether the texts of a column are numbers to be read as such: they stand on the right.
proc ::znbrowser::holdsNumbers {n number} {
    upvar #0 ::znbrowser::window$n w
    return [expr {[dict get [lindex $w(columns) $number] justify] eq "right"}]
}

# The number as it fits into the column: whole, with fewer digits behind the point, or "###". Other texts stay.
proc ::znbrowser::fitNumber {n number inTree text} {
    upvar #0 ::znbrowser::window$n w
    if {$inTree || [string length $text] < 3 || ![holdsNumbers $n $number] || ![string is double -strict $text]} {
        return $text
    }
    set room [expr {$w(width,$number) - [scaled $::znbrowser::besideNumber]}]
    if {[font measure znBrowser00 $text] <= $room} {return $text}
    if {![string is entier -strict $text]} {
        for {set digits 12} {$digits > 2} {incr digits -1} {
            set shorter [format %.${digits}g $text]
            if {[font measure znBrowser00 $shorter] <= $room} {return $shorter}
        }
    }
    return "###"
}

# Before a page is drawn: columns become as wide as the numbers in them, and as the texts that are seen first of each
# table, unless the user has said how wide they are. What is left of the window's width is for texts that are longer.
proc ::znbrowser::growColumns {n} {
    upvar #0 ::znbrowser::window$n w
    set sources [lsort -unique [lmap row $w(page) {if {[lindex $row 3] ne "item"} continue; lindex $row 13}]]
    set long {}
    foreach number $w(visible) {
        set column [lindex $w(columns) $number]
        set name [dict get $column name]
        if {$name in $w(sized) || [dict get $column tree]} continue
        set known {}
        if {![holdsNumbers $n $number] && [dict exists $w(measured) $name]} {set known [dict get $w(measured) $name]}
        if {[lmap source $sources {if {$source in $known} continue; set source}] eq ""} continue
        dict set w(measured) $name [lsort -unique [concat $known $sources]]
        set widest [widestText $n $number $known]
        if {!$widest} continue
        set wanted [expr {$widest + [scaled $::znbrowser::besideNumber] + 2}]
        growColumn $n $number [expr {min($wanted, [scaled $::znbrowser::widestNumber])}]
        if {$wanted > $w(width,$number)} {lappend long $number $wanted}
    }
    foreach {number wanted} $long {growColumn $n $number [expr {min($wanted, $w(width,$number) + [roomLeft $n])}]}
}

# The pixels beside the last column.
proc ::znbrowser::roomLeft {n} {
    upvar #0 ::znbrowser::window$n w
    return [expr {max(0, [winfo width $w(tree)] - [tcl::mathop::+ {*}[lmap number $w(shown) {set w(width,$number)}]] - 4)}]
}

# Makes a column wider, if it is not as wide already.
proc ::znbrowser::growColumn {n number wanted} {
    upvar #0 ::znbrowser::window$n w
    if {$wanted <= $w(width,$number)} return
    dict set w(grown) [dict get [lindex $w(columns) $number] name] $wanted
    set w(width,$number) $wanted
    $w(tree) column configure $w(column,$number) -width $wanted
    forgetSlots $n
}

# The pixels that the texts of a column take in the page, in rows of other sources than those.
proc ::znbrowser::widestText {n number without} {
    upvar #0 ::znbrowser::window$n w
    set widest 0
    set letters 0
    foreach row $w(page) {
        if {[lindex $row 13] in $without} continue
        set cell [lsearch -exact -integer -inline -index 0 [lindex $row 11] $number]
        lassign [lindex $cell 1] kind text
        if {$kind ne "text" || 2 * [string length $text] < $letters} continue ;# not to be measured to be narrower
        set pixels [font measure znBrowser00 [string range $text 0 99]]
        if {$pixels <= $widest} continue
        set widest $pixels
        set letters [string length $text]
    }
    return $widest
}

# How wide a column is to be: as the view says, or wider where its caption, its numbers or its texts need it.
proc ::znbrowser::widthOf {n column} {
    upvar #0 ::znbrowser::window$n w
    set name [dict get $column name]
    set width [scaled [expr {max(24, [dict get $column width])}]]
    if {!$w(bare) || $name in $w(sized)} {return $width}
    set caption [expr {[font measure znBrowser00 [string range [dict get $column caption] 0 99]] + [scaled 24]}]
    set grown [expr {[dict exists $w(grown) $name] ? [dict get $w(grown) $name] : 0}]
    return [expr {max($width, min($caption, [scaled $::znbrowser::widestNumber]), $grown)}]
}

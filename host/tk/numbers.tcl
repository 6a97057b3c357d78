# Numbers in columns: a number is never cut off, as what is left of it would be another number.
#
#   width,COLUMN  how wide a column is, by its number
#   grown         how wide columns have become for their numbers, by their names
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
    set room [expr {$w(width,$number) - $::znbrowser::besideNumber}]
    if {[font measure znBrowser00 $text] <= $room} {return $text}
    if {![string is entier -strict $text]} {
        for {set digits 12} {$digits > 2} {incr digits -1} {
            set shorter [format %.${digits}g $text]
            if {[font measure znBrowser00 $shorter] <= $room} {return $shorter}
        }
    }
    return "###"
}

# Before a page is drawn: columns become as wide as the numbers in them, unless the user has said how wide they are.
proc ::znbrowser::growNumbers {n} {
    upvar #0 ::znbrowser::window$n w
    foreach number $w(shown) {
        if {![holdsNumbers $n $number]} continue
        set name [dict get [lindex $w(columns) $number] name]
        if {$name in $w(sized)} continue
        set longest ""
        foreach row $w(page) {
            set cell [lsearch -exact -integer -inline -index 0 [lindex $row 11] $number]
            lassign [lindex $cell 1] kind text
            if {$kind eq "text" && [string length $text] > [string length $longest]} {set longest $text}
        }
        set wanted [expr {[font measure znBrowser00 $longest] + $::znbrowser::besideNumber + 2}]
        set wanted [expr {min($wanted, $::znbrowser::widestNumber)}]
        if {$wanted <= $w(width,$number)} continue
        dict set w(grown) $name $wanted
        set w(width,$number) $wanted
        $w(tree) column configure $w(column,$number) -width $wanted
        forgetSlots $n
    }
}

# How wide a column is to be: as the view says, or wider where its numbers need it.
proc ::znbrowser::widthOf {n column} {
    upvar #0 ::znbrowser::window$n w
    set name [dict get $column name]
    set width [expr {max(24, [dict get $column width])}]
    if {$name ni $w(sized) && [dict exists $w(grown) $name]} {return [expr {max($width, [dict get $w(grown) $name])}]}
    return $width
}

# Columns and what is in them: a number is never cut off, as what is left of it would be another number.
#
#   width,COLUMN  how wide a column is, by its number
#   grown         how wide columns have become for what is in them, by their names
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

# Before a page is drawn: columns become as wide as the numbers in them, and once as wide as the texts that are seen
# first, unless the user has said how wide they are.
proc ::znbrowser::growColumns {n} {
    upvar #0 ::znbrowser::window$n w
    foreach number $w(shown) {
        set column [lindex $w(columns) $number]
        set name [dict get $column name]
        set numbers [holdsNumbers $n $number]
        if {$name in $w(sized) || [dict get $column tree] || (!$numbers && [dict exists $w(grown) $name])} continue
        set longest [longestText $n $number]
        if {$longest eq ""} continue
        set wanted [expr {[font measure znBrowser00 $longest] + [scaled $::znbrowser::besideNumber] + 2}]
        growColumn $n $number [expr {min($wanted, [scaled $::znbrowser::widestNumber])}]
        dict set w(grown) $name $w(width,$number)
    }
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

# The longest text of a column in the page.
proc ::znbrowser::longestText {n number} {
    upvar #0 ::znbrowser::window$n w
    set longest ""
    foreach row $w(page) {
        set cell [lsearch -exact -integer -inline -index 0 [lindex $row 11] $number]
        lassign [lindex $cell 1] kind text
        if {$kind eq "text" && [string length $text] > [string length $longest]} {set longest [string range $text 0 99]}
    }
    return $longest
}

# How wide a column is to be: as the view says, or wider where its numbers need it.
proc ::znbrowser::widthOf {n column} {
    upvar #0 ::znbrowser::window$n w
    set name [dict get $column name]
    set width [scaled [expr {max(24, [dict get $column width])}]]
    if {$name ni $w(sized) && [dict exists $w(grown) $name]} {return [expr {max($width, [dict get $w(grown) $name])}]}
    return $width
}

# The popup menus of the gearbox browser, as a right click shows them, and what choosing an entry does. Each command is
# printed with its answer.
set here [file dirname [file normalize [info script]]]
source [file join $here browser.tcl]
zn window post false ;# a window on a display shows the menus itself

proc show {args} {
    puts "% $args"
    set answer [{*}$args]
    if {$answer ne ""} {puts $answer}
}

# The Tk index of the first row with that text: what a click on the row would send.
proc row {text} {
    foreach row [zn app rows gearbox] {
        if {[regsub { \(\d+\)$} [dict get $row text] ""] eq $text} {return [dict get $row index]}
    }
    error "no row \"$text\""
}

# Draws a menu as a text; entries that cannot be chosen stand in parentheses.
proc draw {entries {indent "  "}} {
    foreach entry $entries {
        dict with entry {
            switch $kind {
                separator {set text ──────────}
                check {set text "[expr {$checked ? {[x]} : {[ ]}}] $caption"}
                cascade {set text "$caption ▸"}
                default {set text $caption}
            }
            if {!$enabled && $kind ne "separator"} {set text "($text)"}
            puts $indent$text
            draw $entries "$indent    "
        }
    }
}
proc drawMenu {column args} {
    puts "\n--- A right click in the column $column on: [join $args {, }]"
    set rows [lmap text $args {row $text}]
    zn OnTkTreeRequestSelectionUpdate gearbox {*}$rows
    draw [zn app popup gearbox $column {*}$rows]
}

drawMenu Name "Snap ring 35"
show zn OnTkTreePerformPopupOperation gearbox release true
drawMenu Name "Snap ring 35" "Shim 0.2"
drawMenu mass "Snap ring 35"
drawMenu Name "Input shaft"
show zn OnTkTreePerformPopupOperation gearbox select/every material
show zn OnTkTreePerformPopupOperation gearbox look/stripes ""
show zn window stripe
drawMenu Name Purchasing

puts "\n--- Without a display nobody is asked: the input field keeps what the pre-operation put there"
zn OnTkTreeRequestSelectionUpdate gearbox [row "Snap ring 35"]
show zn OnTkTreeRightHandClick gearbox Name [row "Snap ring 35"]
show zn OnTkTreePopupMenu gearbox true
show zn OnTkTreePerformPopupOperation gearbox pieces ""
show zn OnTkTreePopupMenu gearbox false
show zn app sql gearbox {SELECT name, quantity FROM part WHERE name = 'Snap ring 35'}

zn OnTkTreePerformPopupOperation gearbox release false ;# the model stays as it was

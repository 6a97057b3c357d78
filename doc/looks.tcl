# Makes pictures of the default browser to be looked at, on the display at hand, light and dark:
#   znbrowsersh --tk looks.tcl EXAMPLES IMAGES DPI
#   EXAMPLES  the directory of the prepared examples
#   IMAGES    where the pictures go
#   DPI       what the display says of itself; it becomes part of their names
lassign $argv examples images dpi

source [file join [file dirname [info script]] pictures.tcl]
set ::env(XDG_CONFIG_HOME) [file join $images config] ;# nobody's memory changes what is seen

# The databases that the tests of the windows are tried on.
namespace eval odd {}
namespace eval tcltest {proc makeFile {text name} {return [file join $::images $name]}}
proc newDatabase {file} {return $file}
proc dialect {statement} {return $statement}
source [file join [file dirname [info script]] .. tests tk odd_databases.tcl]

# Opens a browser on the file and takes its picture, once everything is open that fits.
proc takeLook {name file} {
    zn app datactrl open $name $file
    znbrowser::any::browse $name
    wait 300
    set n [znbrowser::number $name]
    foreach row [lrange [set ::znbrowser::window${n}(page)] 0 7] {zn OnTkTreeRequestExpand $name [lindex $row 0]}
    wait 300
    znbrowser::goTo $n select 3
    znbrowser::toggleDetails $n
    zn window current $name
    takePicture [znbrowser::scaled 1000]x[znbrowser::scaled 560] [file join $::images $name-$::dpi.png]
}

foreach theme {light dark} {
    znbrowser::theme $theme
    foreach kind {values packages circle chain wide tasks wordy strange files tables} {takeLook $kind-$theme [odd::make $kind $kind-$theme.db]}
    takeLook shop-$theme [file join $examples models shop.db]
}

# Makes the animation of the README on the display at hand: znbrowsersh --tk animation.tcl EXAMPLES IMAGES
#   EXAMPLES  the directory of the prepared examples
#   IMAGES    where it goes
lassign $argv examples images

source [file join [file dirname [info script]] pictures.tcl]
set ::env(XDG_CONFIG_HOME) [set frames [file join [pwd] frames[pid]]]
file mkdir $frames

zn app datactrl open shop [file join $examples models shop.db]
znbrowser::any::browse shop
set n [znbrowser::number shop]
set tree [znbrowser::tree shop]
set top [winfo toplevel $tree]
wm geometry $top 760x420+0+0
wait 800

# A picture of the window that is seen for so many hundredths of a second.
proc show {hundredths} {
    wait 150
    exec import -window [winfo id $::top] -strip [set file [file join $::frames [format %03d.png [incr ::pictures]]]]
    lappend ::sequence -delay $hundredths $file
}

proc pressKey {widget key} {
    focus -force $widget
    event generate $widget <Key-$key>
    update
}

show 120
foreach letter {c i t y} {
    pressKey [znbrowser::searchField shop] $letter
    wait 400
    show 30
}
show 150
pressKey [znbrowser::searchField shop] Escape
wait 300
show 80
foreach text {Bicycles "City bicycles" Ciclofficina} {
    znbrowser::goTo $n select [znbrowser::host position $n [rowOf shop $text]]
    show 40
    pressKey $tree Right
    wait 200
    show 80
}
znbrowser::toggleDetails $n
wait 300
show 200
exec convert {*}$sequence -loop 0 +dither -colors 48 -layers optimize [file join $images search.gif]
file delete -force $frames
exit

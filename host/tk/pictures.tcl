# The built-in images at another size, and for a dark surface. Tk's own photo images are enlarged only by whole numbers,
# and do not tell how transparent a point is: so these are taken from the PNG, which is one of 8 bits each of red,
# green, blue and alpha, without interlacing.

# The PNG at `scale` times its size; where it is `dark` around it, what is drawn in dark grey is light instead.
proc ::znbrowser::pictureOf {png scale dark} {
    lassign [pngPoints $png] width height points
    if {$dark} {set points [lmap {r g b a} $points {
        set light [expr {max($r, $g, $b)}]
        set turned [expr {$light < 160 && $light - min($r, $g, $b) < 60 ? 255 - $light * 45 / 100 : ""}]
        if {$turned eq ""} {list $r $g $b $a} else {list $turned $turned $turned $a}
    }]} else {set points [lmap {r g b a} $points {list $r $g $b $a}]}
    set toWidth [expr {max(1, round($width * $scale))}]
    set toHeight [expr {max(1, round($height * $scale))}]
    return [pngOf $toWidth $toHeight [stretched $points $width $height $toWidth $toHeight]]
}

# Width, height, and the bytes of all points.
proc ::znbrowser::pngPoints {png} {
    binary scan $png @16II width height
    set at 8
    set packed ""
    while {[binary scan $png @${at}Ia4 length kind] == 2} {
        if {$kind eq "IDAT"} {append packed [string range $png $at+8 [expr {$at + 7 + $length}]]}
        incr at [expr {$length + 12}]
    }
    binary scan [zlib decompress $packed] cu* bytes
    set stride [expr {4 * $width}]
    set above [lrepeat $stride 0]
    set points {}
    for {set y 0} {$y < $height} {incr y} {
        set start [expr {$y * ($stride + 1)}]
        set above [unfiltered [lindex $bytes $start] [lrange $bytes $start+1 $start+$stride] $above]
        lappend points {*}$above
    }
    return [list $width $height $points]
}

# The bytes of a line, of which the filter has left the differences to the point before and the line above.
proc ::znbrowser::unfiltered {filter line above} {
    set done {}
    set place -4
    foreach byte $line up $above {
        set left [expr {$place < 0 ? 0 : [lindex $done $place]}]
        set corner [expr {$place < 0 ? 0 : [lindex $above $place]}]
        switch $filter {
            0 {set base 0}
            1 {set base $left}
            2 {set base $up}
            3 {set base [expr {($left + $up) / 2}]}
            4 {
                set guess [expr {$left + $up - $corner}]
                set far [list [expr {abs($guess - $left)}] [expr {abs($guess - $up)}] [expr {abs($guess - $corner)}]]
                set base [lindex [list $left $up $corner] [lsearch -exact -integer $far [tcl::mathfunc::min {*}$far]]]
            }
        }
        lappend done [expr {($byte + $base) & 255}]
        incr place
    }
    return $done
}

# The points of the picture in another size, each between the four around it; as bytes of one filtered line after
# the other.
proc ::znbrowser::stretched {points width height toWidth toHeight} {
    set lines {}
    for {set y 0} {$y < $toHeight} {incr y} {
        lappend lines 0 ;# no filter
        for {set x 0} {$x < $toWidth} {incr x} {
            set fromX [expr {max(0.0, min($width - 1.0, ($x + 0.5) * $width / $toWidth - 0.5))}]
            set fromY [expr {max(0.0, min($height - 1.0, ($y + 0.5) * $height / $toHeight - 0.5))}]
            lappend lines {*}[between $points $width $height $fromX $fromY]
        }
    }
    return $lines
}

# Colours count as much as they are seen.
proc ::znbrowser::between {points width height x y} {
    set left [expr {int($x)}]
    set top [expr {int($y)}]
    set sum {0.0 0.0 0.0 0.0}
    foreach {dx dy} {0 0 1 0 0 1 1 1} {
        set part [expr {abs(1 - $dx - ($x - $left)) * abs(1 - $dy - ($y - $top))}]
        if {$part == 0} continue
        lassign [lindex $points [expr {min($top + $dy, $height - 1) * $width + min($left + $dx, $width - 1)}]] r g b a
        set seen [expr {$part * $a}]
        lassign $sum sr sg sb sa
        set sum [list [expr {$sr + $seen * $r}] [expr {$sg + $seen * $g}] [expr {$sb + $seen * $b}] [expr {$sa + $seen}]]
    }
    lassign $sum r g b a
    if {$a == 0} {return {0 0 0 0}}
    return [list [expr {round($r / $a)}] [expr {round($g / $a)}] [expr {round($b / $a)}] [expr {round($a)}]]
}

proc ::znbrowser::pngOf {width height bytes} {
    set png [binary format H* 89504e470d0a1a0a]
    foreach {kind data} [list IHDR [binary format IIccccc $width $height 8 6 0 0 0] \
            IDAT [zlib compress [binary format c* $bytes]] IEND ""] {
        append png [binary format I [string length $data]] $kind $data [binary format I [zlib crc32 $kind$data]]
    }
    return $png
}

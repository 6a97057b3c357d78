# Light or dark, and how large: all windows at once. A theme is chosen by the resource znbrowserTheme, by `theme`, or
# by the shell's --dark.

namespace eval ::znbrowser {
    variable theme light
    variable palettes [dict create light $colours dark {
        surface #22272e  paper #1b2027  stripe #20262d  text #dfe5eb  faint #a2adb9  line #3d4650
        header #2b323a   headerHot #38424d  chosen #1d4470  hover #27313c  drop #59481a  focus #6aa9f0
        button #333c46   buttonLine #6a7683  accent #74b4ff  disabled #78838f  problem #ff9a91  tip #343a41  found #665612
    }]
    variable zoom 1.0
    variable zooms {0.5 0.67 0.8 0.9 1.0 1.1 1.25 1.5 1.75 2.0 2.5 3.0}
    variable scale 1.0 ;# by how much what is measured in pixels is larger than it is said to be
    array set legible {}
}

# The theme; or another one, for every window.
proc ::znbrowser::theme {{name ""}} {
    variable theme
    variable palettes
    if {$name ne "" && $name ne $theme} {
        if {![dict exists $palettes $name]} {error "unknown theme \"$name\": must be [join [dict keys $palettes] { or }]"}
        useTheme $name
        restyle
    }
    return $theme
}

proc ::znbrowser::useTheme {name} {
    variable theme $name
    variable palettes
    variable colours [dict get $palettes $name]
    variable legible
    array unset legible
}

# A length in pixels, as it is on a screen with 96 dots an inch and the usual font there.
proc ::znbrowser::scaled {length} {
    variable scale
    return [expr {round($length * $scale)}]
}

proc ::znbrowser::unscaled {pixels} {
    variable scale
    return [expr {round($pixels / $scale)}]
}

# ---- Zoom

proc ::znbrowser::zoomIn {n} {zoomBy 1}
proc ::znbrowser::zoomOut {n} {zoomBy -1}
proc ::znbrowser::zoomBack {n} {zoomTo 1.0}

proc ::znbrowser::zoomBy {steps} {
    variable zoom
    variable zooms
    set place [expr {max(0, min([lsearch -exact $zooms $zoom] + $steps, [llength $zooms] - 1))}]
    zoomTo [lindex $zooms $place]
}

proc ::znbrowser::zoomTo {wanted} {
    variable zoom
    if {$wanted == $zoom} return
    set zoom $wanted
    restyle
}

# ---- Every window anew

proc ::znbrowser::restyle {} {
    prepareLook
    drawImages
    foreach n [windows] {restyleWindow $n}
}

proc ::znbrowser::restyleWindow {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    if {$w(owns)} {$w(frame) configure -background [colour surface]}
    styleTree $n
    dict for {key style} $w(styles) {layoutStyle $n $style [$w(tree) style elements $style]}
    styleBelow $w(path)
    set w(layout) "" ;# the columns have colours, too
    set w(grown) {}
    set w(measured) {}
    changed $n allCells 0
}

# What has colours and fonts of its own; the styles of ttk care for the others.
proc ::znbrowser::styleBelow {path} {
    foreach child [winfo children $path] {
        switch [winfo class $child] {
            Menu {styleMenu $child}
            Text {styleDetails $child}
            TEntry - TSpinbox {$child configure -font znBrowser00}
            TCombobox {
                $child configure -font znBrowser00
                [ttk::combobox::PopdownWindow $child].f.l configure -font znBrowser00 -background [colour paper] \
                    -foreground [colour text] -selectbackground [colour chosen] -selectforeground [colour text]
            }
        }
        styleBelow $child
    }
}

# ---- Contrast

# How well one colour is seen on another: 1 not at all, 21 black on white.
proc ::znbrowser::contrast {one other} {
    set lights [lmap name [list $one $other] {
        set light 0
        foreach part [winfo rgb . $name] weight {0.2126 0.7152 0.0722} {
            set value [expr {$part / 65535.0}]
            set light [expr {$light + $weight * ($value <= 0.04045 ? $value / 12.92 : (($value + 0.055) / 1.055) ** 2.4)}]
        }
        set light
    }]
    return [expr {([tcl::mathfunc::max {*}$lights] + 0.05) / ([tcl::mathfunc::min {*}$lights] + 0.05)}]
}

# A colour for text like that one which can be read on the other one: darker or lighter, if need be.
proc ::znbrowser::legibleOn {wanted paper} {
    variable legible
    if {[info exists legible($wanted,$paper)]} {return $legible($wanted,$paper)}
    set end [expr {[contrast white $paper] > [contrast black $paper] ? 255 : 0}]
    set found $wanted
    for {set part 0} {$part <= 10 && [contrast $found $paper] < 4.5} {incr part} {
        set found [format #%02x%02x%02x {*}[lmap value [winfo rgb . $wanted] {
            expr {($value / 257 * (10 - $part) + $end * $part) / 10}
        }]]
    }
    return [set legible($wanted,$paper) $found]
}

# Colours, fonts and the styles of ttk widgets.

namespace eval ::znbrowser {
    variable colours {
        surface #f4f5f7  paper #ffffff  stripe #f5f8fb  text #1d2733  faint #5f6b78  line #d8dde3
        header #eef0f3   headerHot #e3e7ec  chosen #cde3fa  hover #edf4fc  drop #ffe9b8  focus #5a9ae6
        button #f2f4f7   buttonLine #b9c2cc  accent #1b67c4  disabled #a3acb6  problem #b3261e  tip #fffbe8
        found #ffe38a
    }
}

proc ::znbrowser::colour {name} {
    variable colours
    return [dict get $colours $name]
}

proc ::znbrowser::prepareLook {} {
    prepareFonts
    ttk::style theme use clam
    ttk::style configure . -font znBrowser00 -background [colour surface] -foreground [colour text] \
        -fieldbackground [colour paper] -insertcolor [colour text] -troughcolor [colour header] \
        -selectbackground [colour chosen] -selectforeground [colour text] -arrowcolor [colour text] \
        -bordercolor [colour buttonLine] -lightcolor [colour surface] -darkcolor [colour surface] \
        -focuscolor [colour accent]
    ttk::style map . -background [list disabled [colour surface] active [colour header]] \
        -foreground [list disabled [colour disabled]] -fieldbackground [list disabled [colour surface]] \
        -selectbackground {} -selectforeground {}
    styleFields
    styleTools
    styleStatus
    stylePanel
}

proc ::znbrowser::styleStatus {} {
    ttk::style configure Browser.TFrame -background [colour surface]
    ttk::style configure Line.TFrame -background [colour line]
    ttk::style configure Status.TLabel -background [colour surface] -foreground [colour faint] \
        -font znBrowserSmall
    foreach style {Status.Toolbutton Status.TMenubutton} {
        ttk::style configure $style -font znBrowserSmall -padding {6 0} -background [colour surface] \
            -foreground [colour faint] -relief flat -borderwidth 1 -bordercolor [colour surface]
        ttk::style map $style -background [list selected [colour found] active [colour header]] \
            -foreground [list selected [colour text]]
    }
    ttk::style configure Message.TLabel -background [colour surface] -foreground [colour problem] \
        -font znBrowserSmall
}

proc ::znbrowser::stylePanel {} {
    ttk::style configure Panel.TFrame -background [colour paper] -relief solid -borderwidth 1 \
        -bordercolor [colour buttonLine]
    ttk::style configure Panel.TLabel -background [colour paper]
    ttk::style configure Browser.Horizontal.TProgressbar -background [colour accent] \
        -troughcolor [colour header] -bordercolor [colour line] -lightcolor [colour accent] \
        -darkcolor [colour accent]
    foreach style {Vertical.TScrollbar Horizontal.TScrollbar} {
        ttk::style configure $style -gripcount 0 -background [colour line] -troughcolor [colour surface] \
            -bordercolor [colour surface] -lightcolor [colour line] -darkcolor [colour line] \
            -arrowcolor [colour faint] -arrowsize [scaled 12]
        ttk::style map $style -background [list active [colour buttonLine] disabled [colour surface]]
    }
}

proc ::znbrowser::styleFields {} {
    ttk::style configure Search.TEntry -padding [list [scaled 6] [scaled 4]] -fieldbackground [colour paper] \
        -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
    ttk::style map Search.TEntry -bordercolor [list focus [colour accent]] \
        -lightcolor [list focus [colour accent]] -darkcolor [list focus [colour accent]]
    ttk::style configure Browser.TCombobox -selectbackground [colour paper] -selectforeground [colour text]
    ttk::style map Browser.TCombobox -fieldbackground [list readonly [colour paper]] \
        -bordercolor [list focus [colour accent]]
    ttk::style configure TSpinbox -arrowsize [scaled 10]
    ttk::style configure TMenubutton -arrowsize [scaled 5]
    ttk::style configure TCheckbutton -indicatorbackground [colour paper] -indicatorforeground [colour text] \
        -indicatorsize [scaled 11] -upperbordercolor [colour faint] -lowerbordercolor [colour faint]
    ttk::style map TCheckbutton -indicatorbackground [list disabled [colour surface] pressed [colour header]] \
        -indicatorforeground [list disabled [colour disabled]]
}

# Buttons, and what looks like them.
proc ::znbrowser::styleTools {} {
    foreach style {Tool.TButton Tool.TMenubutton} {
        ttk::style configure $style -padding [list [scaled 8] [scaled 3]] -background [colour paper] -relief flat -width 0 \
            -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
        ttk::style map $style -background [list pressed [colour headerHot] active [colour header]]
    }
    ttk::style configure Tool.Toolbutton -padding [list [scaled 8] [scaled 3]] -background [colour paper] -relief flat -width 0 \
        -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
    ttk::style map Tool.Toolbutton -background [list selected [colour chosen] active [colour header]] \
        -relief {selected sunken}
    foreach style {Tool.TButton Tool.TMenubutton Tool.Toolbutton Bar.TCheckbutton} {
        ttk::style map $style -bordercolor [list focus [colour accent]] -lightcolor [list focus [colour accent]] \
            -darkcolor [list focus [colour accent]]
    }
    ttk::style configure Bar.TCheckbutton -background [colour surface] -focuscolor [colour accent]
    ttk::style map Bar.TCheckbutton -background [list active [colour surface]]
    ttk::style layout Link.TButton [ttk::style layout Toolbutton]
    ttk::style configure Link.TButton -background [colour surface] -foreground [colour accent] -relief flat \
        -padding {2 0} -borderwidth 0 -font znBrowserLink
    ttk::style map Link.TButton -background [list active [colour header]]
}

# The fonts of rows: they go by TkDefaultFont, in every combination of bold and italic. What is measured in pixels goes
# by them, in steps that leave images sharp.
proc ::znbrowser::prepareFonts {} {
    variable zoom
    variable scale
    set actual [font actual TkDefaultFont]
    set size [dict get $actual -size]
    foreach {name bold italic} {znBrowser00 0 0 znBrowser10 1 0 znBrowser01 0 1 znBrowser11 1 1} {
        makeFont $name [dict merge $actual [list -size [expr {round($size * $zoom)}] \
            -weight [expr {$bold ? "bold" : "normal"}] -slant [expr {$italic ? "italic" : "roman"}]]]
    }
    dict set actual -size [expr {$size < 0 ? min(-9, round($size * $zoom) + 1) : max(6, round($size * $zoom) - 1)}]
    makeFont znBrowserSmall $actual
    makeFont znBrowserLink [dict replace $actual -underline 1]
    set scale [expr {max(0.5, round([font metrics znBrowser00 -linespace] / 17.0 * 4) / 4.0)}]
}

proc ::znbrowser::makeFont {name options} {
    if {$name ni [font names]} {font create $name}
    font configure $name {*}$options
}

proc ::znbrowser::fontOf {bold italic} {return znBrowser[expr {!!$bold}][expr {!!$italic}]}

# The height of every row, in pixels.
proc ::znbrowser::rowHeight {} {return [expr {max([scaled 22], [font metrics znBrowser00 -linespace] + [scaled 8])}]}

# A colour that a user named, or another one when Tk knows none of that name.
proc ::znbrowser::colourOr {wanted other} {
    if {$wanted eq "" || [catch {winfo rgb . $wanted}]} {return $other}
    return $wanted
}

proc ::znbrowser::makeMenu {path args} {
    menu $path -tearoff 0 -relief solid -borderwidth 1 -activeborderwidth 3 -font znBrowser00 {*}$args
    styleMenu $path
    return $path
}

proc ::znbrowser::styleMenu {menu} {
    $menu configure -background [colour paper] -foreground [colour text] -selectcolor [colour accent] \
        -activebackground [colour chosen] -activeforeground [colour text] -disabledforeground [colour disabled]
}

proc ::znbrowser::drawSurface {n} {
    upvar #0 ::znbrowser::window$n w
    set w(paper) [colourOr [dict get $w(look) background] [colour paper]]
    $w(tree) configure -background $w(paper)
    foreach name $w(elements) {styleElement $n $name}
    $w(tree) element configure back -fill [list [colour chosen] chosen [colour drop] drop \
        [colour hover] hover {*}[expr {[dict get $w(look) stripes] ? [list [colour stripe] odd] : ""}]]
}

# The status line: how much there is to see.
proc ::znbrowser::drawStatus {n} {
    upvar #0 ::znbrowser::window$n w
    set rows [dict get $w(look) rows]
    set text "[grouped $rows] [expr {$rows == 1 ? "row" : "rows"}]"
    if {[dict exists $w(look) selected] && [dict get $w(look) selected]} {
        append text "   ·   [grouped [dict get $w(look) selected]] selected"
    }
    if {[info exists w(seeking)] && [dict get $w(seeking) looked]} {
        append text "   ·   searching: [matchCount [dict get $w(seeking) found]] in [grouped [dict get $w(seeking) looked]] rows …"
    } elseif {[filtered $n]} {
        append text "   ·   [matchCount [host matches $n]]"
    }
    $w(path).status.count configure -text $text
}

proc ::znbrowser::matchCount {matches} {return "[grouped $matches] [expr {$matches == 1 ? "match" : "matches"}]"}

# A number with its thousands apart.
proc ::znbrowser::grouped {number} {
    while {[regsub {^(\d+)(\d{3})} $number "\\1\u202f\\2" number]} {}
    return $number
}

# A message in the status line, for a while.
proc ::znbrowser::say {n message} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(timer,message)]} {after cancel $w(timer,message)}
    unset -nocomplain w(timer,message)
    $w(path).status.message configure -text [string map {\n " " \t " "} $message]
    if {$message ne ""} {set w(timer,message) [after 8000 [list ::znbrowser::say $n ""]]}
}

# Colours, fonts and the styles of ttk widgets.

namespace eval ::znbrowser {
    variable colours {
        surface #f4f5f7  paper #ffffff  stripe #f5f8fb  text #1d2733  faint #66727f  line #d8dde3
        header #eef0f3   headerHot #e3e7ec  chosen #cde3fa  hover #edf4fc  drop #ffe9b8  focus #5a9ae6
        button #f2f4f7   buttonLine #b9c2cc  accent #1f6fd1  problem #b3261e  tip #fffbe8
    }
}

proc ::znbrowser::colour {name} {
    variable colours
    return [dict get $colours $name]
}

proc ::znbrowser::prepareLook {} {
    prepareFonts
    ttk::style theme use clam
    ttk::style configure . -font TkDefaultFont -background [colour surface] -foreground [colour text]
    ttk::style configure Browser.TFrame -background [colour surface]
    ttk::style configure Line.TFrame -background [colour line]
    ttk::style configure Status.TLabel -background [colour surface] -foreground [colour faint] \
        -font znBrowserSmall
    ttk::style configure Message.TLabel -background [colour surface] -foreground [colour problem] \
        -font znBrowserSmall
    ttk::style configure Search.TEntry -padding {6 4} -fieldbackground [colour paper] \
        -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
    ttk::style map Search.TEntry -bordercolor [list focus [colour accent]] \
        -lightcolor [list focus [colour accent]] -darkcolor [list focus [colour accent]]
    ttk::style configure Browser.TCombobox -selectbackground [colour paper] -selectforeground [colour text]
    ttk::style map Browser.TCombobox -fieldbackground [list readonly [colour paper]] \
        -bordercolor [list focus [colour accent]]
    foreach style {Tool.TButton Tool.TMenubutton} {
        ttk::style configure $style -padding {8 3} -background [colour paper] -relief flat -width 0 \
            -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
        ttk::style map $style -background [list pressed [colour headerHot] active [colour header]]
    }
    ttk::style configure Tool.Toolbutton -padding {8 3} -background [colour paper] -relief flat -width 0 \
        -bordercolor [colour buttonLine] -lightcolor [colour paper] -darkcolor [colour paper]
    ttk::style map Tool.Toolbutton -background [list selected [colour chosen] active [colour header]] \
        -relief {selected sunken}
    ttk::style configure Bar.TCheckbutton -background [colour surface] -focuscolor [colour accent]
    ttk::style map Bar.TCheckbutton -background [list active [colour surface]]
    ttk::style layout Link.TButton [ttk::style layout Toolbutton]
    ttk::style configure Link.TButton -background [colour surface] -foreground [colour accent] -relief flat \
        -padding {2 0} -borderwidth 0 -font znBrowserLink
    ttk::style map Link.TButton -background [list active [colour header]]
    ttk::style configure Panel.TFrame -background [colour paper] -relief solid -borderwidth 1 \
        -bordercolor [colour buttonLine]
    ttk::style configure Panel.TLabel -background [colour paper]
    ttk::style configure Browser.Horizontal.TProgressbar -background [colour accent] \
        -troughcolor [colour header] -bordercolor [colour line] -lightcolor [colour accent] \
        -darkcolor [colour accent]
    foreach style {Vertical.TScrollbar Horizontal.TScrollbar} {
        ttk::style configure $style -gripcount 0 -background [colour line] -troughcolor [colour surface] \
            -bordercolor [colour surface] -lightcolor [colour line] -darkcolor [colour line] \
            -arrowcolor [colour faint] -arrowsize 12
        ttk::style map $style -background [list active [colour buttonLine] disabled [colour surface]]
    }
}

# The fonts of rows: they go by TkDefaultFont, in every combination of bold and italic.
proc ::znbrowser::prepareFonts {} {
    set actual [font actual TkDefaultFont]
    foreach {name bold italic} {znBrowser00 0 0 znBrowser10 1 0 znBrowser01 0 1 znBrowser11 1 1} {
        catch {font create $name}
        font configure $name {*}$actual -weight [expr {$bold ? "bold" : "normal"}] \
            -slant [expr {$italic ? "italic" : "roman"}]
    }
    catch {font create znBrowserSmall}
    font configure znBrowserSmall {*}$actual -size [expr {max(8, [dict get $actual -size] - 1)}]
    catch {font create znBrowserLink}
    font configure znBrowserLink {*}[font configure znBrowserSmall] -underline 1
}

proc ::znbrowser::fontOf {bold italic} {return znBrowser[expr {!!$bold}][expr {!!$italic}]}

# The height of every row, in pixels.
proc ::znbrowser::rowHeight {} {return [expr {max(22, [font metrics znBrowser00 -linespace] + 8)}]}

# A colour that a user named, or another one when Tk knows none of that name.
proc ::znbrowser::colourOr {wanted other} {
    if {$wanted eq "" || [catch {winfo rgb . $wanted}]} {return $other}
    return $wanted
}

proc ::znbrowser::makeMenu {path args} {
    menu $path -tearoff 0 -relief solid -borderwidth 1 -activeborderwidth 3 -font znBrowser00 \
        -background [colour paper] -foreground [colour text] -selectcolor [colour accent] \
        -activebackground [colour chosen] -activeforeground [colour text] \
        -disabledforeground [colour buttonLine] {*}$args
}

proc ::znbrowser::drawSurface {n} {
    upvar #0 ::znbrowser::window$n w
    $w(tree) configure -background [colourOr [dict get $w(look) background] [colour paper]]
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
    if {[dict exists $w(look) filter] && [dict get $w(look) filter] ne ""} {append text "   ·   filtered"}
    $w(path).status.count configure -text $text
}

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

# The list of keys, behind F1; and the menu of the open windows.

namespace eval ::znbrowser {
    variable keyHelp {
        "Rows" {
            "Up, Down, Page Up, Page Down, Home, End" "go to another row; with Shift, select up to it; with Ctrl, select nothing"
            "Right, +"          "opens a row, or goes into it"
            "Left, -"           "closes a row, or goes to the one above it"
            "*"                 "opens all below a row"
            "Return"            "opens or closes a row"
            "Space, Ctrl-Space" "selects a row; adds it or takes it away"
            "Ctrl-A"            "selects all rows; in a field, its text"
            "Ctrl-C"            "copies the selected rows"
            "Letters"           "go to the row that begins so"
            "Ctrl-Left, Ctrl-Right" "scroll sideways; the wheel with Shift, too"
            "Menu, Shift-F10"   "opens the menu of a row"
            "F4"                "shows or hides all values of the current row, and what it refers to"
        }
        "Search" {
            "Ctrl-F"            "goes to the search field"
            "Return, Shift-Return" "there, go to the next match; to the one before"
            "Down"              "there, goes to the rows"
            "Ctrl-Shift-F"      "searches names, or all columns shown"
            "Escape"            "ends the search; closes what is open; cancels what takes long"
        }
        "Window" {
            "Tab, Shift-Tab"    "go from control to control"
            "F5"                "reads again"
            "Ctrl-K"            "shows or hides the collector bar"
            "Ctrl-Z, Ctrl-Shift-Z" "take back the collector's last step; do it again"
            "Ctrl-+, Ctrl--, Ctrl-0" "larger, smaller, as at first; the wheel with Ctrl, too"
            "F1"                "shows this list"
        }
        "Browser of a database" {
            "Ctrl-O"            "opens another file"
            "Ctrl-Return"       "opens the table by itself"
            "Ctrl-Z"            "takes back the last change of the file"
        }
        "All values of a row" {
            "Tab, Shift-Tab"    "go from link to link"
            "Return"            "goes to the row that a link names, or lists those that refer to this one"
            "Up, Down, Page Up, Page Down" "scroll"
            "Escape, F4"        "goes back to the rows; closes it"
        }
        "List of columns" {
            "Space, Return"     "shows or hides a column"
            "Alt-Up, Alt-Down"  "move it"
            "Down"              "goes from the field to the list"
        }
    }
}

# The list of keys of a window, for scripts and tests; empty while it is not there.
proc ::znbrowser::keyList {name} {
    set path [set ::znbrowser::window[number $name](path)].keys
    return [expr {[winfo exists $path] ? $path : ""}]
}

# Shows the list, or takes it away.
proc ::znbrowser::showKeys {n} {
    upvar #0 ::znbrowser::window$n w
    variable keyHelp
    if {![isOpen $n]} return
    set list $w(path).keys
    if {[winfo exists $list]} {return [hideKeys $n]}
    toplevel $list -background [colour surface]
    wm withdraw $list
    wm title $list "Keys"
    wm transient $list [winfo toplevel $w(path)]
    wm protocol $list WM_DELETE_WINDOW [list ::znbrowser::hideKeys $n]
    ttk::frame $list.keys -style Browser.TFrame -padding [list [scaled 16] [scaled 12]]
    set place 0
    foreach side {left right} {
        pack [ttk::frame $list.keys.$side -style Browser.TFrame] -side left -anchor n -padx [list 0 [scaled 12]]
    }
    dict for {title keys} $keyHelp {
        listKeys $list.keys.[expr {[incr place] <= 2 ? "left" : "right"}] $place $title $keys
    }
    ttk::button $list.close -text Close -style Tool.TButton -command [list ::znbrowser::hideKeys $n]
    pack $list.keys
    pack $list.close -pady [list 0 [scaled 12]]
    foreach key {Escape F1} {bind $list <$key> [list ::znbrowser::hideKeys $n]}
    placeDialog $n $list
    focus $list.close
}

# The keys of one place, below those that are listed already.
proc ::znbrowser::listKeys {list place title keys} {
    grid [ttk::label $list.title$place -text $title -font znBrowser10] -columnspan 2 -sticky w -pady {6 2}
    set number 0
    foreach {key does} $keys {
        grid [ttk::label $list.key$place,[incr number] -text $key -wraplength [scaled 170]] \
            [ttk::label $list.does$place,$number -text $does -wraplength [scaled 270]] -sticky nw -padx [list 0 [scaled 14]]
    }
}

proc ::znbrowser::hideKeys {n} {
    upvar #0 ::znbrowser::window$n w
    destroy $w(path).keys
    if {[isOpen $n]} {focus $w(tree)}
}

# ---- Windows

proc ::znbrowser::buildWindows {n bar} {
    ttk::menubutton $bar.windows -text "Windows" -style Tool.TMenubutton -menu $bar.windows.menu
    makeMenu $bar.windows.menu -postcommand [list ::znbrowser::fillWindows $n $bar.windows.menu]
    giveTip $n $bar.windows "The open windows"
    pack $bar.windows -side right -padx {6 0}
}

# A line for each window; the chosen one comes before the others.
proc ::znbrowser::fillWindows {n menu} {
    upvar #0 ::znbrowser::window$n w
    $menu delete 0 end
    set w(pick,window) $n
    foreach each [windows] {
        $menu add radiobutton -label [oneLine [set ::znbrowser::window${each}(name)]] -value $each \
            -variable ::znbrowser::window${n}(pick,window) -command [list ::znbrowser::raiseWindow $each]
    }
    $menu add separator
    $menu add command -label "Side by side" -command ::znbrowser::arrangeWindows
    $menu add command -label "Close" -command [list ::znbrowser::unpost $n]
}

proc ::znbrowser::raiseWindow {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    set top [winfo toplevel $w(frame)]
    wm deiconify $top
    raise $top
    focus -force $w(tree)
}

# The windows that have a toplevel of their own share the screen.
proc ::znbrowser::arrangeWindows {} {
    set tops [lmap n [windows] {
        if {![set ::znbrowser::window${n}(owns)]} continue
        set ::znbrowser::window${n}(frame)
    }]
    if {$tops eq ""} return
    set columns [expr {ceil(sqrt([llength $tops]))}]
    set rows [expr {ceil([llength $tops] / $columns)}]
    set width [expr {int([winfo screenwidth .] / $columns)}]
    set height [expr {int([winfo screenheight .] / $rows)}]
    set place 0
    foreach top $tops {
        wm geometry $top [expr {$width - 8}]x[expr {$height - 36}]+[expr {int($place % int($columns)) * $width}]+[expr {
            int($place / int($columns)) * $height}]
        incr place
    }
}

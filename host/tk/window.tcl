# Windows: what stands in one, how it opens and closes, and how it hears of changes.
#
# The host knows a window by a number; so does everything here. What is known of window 3 stands in the array
# ::znbrowser::window3, and no name or text of a user is ever part of a path, of a tag or of a script. Nor is one the
# result of an `expr`, which would make another number of "007", and an error of "NaN".
#
#   name frame path tree  the window's name; the frame in which it stands, its own part of that, and its tree
#   look                  what the host said last of everything but the rows
#   first full page       the position of the first row drawn, how many rows fit, and the rows drawn
#   bare                  whether it shows what is stored as it is: NULL as such, numbers in columns that grow with them
#   flat                  whether the column with the tree is left out: no row has rows below it
#   active anchor         the Tk indices of the row with the focus, and of where a range of rows begins

namespace eval ::znbrowser {
    variable numberOf ;# the numbers of windows, by their trees and by their frames
    array set numberOf {}
}

# ---- For tests and scripts: what stands where

# The numbers of the open windows.
proc ::znbrowser::windows {} {
    return [lsort -integer [lmap name [info vars ::znbrowser::window\[0-9\]*] {
        string range $name [string length ::znbrowser::window] end
    }]]
}

# The number of the open window of that name; an error when there is none.
proc ::znbrowser::number {name} {
    foreach n [windows] {
        upvar #0 ::znbrowser::window$n w
        if {$w(name) eq $name} {return $n}
    }
    error "there is no open window \"$name\""
}

# The TreeCtrl of a window.
proc ::znbrowser::tree {name} {return [set ::znbrowser::window[number $name](tree)]}

# The frame in which a window stands.
proc ::znbrowser::frame {name} {return [set ::znbrowser::window[number $name](frame)]}

# The item of the TreeCtrl that draws a row; empty while the row is not on the screen.
proc ::znbrowser::itemAt {name tkIndex} {
    set n [number $name]
    flush $n
    upvar #0 ::znbrowser::window$n w
    set slot [slotOf $n $tkIndex]
    return [expr {$slot < 0 ? "" : $w(item,$slot)}]
}

# The column of the TreeCtrl that draws a column of the view; empty while it is hidden.
proc ::znbrowser::columnAt {name column} {
    set n [number $name]
    flush $n
    upvar #0 ::znbrowser::window$n w
    foreach number $w(shown) {
        if {[dict get [lindex $w(columns) $number] name] eq $column} {return $w(column,$number)}
    }
    return ""
}

# The box of a row, of a cell of it or of an element in the cell, in the pixels of the tree: x1 y1 x2 y2.
# Elements are counted from 0; "expander" is what opens and closes a row, "button1" the Retry of one that cannot be read.
proc ::znbrowser::boxOf {name tkIndex {column ""} {element ""}} {
    set item [itemAt $name $tkIndex]
    if {$item eq ""} {return ""}
    set words [list $item]
    if {$column ne ""} {lappend words [columnAt $name $column]}
    if {$element ne ""} {lappend words [elementNamed $name $tkIndex $column $element]}
    set box [[tree $name] item bbox {*}$words]
    if {$column eq "" && $box ne ""} { # the tree widget leaves out the column that stays when the others are scrolled
        upvar #0 ::znbrowser::window[number $name] w
        lset box 0 [lindex [$w(tree) item bbox $item $w(column,[lindex $w(shown) 0])] 0]
    }
    return $box
}

# ---- Opening and closing

# Once, as soon as Tk is there.
proc ::znbrowser::prepare {} {
    catch {useTheme [option get . znbrowserTheme ZnbrowserTheme]}
    prepareLook
    prepareImages
    bindMouse
    bindKeys
    bindWindowKeys
}

# Opens window `n`, in the frame that it names when there is such a frame, else in a toplevel of its own.
# Answers the frame.
proc ::znbrowser::open {n name frame} {
    variable numberOf
    upvar #0 ::znbrowser::window$n w
    array set w [list name $name first 0 full 1 page {} columns {} shown {} active -1 anchor -1 \
        pending {} reported -1 trouble {} menu 0 menus 0 bare 0 grown {} measured {} sized {} chooserAt {} watchers {} flat 0 locked 0 indents {0 18} visible {} \
        look [host look $n] paper [colour paper]]
    set w(owns) [expr {$frame eq "" || ![winfo exists $frame]}]
    if {$w(owns)} {set frame [makeToplevel $n $name $frame]}
    set w(frame) $frame
    set w(path) [string trimright $w(frame) .].znbrowser
    set numberOf($w(frame)) $n
    if {[winfo toplevel $w(frame)] eq "."} {wm deiconify .}
    build $n
    set w(first) [dict get $w(look) scroll]
    set w(reported) $w(first)
    changed $n allCells 0
    return $w(frame)
}

proc ::znbrowser::makeToplevel {n name frame} {
    # A name for which there is no parent, or that Tk does not take, is no reason to show nothing.
    if {![string match .* $frame] || [catch {toplevel $frame -background [colour surface]}]} {
        set frame .znbrowser$n
        toplevel $frame -background [colour surface]
    }
    wm title $frame $name
    wm geometry $frame [scaled 960]x[scaled 620]
    wm minsize $frame 360 200
    wm protocol $frame WM_DELETE_WINDOW [list ::znbrowser::unpost $n]
    return $frame
}

# What stands in a window: above the tree what searches, below it what counts.
proc ::znbrowser::build {n} {
    variable numberOf
    upvar #0 ::znbrowser::window$n w
    ttk::frame $w(path) -style Browser.TFrame
    ttk::frame $w(path).bar -style Browser.TFrame -padding {8 6 8 6}
    ttk::panedwindow $w(path).panes -orient horizontal
    ttk::frame $w(path).body -style Browser.TFrame
    $w(path).panes add $w(path).body -weight 1
    ttk::frame $w(path).line -style Line.TFrame -height 1
    ttk::frame $w(path).status -style Browser.TFrame -padding {10 3 10 4}
    buildTree $n $w(path).body
    buildChooser $n $w(path).bar
    buildCollectorButton $n $w(path).bar
    buildWindows $n $w(path).bar
    buildSearch $n $w(path).bar
    buildStates $n $w(path).status
    buildRecorder $n $w(path).status
    buildTools $n $w(path).bar
    ttk::label $w(path).status.count -style Status.TLabel -anchor w
    ttk::label $w(path).status.message -style Message.TLabel -anchor e
    ttk::label $w(path).status.help -style Status.TLabel -anchor w
    buildHidden $n $w(path).status
    pack $w(path).status.count -side left
    pack $w(path).status.help -side left -padx {16 0}
    pack $w(path).status.message -side right -fill x -expand 1 -padx {16 0}
    pack $w(path).bar -side top -fill x
    pack $w(path).status -side bottom -fill x
    pack $w(path).line -side bottom -fill x
    pack $w(path).panes -side top -fill both -expand 1
    pack $w(path) -side top -fill both -expand 1
    set numberOf($w(tree)) $n
    bind $w(path) <Destroy> [list ::znbrowser::destroyed $n %W]
    set top [winfo toplevel $w(path)]
    bind $top <Control-f> [list ::znbrowser::focusSearch $n]
    foreach key {f F} {bind $top <Control-Shift-$key> [list ::znbrowser::switchScope $n]}
    takeWindowKeys $w(path)
    focus $w(tree)
}

# The host closes the window: what is left of it on the screen goes, and so do the frames of its parts.
proc ::znbrowser::close {n args} {
    variable numberOf
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(name)]} return
    foreach timer [array names w timer,*] {after cancel $w($timer)}
    unset -nocomplain numberOf($w(tree)) numberOf($w(frame))
    unpostMenu $n
    set w(closing) 1
    if {[stands $w(path)]} {destroy $w(path)}
    foreach part $args {removePart $part}
    if {$w(owns) && [stands $w(frame)]} {destroy $w(frame)} ;# a frame of somebody else's stays
    unset w ;# last: a field that is still there would make its variable anew
}

# Whether there is such a frame; there is none when Tk itself has ended.
proc ::znbrowser::stands {path} {return [expr {![catch {winfo exists $path} there] && $there}]}

# Whether the window is still there: a script that runs, or somebody else's, may close it at any time.
proc ::znbrowser::isOpen {n} {
    upvar #0 ::znbrowser::window$n w
    return [expr {[info exists w(tree)] && ![info exists w(closing)] && [stands $w(tree)]}]
}

# Its user closes the window: it is posted no more, and the host closes what is here.
proc ::znbrowser::unpost {n} {
    upvar #0 ::znbrowser::window$n w
    if {![info exists w(name)]} return
    if {[host busy]} {
        if {[winfo exists $w(path).progress]} {host cancel} ;# nobody waits for it any longer
        if {$w(owns) && [stands $w(frame)]} {wm withdraw $w(frame)} ;# it is gone at once, as far as anybody sees
        after 100 [list ::znbrowser::unpost $n]
        return
    }
    set name $w(name)
    foreach words [list [list window current $name] {window post false}] {
        manager {*}$words
        record $n [list znbrowsermanager {*}$words]
    }
    if {[isOpen $n] && $w(owns)} {wm deiconify $w(frame)} ;# it was refused
}

# Somebody destroyed the frame in which the window stood.
proc ::znbrowser::destroyed {n path} {
    upvar #0 ::znbrowser::window$n w
    if {[info exists w(path)] && $w(path) eq $path && ![info exists w(closing)]} {
        after idle [list ::znbrowser::unpost $n]
    }
}

# ---- Parts of windows

# The frame of a part, unless the part's own procedure made it.
proc ::znbrowser::makePart {path} {
    set parent [string range $path 0 [string last . $path]-1]
    if {![winfo exists $path] && ($parent eq "" || [winfo exists $parent])} {ttk::frame $path}
}

# Parts stand one below the other, in front of those behind them, unless their own procedures put them elsewhere;
# the tree takes the rest.
proc ::znbrowser::packPart {n path args} {
    upvar #0 ::znbrowser::window$n w
    if {![winfo exists $path]} return
    if {[winfo manager $path] eq ""} {
        set next [lindex [lmap slave [pack slaves [winfo parent $path]] {if {$slave ni $args} continue; set slave}] 0]
        pack $path -side top -fill x {*}[if {$next ne ""} {list -before $next}]
    }
    if {[info exists w(path)] && [winfo manager $w(path)] eq "pack"} {
        pack forget $w(path)
        pack $w(path) -side top -fill both -expand 1
    }
}

proc ::znbrowser::removePart {path} {
    if {[stands $path]} {destroy $path}
}

proc ::znbrowser::hidePart {path} {
    if {![winfo exists $path]} return
    switch [winfo manager $path] {
        pack - grid - place {[winfo manager $path] forget $path}
    }
}

# ---- Events to the host, and changes from it
#
# "manager" is the manager's command, which has another name when a script gave it one.

# An event of the tree: "OnTkTree..." and its arguments behind the window's name.
proc ::znbrowser::event {n event args} {
    upvar #0 ::znbrowser::window$n w
    return [tell $n [list $event $w(name) {*}$args]]
}

# Any other command, about the window.
proc ::znbrowser::command {n args} {
    upvar #0 ::znbrowser::window$n w
    set name $w(name)
    return [expr {[tell $n [list window current $name]] && [tell $n $args]}]
}

# A command about one of the window's columns; the column that was current stays so.
proc ::znbrowser::columnCommand {n column args} {
    upvar #0 ::znbrowser::window$n w
    if {![tell $n [list window current $w(name)]]} {return 0}
    set before [manager view column current]
    set done [expr {[tell $n [list view column current $column]] && [tell $n $args]}]
    if {$before ne ""} {catch {manager view column current $before}}
    return $done
}

# Says it to the manager. What comes back, other than the answer to a question, is why it was refused: then
# the answer is 0, and the reason stands in the status line. A script that runs may close the window.
proc ::znbrowser::tell {n words} {
    host error
    host begin $n
    set line [lineFor $n $words]
    set failed [catch {manager {*}$words} answer]
    if {[regexp {^\[Command\] .*?\n\t\[Error\] (.*)$} $answer -> answer]} {set failed 1}
    set refusal [host error]
    if {!$failed} {record $n $line}
    if {!$failed || ($answer eq "Unknown error" && $refusal ne "")} {set answer $refusal}
    if {$answer eq "Unknown error"} {set answer "This cannot be done here"}
    finish $n $answer
    return [expr {!$failed && [isOpen $n]}]
}

# The work that began is done, and there is something to say, or nothing. It stays until there is something new.
proc ::znbrowser::finish {n message} {
    upvar #0 ::znbrowser::window$n w
    set cancelled [host end]
    if {![isOpen $n]} return
    set w(trouble) {}
    if {$cancelled} {set message "Cancelled: what is shown is not complete."}
    say $n $message
}

# Something changed: pairs of a kind of change and a Tk index, or nothing when the host knows what. It is
# drawn as soon as there is nothing else to do.
proc ::znbrowser::changed {n args} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    foreach {kind index} $args {dict set w(pending) $kind $index}
    if {![info exists w(timer,draw)]} {set w(timer,draw) [after idle [list ::znbrowser::flush $n]]}
}

# Draws now what is waiting to be drawn.
proc ::znbrowser::flush {n} {
    upvar #0 ::znbrowser::window$n w
    if {![isOpen $n]} return
    if {[info exists w(timer,draw)]} {
        after cancel $w(timer,draw)
        unset w(timer,draw)
    }
    if {[host busy]} {
        set w(timer,draw) [after 50 [list ::znbrowser::flush $n]]
        return
    }
    set changes [dict merge $w(pending) [host changes $n]]
    set w(pending) {}
    if {$changes eq ""} return
    host begin $n
    try {
        draw $n $changes
    } finally {
        if {[host end] && [isOpen $n]} {say $n "Cancelled: what is shown is not complete."}
    }
    followAids $n
}

# Opens, or closes, what the host knows to be open beside the rows.
proc ::znbrowser::followAids {n} {
    upvar #0 ::znbrowser::window$n w
    foreach {aid show hide} {details showDetails hideDetails chooser showChooser hideChooser} {
        if {![isOpen $n] || [dict get $w(look) $aid] == [winfo exists $w(path).$aid]} continue
        [expr {[dict get $w(look) $aid] ? $show : $hide}] $n
    }
}

# Its user opens or closes one of them.
proc ::znbrowser::switchAid {n aid open} {
    upvar #0 ::znbrowser::window$n w
    if {[isOpen $n] && [tell $n [list app $aid $w(name) $open]]} {flush $n}
}

# Draws what changed.
proc ::znbrowser::draw {n changes} {
    upvar #0 ::znbrowser::window$n w
    set w(look) [host look $n]
    if {[dict exists $changes allCells] || [dict exists $changes allFilled]} {
        set w(detailOf) ""
        drawSurface $n
        drawColumns $n
        followSearch $n
        measure $n
    }
    if {[dict exists $changes filled] || [dict exists $changes allFilled] || [dict exists $changes allCells]} {
        set w(measured) {} ;# other texts are seen
    }
    if {[dict exists $changes collector] || [dict exists $changes allCells] || [dict exists $changes allFilled]} {
        drawCollector $n
    }
    keepPlace $n
    if {[dict exists $changes shown]} {reveal $n [dict get $changes shown]}
    drawPage $n
    if {![isOpen $n]} return
    drawStatus $n
    showNoMatch $n
    followRecording
    if {[dict get [host look $n] uncounted] && ![info exists w(timer,count)]} {
        set w(timer,count) [after 20 [list ::znbrowser::countMore $n]]
    }
    followTrouble $n
}

# Counts what took too long when the window was drawn, while nothing happens.
proc ::znbrowser::countMore {n} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,count)
    if {![isOpen $n]} return
    lassign [meanwhile $n {host count $n}] done more
    if {[isOpen $n] && (!$done || $more)} {
        set w(timer,count) [after [expr {$done ? 20 : 400}] [list ::znbrowser::countMore $n]]
    }
}

# Does something that nobody waits for. Answers whether it was done to the end, and its result: whatever happens, such
# as a key, comes before it.
proc ::znbrowser::meanwhile {n script} {
    if {[host busy]} {return 0}
    host meanwhile $n
    set failed [catch {uplevel 1 $script} result]
    if {[host end]} {return 0}
    if {$failed} {error $result}
    return [list 1 $result]
}

# What could not be read is said as long as it cannot; what others keep from being read is tried again.
proc ::znbrowser::followTrouble {n} {
    upvar #0 ::znbrowser::window$n w
    set trouble [host trouble $n]
    if {$trouble ne ""} {
        say $n $trouble
        if {[string match "* (retry)" $trouble] && ![info exists w(timer,retry)]} {
            set w(timer,retry) [after 1000 [list ::znbrowser::retry $n]]
        }
    } elseif {$w(trouble) ne ""} {
        say $n ""
    }
    set w(trouble) $trouble
}

# Reads everything anew: what could not be read before perhaps can be now.
proc ::znbrowser::readAgain {n} {
    foreach control [manager app datactrl names] {catch {manager app datactrl refresh $control}}
    changed $n allCells 0
}

proc ::znbrowser::retry {n} {
    upvar #0 ::znbrowser::window$n w
    unset -nocomplain w(timer,retry)
    changed $n allCells 0
}

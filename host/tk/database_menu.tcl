# The menu of a browser's window that is about the database as a whole: opening another one, changing this one, looking
# at it again. A browser looks by itself, too, whether another program has changed the file.

namespace eval ::znbrowser::any {
    variable lookEvery 1000 ;# milliseconds between two looks at the file
    variable mayChange      ;# by window: the check box "Allow changes"
}

proc ::znbrowser::any::AddDatabaseMenu {window} {
    set n [::znbrowser::number $window]
    upvar #0 ::znbrowser::window$n w
    set button $w(path).bar.database
    ttk::menubutton $button -text "Database" -style Tool.TMenubutton -menu $button.menu
    ::znbrowser::makeMenu $button.menu -postcommand [list ::znbrowser::any::FillDatabaseMenu $n $button.menu]
    ::znbrowser::makeMenu $button.menu.recent -postcommand [list ::znbrowser::any::FillRecent $n $button.menu.recent]
    pack $button -side left -padx {0 6} -before [lindex [pack slaves $w(path).bar] 0]
    ::znbrowser::takeWindowKeys $button
    ttk::label $w(path).status.access -style Status.TLabel
    pack $w(path).status.access -side left -padx {0 16} -before $w(path).status.count
    SayAccess $n
    set w(elsewhere) ::znbrowser::any::ShowElsewhere
    set w(named) ::znbrowser::any::TablesNamed
    set w(keeping) ::znbrowser::any::MakeStates
    set top [winfo toplevel $w(path)]
    wm title $top [TitleOf $window]
    foreach {key command} {
        Control-o Open F5 Refresh Control-z Undo Control-Return GridOfCurrent Control-KP_Enter GridOfCurrent
    } {
        foreach tag [list $top $w(tree)] {bind $tag <$key> "[list ::znbrowser::any::$command $n]; break"}
    }
    after cancel ::znbrowser::any::LookAtFiles
    after $::znbrowser::any::lookEvery ::znbrowser::any::LookAtFiles
}

# The file, and what of it is shown.
proc ::znbrowser::any::TitleOf {window} {
    set control [ControlOf $window]
    set file [FileOf $control]
    set part [string range $window [string length $control] end]
    if {$file eq ""} {return "$control$part"}
    if {[IsOnServer $control]} {return "[file tail $file]$part — [string range $file 0 end-[string length /[file tail $file]]]"}
    return "[file tail $file]$part — [file dirname $file]"
}

proc ::znbrowser::any::FillDatabaseMenu {n menu} {
    variable mayChange
    upvar #0 ::znbrowser::window$n w
    set control [ControlOf $w(name)]
    $menu delete 0 end
    $menu add command -label "Open…" -accelerator Ctrl-O -command [list ::znbrowser::any::Open $n]
    $menu add cascade -label "Open recent" -menu $menu.recent \
        -state [expr {[RecentFiles] eq "" ? "disabled" : "normal"}]
    $menu add separator
    set table [TableOfCurrent $n]
    $menu add command -label [::znbrowser::oneLine "Table [expr {$table eq "" ? "" : "“$table” "}]by itself"] \
        -accelerator Ctrl-Return -state [expr {$table eq "" ? "disabled" : "normal"}] \
        -command [list ::znbrowser::any::GridOfCurrent $n]
    $menu add command -label "Details" -accelerator F4 -command [list ::znbrowser::toggleDetails $n]
    $menu add command -label "Read again" -accelerator F5 -command [list ::znbrowser::any::Refresh $n]
    $menu add separator
    set mayChange($w(name)) [string is true [Do app datactrl write $control]]
    $menu add checkbutton -label "Allow changes" -variable ::znbrowser::any::mayChange($w(name)) \
        -command [list ::znbrowser::any::AllowChanges $n]
    set changes [Do app datactrl changes $control]
    set label [expr {$changes eq "" ? "Undo" : "Undo “[lindex $changes end]”"}]
    $menu add command -label [string range [::znbrowser::oneLine $label] 0 70] -accelerator Ctrl-Z \
        -state [expr {$changes eq "" ? "disabled" : "normal"}] -command [list ::znbrowser::any::Undo $n]
}

proc ::znbrowser::any::FillRecent {n menu} {
    $menu delete 0 end
    foreach file [RecentFiles] {
        $menu add command -label [::znbrowser::oneLine $file] -command [list ::znbrowser::any::OpenFile $n $file]
    }
}

# Does something, and says in the window why it could not be done. Answers whether it was.
proc ::znbrowser::any::Try {n args} {
    if {[catch $args message]} {
        ::znbrowser::say $n $message
        return 0
    }
    return 1
}

# ---- Opening

proc ::znbrowser::any::Open {n} {
    upvar #0 ::znbrowser::window$n w
    set file [FileOf [ControlOf $w(name)]]
    set file [tk_getOpenFile -parent [winfo toplevel $w(path)] -title "Open a database" \
        -initialdir [expr {![file exists $file] ? [pwd] : [file dirname $file]}] \
        -filetypes {{Databases {.db .sqlite .sqlite3 .db3 .s3db .gpkg .mbtiles}} {{All files} *}}]
    if {$file ne ""} {OpenFile $n $file}
}

# Opens a browser on a file; that of a file that is open comes to the front. It is only read, as the window's own is.
proc ::znbrowser::any::OpenFile {n file} {
    foreach other [::znbrowser::windows] {
        upvar #0 ::znbrowser::window$other w
        if {![info exists w(elsewhere)] || $w(name) ne [ControlOf $w(name)]} continue
        if {[IsSameFile [FileOf $w(name)] $file]} {return [::znbrowser::raiseWindow $other]}
    }
    Try $n BrowseFile $file
}

# Whether two names are those of one database: of one file, by whatever links.
proc ::znbrowser::any::IsSameFile {one other} {
    if {$one ne "" && $one eq $other} {return 1}
    if {$one eq "" || [catch {file stat $one first; file stat $other second}]} {return 0}
    return [expr {$first(dev) == $second(dev) && $first(ino) == $second(ino)}]
}

proc ::znbrowser::any::BrowseFile {file} {
    set names [Do app datactrl names]
    set name [set stem [file rootname [file tail $file]]]
    for {set number 2} {$name in $names || ![catch {Do view current $name}]} {incr number} {set name $stem-$number}
    Do app datactrl open $name $file
    browse $name
}

# ---- Looking again

proc ::znbrowser::any::Refresh {n} {
    upvar #0 ::znbrowser::window$n w
    ::znbrowser::host begin $n
    set failed [catch {Do app datactrl refresh [ControlOf $w(name)]} message]
    set w(detailOf) ""
    ::znbrowser::finish $n [expr {$failed ? $message : ""}]
}

# Now and then: what other programs have changed in the files is shown. What cannot be read now is looked at later.
proc ::znbrowser::any::LookAtFiles {} {
    set controls {}
    foreach n [::znbrowser::windows] {
        upvar #0 ::znbrowser::window$n w
        if {[info exists w(elsewhere)]} {lappend controls [ControlOf $w(name)]}
    }
    if {$controls eq ""} return
    after $::znbrowser::any::lookEvery ::znbrowser::any::LookAtFiles
    if {[::znbrowser::host busy]} return
    foreach control [lsort -unique $controls] {catch {Do app datactrl follow $control}}
}

# ---- Changing

proc ::znbrowser::any::AllowChanges {n} {
    variable mayChange
    upvar #0 ::znbrowser::window$n w
    Try $n Do app datactrl write [ControlOf $w(name)] $mayChange($w(name))
    SayAccess $n
}

# In front of the count of rows stands whether the file is only read.
proc ::znbrowser::any::SayAccess {n} {
    upvar #0 ::znbrowser::window$n w
    set may [Do app datactrl write [ControlOf $w(name)]]
    $w(path).status.access configure -text [expr {$may ? "changes allowed" : "only read"}]
}

# Undoes a change of the database; where there is none, a step of the collector, as in any window.
proc ::znbrowser::any::Undo {n} {
    upvar #0 ::znbrowser::window$n w
    if {[Do app datactrl changes [ControlOf $w(name)]] eq ""} {return [::znbrowser::undoStep $n]}
    Try $n Do app datactrl undo [ControlOf $w(name)]
}

# ---- Tables by themselves

# The table of the current row, or of the list that it stands for.
proc ::znbrowser::any::TableOfCurrent {n} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set row [::znbrowser::rowOfIndex $n $w(active)]
    if {$row eq ""} return
    return [TableOf $w(name) [lindex $row 13]]
}

proc ::znbrowser::any::GridOfCurrent {n} {
    upvar #0 ::znbrowser::window$n w
    set table [TableOfCurrent $n]
    if {$table ne ""} {Try $n OpenGrid [ControlOf $w(name)] $table}
}

# The tables with that text in their names: for the first of them, a label and a command that goes there.
proc ::znbrowser::any::TablesNamed {n text} {
    variable followed
    upvar #0 ::znbrowser::window$n w
    set found {}
    foreach table [dict keys $followed($w(name),tables)] {
        if {[string first [string tolower $text] [string tolower $table]] < 0} continue
        lappend found "Table “$table”" [list ::znbrowser::any::GoToTable $n $table]
        if {[llength $found] >= 10} break
    }
    return $found
}

proc ::znbrowser::any::GoToTable {n table} {
    upvar #0 ::znbrowser::window$n w
    ::znbrowser::clearFilters $n
    if {![::znbrowser::isOpen $n] || [catch {Do app row $w(name) [list $table]} index]} return
    ::znbrowser::goTo $n select [::znbrowser::host position $n $index]
    focus $w(tree)
}

# A row that the window does not show: in the grid of its table.
proc ::znbrowser::any::ShowElsewhere {n table row} {
    upvar #0 ::znbrowser::window$n w
    if {[catch {OpenGrid [ControlOf $w(name)] $table} grid]} {return 0}
    if {![Do app reveal $grid $table $row]} {return 0}
    set other [::znbrowser::number $grid]
    ::znbrowser::flush $other
    ::znbrowser::selectRows $other OnTkTreeRequestSelectionUpdate [set ::znbrowser::window${other}(active)]
    return 1
}

# The popup menus of the gearbox browser: browser.tcl shows them on a right click, popup_menus.tcl prints them.

# Makes a menu, which the places show, and its items: the name of each, and its words with their arguments.
proc makeMenu {menu places items} {
    zn view popupmenu create $menu
    foreach place $places {zn view popupmenu connect {*}$place}
    foreach {item settings} $items {
        zn view popupmenuitem create $item
        foreach {word value} $settings {
            if {$word ni {container userinput}} {set value [list $value]}
            zn view popupmenuitem $word {*}$value
        }
    }
}

# The values in a column of these rows.
proc valuesIn {window rows column} {
    return [lmap row [zn app rows $window] {
        if {[dict get $row index] ni $rows || ![dict exists $row cells $column]} continue
        dict get $row cells $column
    }]
}

# ---- Rows of parts: whether they are released, and how many pieces there are

zn app inputfield create gearbox pieces unsigned

# Before the menu is shown: the check mark is that of the first part.
proc lookAtPart {window column rows} {
    set released [zn app sql gearbox {SELECT released FROM part WHERE number = ?} \
        [lindex [valuesIn $window $rows code] 0]]
    zn view popupmenu current part
    zn view popupmenuitem current release
    zn view popupmenuitem checked [expr {$released eq "1"}]
}
proc release {window item rows value} {
    foreach number [valuesIn $window $rows code] {
        zn app sql gearbox {UPDATE part SET released = ? WHERE number = ?} [string is true $value] $number
    }
}
# Before the user is asked: the field shows what there is.
proc askPieces {window item rows value} {
    zn userinput current pieces
    zn userinput value [lindex [valuesIn $window $rows pieces] 0]
}
# What the user has entered, as a list of names, types and values.
namespace eval ::znbrowser {
    proc UpdatePopupInputScript {fields} {
        foreach {name type value} $fields {set ::input($name) $value}
    }
}
proc setPieces {window item rows value} {
    zn app sql gearbox {UPDATE part SET quantity = ? WHERE number = ?} $::input(pieces) \
        [lindex [valuesIn $window $rows code] 0]
}
makeMenu part {{datasource part}} {
    release {caption Released checkable true script release help {Tick what may be built}}
    pieces  {caption Pieces... onsingleitem true preoperation askPieces userinput pieces script setPieces
             help {How often the part is needed}}
}
zn view popupmenu onpost lookAtPart

# ---- The column of masses

proc sortByMass {window item rows value} {
    zn view column current mass
    zn view sort $item
}
zn view column current mass
makeMenu masses {column} {
    ascending  {caption "Lightest first" showonfolder true script sortByMass}
    descending {caption "Heaviest first" showonfolder true script sortByMass}
}

# ---- All rows: the operations of the view, and one entry for each kind of item

proc selectAll {window item rows value} {
    zn datasource simple current $value
    zn view dataitem simple select
}
proc stripe {window item rows value} {zn window stripe $value}
makeMenu look {} {
    stripes {caption "Striped rows" checkable true checked true showonfolder true script stripe}
}
makeMenu select {} {
    every {container simple showonfolder true script selectAll}
}
makeMenu rows {view} {
    expand  {caption "Expand selected" operation "Expand selected" showonfolder true}
    line    {separator true showonfolder true}
    weigh   {caption "Weigh the gearbox" operation "Weigh the gearbox" showonfolder true}
    release {caption "Release all parts" operation "Release all parts" showonfolder true}
    line2   {separator true showonfolder true}
    select  {caption "Select all of" cascade select showonfolder true}
    look    {caption Look cascade look showonfolder true}
}

# A browser of the gearbox, to look at and to work with: znbrowsersh --tk examples/browser.tcl, or ./dev run.
#
# The structure is a tree with check boxes, numbers, pictures and colours; purchasing and materials are lists with the
# parts below. A right click offers the view's operations; ticking a box writes to the database.

interp alias {} zn {} znbrowsermanager

set here [file dirname [file normalize [info script]]]
zn app datactrl create gearbox [file join $here models gearbox.db]
zn datactrl current gearbox

# ---- What is shown of each kind of item: a property, and the column of its values ----

zn view create gearbox true
zn view datactrl connect
foreach source {assembly part feature supplier material heavy_part} {zn view datasource connect $source}

foreach {property type connections} {
    title    string  {assembly name part name feature name supplier name material name heavy_part name}
    code     string  {assembly code part number heavy_part number supplier country}
    kind     string  {feature kind}
    mass     double  {part mass heavy_part total_mass}
    pieces   integer {part quantity heavy_part quantity}
    done     bool    {part released feature checked}
    diameter double  {feature diameter}
    depth    double  {feature depth}
    density  double  {material density}
} {
    zn view property create $property
    zn view property type $type
    foreach {source field} $connections {zn view property connect $source $field}
}

foreach {column caption width justify} {
    code     Number        130 left
    kind     Kind           90 left
    mass     "Mass (kg)"    80 right
    pieces   Pieces         60 right
    done     Done           50 center
    diameter "Ø (mm)"       70 right
    depth    "Depth (mm)"   90 right
    density  "Density"      70 right
} {
    zn view column create $column
    zn view column caption $caption
    zn view column width $width
    zn view column justify $justify
    if {$column eq "kind"} continue
    zn view style create $column
    zn view element create value
    zn view element connect property $column
}
zn view column current Name
zn view column caption "Gearbox GX6"
zn view column width 300
zn view style create title
zn view element create title
zn view element connect property title

# ---- The kinds of features: a picture, and a colour for the word ----

foreach {map shows} {kindPictures icon kindColours rgb} {
    zn window map create $map
    zn window map type string $shows
}
foreach {kind colour} {
    hole #1f5fa8  bolt #1d7a46  face #6b6f76  fillet #8a5a00
    chamfer #a04000  thread #6a3d9a  keyway #a0286e  tooth #b02418
} {
    zn window map current kindPictures
    zn window map record create $kind [file join $here icons $kind.png]
    zn window map current kindColours
    zn window map record create $kind $colour
}
zn view column current kind
zn view style create kind
foreach {element map} {picture kindPictures word kindColours} {
    zn view element create $element
    zn view element connect property kind
    zn view element connect map $map
}

# ---- Folders: the structure as a tree, purchasing and materials as lists with the parts below ----

foreach {folder sources links} {
    Structure  {} {assembly assembly assembly.parent_id assembly part part.assembly_id part feature feature.part_id}
    Purchasing {supplier Suppliers heavy_part {Heavy parts}} {supplier part part.supplier_id part feature feature.part_id}
    Materials  {material {All materials}} {material part part.material_id part feature feature.part_id}
} {
    zn view folder current gearbox
    zn view folder create $folder
    zn view folder bold true
    zn view folder children count bynumber true
    if {$folder eq "Structure"} {zn view folder tree toplevel assembly assembly.parent_id}
    foreach {source caption} $sources {
        zn view list create $source
        zn view list current $source
        zn view list caption $caption
    }
    foreach {parent child reference} $links {zn view folder tree parentchild $parent $child $reference}
}
zn view folder current gearbox
zn view folder keepchildrenfoldersinorderascreated true

# ---- What a right click offers ----

proc weigh {} {
    set sum [zn app sql gearbox {SELECT round(sum(mass * quantity), 1) FROM part}]
    zn view column current mass
    zn view column caption "Σ $sum kg"
}
proc releaseAll {} {zn app sql gearbox {UPDATE part SET released = 1 WHERE released = 0}}
foreach {operation script} {"Weigh the gearbox" weigh "Release all parts" releaseAll "Expand selected" {zn window expandselected}} {
    zn view operation create $operation
    zn view operation script $script
}
source [file join $here menus.tcl]

# ---- The window, opened as far as the parts of the first assemblies ----

zn window create gearbox
proc openRow {text} {
    foreach row [zn app rows gearbox] {
        set name [regsub { \(\d+\)$} [dict get $row text] ""] ;# without the count behind it
        if {$name eq $text} {return [zn OnTkTreeRequestExpand gearbox [dict get $row index]]}
    }
}
foreach text {Structure {Gearbox GX6} {Input shaft} {Input bearing set} {Snap ring 35} Purchasing} {openRow $text}
zn window stripe true
zn window post true

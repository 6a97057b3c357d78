# Every row of every command table, in both connection schemes, on a small model, in sections: each is run again and
# again on a host of its own, behind the opening. Whatever fails below, each line must come back.
proc zn {args} {catch {znbrowsermanager {*}$args} answer; return $answer}
proc run {section} {lmap line $section {zn {*}$line}}
interp bgerror {} told
# The same in a window on a display: behind each line Tk does what that brought about, and the user goes on.
proc show {section} {
    foreach line $section {
        run [list $line]
        update
        if {[catch {znbrowser::tree win} tree]} continue
        foreach {event options} {
            Motion {-x 40 -y 30} ButtonPress-1 {-x 40 -y 30} ButtonRelease-1 {-x 40 -y 30} KeyPress-Down {}
            KeyPress-b {} ButtonPress-5 {}
        } {catch {event generate $tree <$event> {*}$options}}
        update
    }
}
proc value {item} {return v}
proc acting {view items} {foreach words {{showhide hide} undo {selection clear}} {zn collector {*}$words}}
proc going {view items} {zn collector isolate; zn window current win; zn window delete; zn view delete; error gone}
proc told {args} {foreach family {view window state datactrl} {zn $family current}}
namespace eval znbrowser {
    proc ResetSelectedFreeFoldersArray {} {zn view folder current}
    proc AddToSelectedFreeFoldersArray {name} {zn view folder selected}
}

# The model, in statements of SQL.
set model {
    {CREATE TABLE unit(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES unit(id), name TEXT, on_ BOOLEAN)}
    {CREATE TABLE note(id INTEGER PRIMARY KEY, unit INTEGER REFERENCES unit(id), text TEXT)}
    {INSERT INTO unit VALUES (1, NULL, 'a', 1), (2, 1, 'b', 0), (3, 2, 'c', 1)}
    {INSERT INTO note VALUES (1, 1, 'n'), (2, 3, 'o')}
}

set opening {
    {datactrl current m} {datasource simple create own Own text} {datasource simple connect unit}
    {datasource simple criteria create c} {datasource hierarchical create h 0 0}
    {datasource hierarchical connect parent unit x} {datasource hierarchical connect child unit unit.parent}
    {datasource hierarchical connect child note note.unit} {dataoperation create o}
    {dataoperation script x {told data}} {view create v} {view datactrl connect}
    {view datasource simple connect own} {view datasource simple connect unit}
    {view datasource hierarchical connect h} {view property create title} {view property type string}
    {view property connect unit name} {view property connect note text} {view property create flag}
    {view property type bool} {view property connect unit on_} {view property current title} {view column create c2}
    {view style create s} {view element create e} {view element connect property title} {view folder current v}
    {view folder create f} {view tree create h} {view folder current v}
    {view folder create g} {view list create unit} {view folder current v} {view operation create op}
    {view operation script {told view}} {datasource simple current unit}
}

set sections {
    data {
        {datactrl names} {datactrl current m} {view create w true} {view current v} {view names}
        {view datactrl connect} {view datactrl} {view namespace} {view flush true} {view italic enabled}
        {view italic} {datasource simple current own} {datasource simple names} {datasource simple caption Mine}
        {datasource simple filtercaption Few} {datasource simple connect current unit}
        {datasource simple connect note} {datasource simple script names} {datasource simple criteria current c}
        {datasource simple criteria type bool} {datasource simple criteria code {id > ?}}
        {datasource simple criteria type int} {datasource simple criteria data integer 1}
        {datasource simple criteria data bool 1 unsigned 2 double 3 string d} {datasource simple criteria data}
        {datasource simple criteria type} {datasource simple criteria names}
        {datasource simple property create p 0 value} {datasource simple property create p 0 value}
        {datasource simple property create a 1 string 2}
        {datasource simple property names} {datasource simple connected} {datasource simple dataitem ids}
        {view datasource simple disconnect unit} {view datasource simple connect unit}
        {view datasource simple connect note} {view datasource simple connected}
        {datasource hierarchical connect parent unit x} {datasource hierarchical connect parent names}
        {datasource hierarchical connect child names} {datasource hierarchical connected}
        {datasource hierarchical current h} {datasource hierarchical names} {datasource hierarchical criteria}
        {datasource hierarchical property} {view datasource hierarchical connected} {datareference names}
        {view datareference names} {view datareference connect unit.parent} {view datareference connect note.unit}
        {view datareference connected} {dataoperation current o} {dataoperation script x {told data}}
        {dataoperation script} {dataoperation perform} {dataoperation names} {userinput create f integer}
        {app inputfield create m f integer} {userinput names} {userinput current f} {userinput datatype}
        {userinput value 4} {userinput value} {userinput datatype bool} {userinput value on}
        {userinput datatype double} {userinput value 1.5} {userinput datatype unsigned} {userinput value 3}
        {userinput reset} {userinput script}
    }
    columns {
        {view property create scripted} {view property type string} {view property connect script value}
        {view property script told value} {view property connected}
        {view property names} {view property current title} {view property type} {datasource simple current unit}
        {datasource simple dataitem} {datasource hierarchical dataitem} {view column create c3 icon x}
        {view column create c4 checkbox} {view column create c5 button} {view column current c2}
        {view column caption C} {view column width 40} {view column width} {view column justify left}
        {view column move 0} {view column show true} {view column show} {view column sort enabled}
        {view column sort byname title} {view column sort byname} {view column italic enabled} {view column italic}
        {view column names} {view column popupmenu menu} {view column popupmenu}
        {view style create s2} {view style current s} {view style folder} {view style names}
        {view column current c3} {view style create ticks} {view element create tick}
        {view element connect property flag} {view column current c2} {view style current s}
        {view element create e2 text} {view element current e} {view element connect property title}
        {view element names} {element current e} {element names} {element description changed} {window map create g}
        {window map type integer string} {window map current g} {window map names} {window map record create 1 one}
        {window map record create disabled 2 two.png} {window map record names} {window map record delete 2}
        {view element connect map g} {view element connect map} {window map type} {window map create g2}
        {window map type bool icon} {window map record create true on.png} {window map type double rgb}
        {window map record create 1.5 1,2,3} {window map type unsigned string} {window map record create 3 three}
        {window map type string button} {window map record create k v} {window map record delete k}
        {view sort enabled} {view sort disabled} {view sort ascending} {view sort descending} {view sort}
    }
    folders {
        {view folder current v} {view folder current f} {datasource simple current unit}
        {view folder empty true recursive} {view folder empty} {view folder style true} {view folder style}
        {view folder bold true} {view folder italic true} {view folder keepchildrenfoldersinorderascreated true}
        {view folder keepchildrenfoldersinorderascreated} {view folder children count byimage true}
        {view folder children count bynumber true true} {view folder createexpanded unit}
        {view folder createexpanded unit 2} {view tree names} {view tree current h} {view tree group true}
        {view tree current h} {view tree show unit} {view tree show} {view tree hide note}
        {view folder tree toplevel unit unit.parent} {view folder tree toplevel}
        {view folder tree parentchild unit note note.unit} {view folder tree parentchild}
        {view folder tree update unit} {view folder dropitem datasource hierarchical h} {view folder dataitemtype}
        {view folder expand true} {view folder collapse} {view folder current v} {view folder children}
        {view folder current g} {view list add note true} {view list current unit} {view list caption L}
        {view list names} {view list names true} {view list group true} {view list style true}
        {view list expand true} {view list collapse} {view style connect} {view group children true}
        {view group children} {empty show true} {empty show} {view folder selection} {view folder selected}
        {view filter dataitemtype current unit} {view filter dataitemtype update} {view filter dataitemtype current}
        {view filter group true} {view filter group} {view filter option matchcase true}
        {view filter option matchcase} {view filter option matchword true} {view filter option matchword}
        {view filter string current a} {view filter string current} {view filter string current {}} {no filter}
        {view filter dataitemtype current unit note own} {view operation current op}
        {view operation script {told view}} {view operation editable true} {view operation connect}
        {view operation names} {view operation perform}
    }
    windows {
        {window create win} {window part create part} {window listener connect told} {view column create c3}
        {view column current c3} {view style create ticks} {view element create tick}
        {view element connect property flag} {window current win} {window frame .f} {window names}
        {window background red true} {window background} {window stripe true all} {window stripe}
        {window part create below part} {window part createproc told x} {window part packproc told x}
        {window part event current SELECTION_CHANGED} {window part event names}
        {window part event callback create told script} {window part event callback create here WINDOW_OPERATION}
        {window part event callback current here} {window part event callback window win}
        {window part event callback operation TREE_AREA_SELECT_CHILDREN_ITEMS} {window part event callback names}
        {window part event callback delete} {window part frame} {window part parent toplevel}
        {window part parent part} {window part parent} {window part move 0} {window part show true}
        {window part show} {window part operation names} {window part current toplevel} {window part names true}
        {window part info} {window part create beside part} {window part move 1} {window part info} {window part current part}
        {window part names true} {window listener names} {window listener connect gone}
        {window listener disconnect gone} {window post true} {window post} {window dropitem name}
        {window dropitem toplevel} {window dropitem dataitemtype} {OnTkTreeRequestExpand win 1}
        {OnTkTreeRequestExpand win 2} {window expandall} {app rows win} {OnTkTreeSetStatePos win 1}
        {OnTkTreeRequestSelect win 1 4} {OnTkTreeRequestDeselect win 4}
        {OnTkTreeRequestSelectionUpdate win 1 2 3 5 6} {OnTkTreeSelectionChangeFinished win}
        {OnTkTreeRequestExpandAll win} {OnTkTreeRequestCollapseAll win} {OnTkTreeCheckBoxClick win c3 tick 6 1}
        {OnTkTreeWindowButtonClick win c2 op 5 op} {OnTkTreeLeftHandClick win Name e 1}
        {OnTkTreeRightHandClick win Name 1} {OnTkTreePopupMenu win true} {OnTkTreePerformPopupOperation win op x}
        {OnTkTreeSetDropItem win 5 7} {window expandselected} {window collapseselected}
        {OnTkColListItemSelected a b} {OnTkColOptionItemSelected a b} {OnTkColPreselButtonClicked a on}
        {collector names} {checkbox display elem 1 win} {checkbox display geom 1 win} {checkbox create end a b}
        {window find names} {window find current default} {window find property add title}
        {window find property names} {window find property current title}
        {window find property criterion current value} {window find property criterion names}
        {window find property criterion type equalto} {window find property criterion value b}
        {window find property criteria value} {window find property criterion matchcase true}
        {window find property criterion matchword true} {window find property criterion useregexp true}
        {window find type next} {window find type} {window find perform} {window find property criteria current}
        {window find property criteria names} {window find property criteria type}
        {window find property criteria matchcase} {window find property criteria matchword}
        {window find property criteria useregexp} {OnTkTreeRequestCollapse win 1}
        {view column current c2} {view column width} {window find type previous} {window find type}
    }
    menus {
        {window create win} {window expandall} {OnTkTreeRequestSelect win 1} {app inputfield create m f integer}
        {view popupmenu create deep} {view popupmenuitem create i} {view popupmenu create menu} {view popupmenu names}
        {view popupmenu onpost told} {view popupmenu connect view} {view popupmenu connect folder}
        {view popupmenu connect column} {view popupmenu connect datasource unit} {view popupmenu connected}
        {view popupmenu disconnect column} {view popupmenu disconnect datasource unit} {view popupmenu current menu}
        {view popupmenuitem create sources} {view popupmenuitem container simple all} {view popupmenuitem container}
        {view popupmenuitem create more beginning} {view popupmenuitem cascade deep} {view popupmenuitem cascade}
        {view popupmenuitem create line up} {view popupmenuitem separator true} {view popupmenuitem separator}
        {view popupmenuitem create a down} {view popupmenuitem caption A} {view popupmenuitem caption}
        {view popupmenuitem help H} {view popupmenuitem help} {view popupmenuitem description D}
        {view popupmenuitem description} {view popupmenuitem icon i.png} {view popupmenuitem icon}
        {view popupmenuitem checkable true} {view popupmenuitem checkable} {view popupmenuitem checked true}
        {view popupmenuitem checked} {view popupmenuitem disabled true} {view popupmenuitem disabled}
        {view popupmenuitem enabled true} {view popupmenuitem enabled} {view popupmenuitem visible true}
        {view popupmenuitem visible} {view popupmenuitem onsingleitem true} {view popupmenuitem onsingleitem}
        {view popupmenuitem showonfolder true} {view popupmenuitem showonfolder} {view popupmenuitem operation op}
        {view popupmenuitem operation} {view popupmenuitem dataoperation o} {view popupmenuitem dataoperation}
        {view popupmenuitem script told} {view popupmenuitem script} {view popupmenuitem preoperation told}
        {view popupmenuitem preoperation} {view popupmenuitem userinput f} {view popupmenuitem userinput}
        {view popupmenuitem names} {view popupmenuitem moveup} {view popupmenuitem movedown}
        {view popupmenuitem move beginning} {view popupmenuitem move end} {view popupmenuitem moveto 1}
        {view popupmenuitem current a} {view popupmenuitem perform} {app popup win Name 1}
        {OnTkTreeRightHandClick win Name 1} {OnTkTreePopupMenu win true} {OnTkTreePerformPopupOperation win a true}
        {OnTkTreePerformPopupOperation win deep/i {}} {OnTkTreePerformPopupOperation win sources unit}
        {OnTkTreePopupMenu win false} {view popupmenuitem delete} {view popupmenuitem delete line}
        {view popupmenu disconnect view} {view popupmenu disconnect folder} {view popupmenu delete deep}
        {view popupmenu delete}
    }
    selection {
        {window create win} {window part create part} {window listener connect told}
        {view dataitem simple select} {view dataitem simple select bypropval b}
        {view dataitem simple deselect byprop x} {view dataitem hierarchical deselect bypropvals 2 a b}
        {view dataitem simple deselect bypropval a} {view dataitem hierarchical deselect byprop x true} {view dataitem hierarchical deselect bypropval b}
        {view dataitem simple deselect bypropvals 1 c} {view dataitem selected} {view dataitem selected all recursive}
        {view datasource simple selected recursive} {view dataitem hierarchical select false}
        {view datasource hierarchical selected} {view dataitemlist selected} {view dataitemlist simple select}
        {view dataitemlist hierarchical select} {view selection single} {view selection multiple}
        {view selection clear} {selection clear} {window collapseall} {app draw win}
    }
    collector {
        {window create win} {window listener connect told} {window expandall} {collector show true}
        {collector datasource simple names} {collector datasource simple current unit} {collector selection add all}
        {collector selection count} {collector selection dataitems} {collector pnlcolselector create kept}
        {collector isolate} {app rows win} {view dataitem simple select bypropval b} {collector selection set}
        {collector showhide hide} {app rows win} {collector showhide toggle} {collector showhide show}
        {collector isolateonly} {collector undo} {collector undo restore} {app rows win} {collector showonly}
        {collector undo} {app rows win} {OnTkColListItemSelected win none} {OnTkColOptionItemSelected win isolate}
        {collector option create act acting} {collector option names} {collector option current act}
        {collector option perform} {collector option perform isolate} {collector option delete act}
        {collector selection add byprop title b c} {collector selection toggle displayed}
        {collector selection remove byprop title b} {collector selection set byprop title d}
        {collector pnlcolselector current kept}
        {collector pnlcolselector names} {collector addtopnlcol kept} {collector selection clear}
        {collector optionselector names} {collector optionselector current toggle} {OnTkTreeRequestSelect win 3}
        {collector optionselector current select} {OnTkTreeRequestSelect win 5} {collector autofit true}
        {collector preselector} {collector preselector on} {collector preselector dataitem} {collector isolate}
        {app sql m {DELETE FROM unit WHERE id = 2}} {collector undo names} {collector undo} {collector undo}
        {app sql m {INSERT INTO unit VALUES (9, 1, 'i', 0)}} {collector showhide all} {collector undo count}
        {collector undo show false} {collector undo enabled false} {collector addremove enabled}
        {collector addremove show true} {collector entityselector show} {collector entityselector enabled true}
        {collector optionselector show} {collector optionselector enabled} {collector pnlcolselector show}
        {collector pnlcolselector enabled} {collector preselector show} {collector preselector enabled}
        {collector preselector off} {collector selection show true} {collector selection enabled}
        {app state create m st} {state current st} {state save} {collector undo clear} {state restore} {app rows win}
        {collector pnlcolselector delete kept} {collector datasource simple current own} {view datasource simple disconnect own}
        {datasource simple delete own} {collector datasource simple current} {collector selection add displayed}
        {collector option create gone going} {collector option perform gone}
    }
    rows {
        {window create win} {view folder current v} {view list add note true} {window expandall} {app rows win}
        {app sql m {INSERT INTO unit VALUES (4, 1, 'd', 0), (5, 4, 'b', 1)}} {app rows win} {window expandall}
        {app sql m {DELETE FROM unit WHERE id = 2}} {app draw win} {view filter string current b} {app rows win}
        {app filter scope v shown} {view filter string current bu} {app rows win}
        {app filter column v title contains b} {app filter column v title} {app rows win} {app filter column v title none}
        {view filter string current {}} {app rows win} {app sort natural v title true} {app path win 2} {app row win f}
        {app prune win} {window expandall} {view sort enabled} {view column sort byname title}
        {view sort descending} {app rows win} {window find property add title} {window find property current title}
        {window find property criterion current d} {window find property criterion type equalto} {window find perform}
        {view list group true} {app rows win} {view folder current f} {view tree current h} {view tree group true}
        {window expandall} {OnTkTreeRequestSelect win 3 5} {window collapseselected} {window expandselected}
        {OnTkTreeRequestCollapseAll win} {app state create m st} {window expandall} {state current st} {state save}
        {window collapseall} {state restore} {app rows win} {view tree delete h} {app rows win}
        {window find property criterion value c} {window collapseall} {window find perform} {window find perform}
    }
    tables {
        {window create win} {view folder current v} {view list create note} {window expandall}
        {app sql m {CREATE TABLE part (id INTEGER PRIMARY KEY, unit INTEGER REFERENCES unit(id), name TEXT)}}
        {app sql m {INSERT INTO part VALUES (1, 1, 'p')}} {view datasource simple connect part}
        {view list create part} {datasource simple connect part} {view datareference connect part.unit} {app rows win}
        {view dataitem selected} {app sql m {ALTER TABLE part RENAME COLUMN name TO title}} {datasource simple names}
        {app sql m {DROP TABLE note}} {app rows win} {datareference names} {app sql m {DROP TABLE part}}
        {datasource hierarchical names} {app rows win}
    }
    states {
        {window create win} {window part create part} {window listener connect told}
        {app state create m st} {state names} {state current st} {state save} {state data} {state restore}
        {state entity add a b} {state entity remove b} {view flush false} {view folder bold false}
        {view apply pending} {frame} {view flush true} {view redraw}
    }
    schemes {
        {view create w true} {view current w} {view datactrl connect} {view property create q}
        {view property type string} {view column current Name} {view style create t} {view datasource connect unit}
        {view datasource connect h} {view datasource names} {view datasource current unit}
        {view property connect name} {view folder current w} {view list create unit} {view folder datasource current unit}
        {view folder datasource style true} {view dataitem select} {view dataitem current} {view dataitem selected}
        {view dataitem deselect bypropval b recursive} {view dataitemlist select} {view dataitemlist current}
        {view dataitemlist deselect} {view dataitem select bypropval c} {view datasource selected recursive}
        {view dataitem selected all} {view datasource disconnect unit} {view datactrl disconnect} {view delete}
    }
    deletions {
        {window create win} {window part create part} {window listener connect told}
        {view folder current v} {view folder current f} {window current win} {window part current part}
        {window part event current SELECTION_CHANGED} {window part event callback create told script}
        {window part delete} {window create other} {window find property add title}
        {window find property current title} {window delete} {window current win} {window part create last}
        {window delete} {view folder current v} {view folder current g} {view list current unit}
        {view list delete unit} {view list create note} {view list current note} {view folder create deep}
        {view folder create deeper} {view list create unit} {view list current unit} {view folder current v}
        {view folder current g} {view folder current deep} {view folder delete deeper} {view folder create lowest}
        {view folder current v} {view folder delete g recursive} {view folder current f} {view tree delete h}
        {view folder create inner} {view folder current v} {view folder current f}
        {view folder delete inner recursive} {view folder current v} {view folder delete f} {view column current c2}
        {view style create s2} {view style current s} {view element create e2} {view element current e}
        {view element delete e} {element delete e2} {view style current s2} {view style delete}
        {view style create s3} {view element create e3} {view style delete} {view column current Name} {view column delete}
        {view column current c2}
        {view style current s} {view column delete} {view property current title} {view property disconnect unit}
        {view property delete} {datasource simple current own} {datasource simple property create p 0 value}
        {datasource simple criteria delete} {datasource simple property delete p} {datasource simple delete unit}
        {datasource simple delete own} {datasource simple criteria create d} {datasource simple disconnect unit} {view datasource simple disconnect own} {datasource simple delete own}
        {datasource hierarchical disconnect note} {view datasource hierarchical disconnect h}
        {view datareference connect note.unit} {view datareference disconnect note.unit} {userinput delete}
        {window map create g} {window map delete} {window map names} {view datactrl disconnect} {view delete} {view current}
        {view create last} {view current last} {view delete}
    }
}

# A value of each type: of criteria, single and several, and of input fields.
foreach {type array value} {
    bool boolarray true unsigned unsignedarray 2 integer integerarray 3 double doublearray 4 string stringarray e
} {
    lappend valueLines "userinput datatype $type" "userinput value $value" {userinput value} {userinput reset} \
        {userinput value} {datasource simple current own} {datasource simple criteria current c}
    foreach kind [list $type $array] {
        lappend valueLines "datasource simple criteria type $kind" "datasource simple criteria data $type $value" \
            {datasource simple criteria data}
    }
}
dict lappend sections data {*}$valueLines

# Names and texts that break what was only tried with "a" and "b", in each place that takes one.
source [file join [file dirname [info script]] .. hostile_texts.tcl]
foreach kind {emoji nul command} {
    set lines {
        {window create win}
        {app sql m {INSERT INTO note VALUES (?, 1, ?)} % %} {app sql m {UPDATE note SET text = ?} %}
        {view property create %} {view property type string} {view property connect note text} {view column create %}
        {view column caption %} {view style create %} {view element create %} {view element connect property %}
        {view operation create %} {view folder current v} {view folder create %} {view list create note}
        {view folder selected} {window find property add %} {window find property current %}
        {window find property criterion current %} {window find property criterion value %} {window find perform}
        {view filter string current %} {app rows win} {app state create m %} {state current %} {state save}
        {state restore} {app state delete m %} {window map create %} {window map type string string}
        {window map record create % %} {view filter string current {}} {datasource simple create % %}
        {datasource simple connect note} {datasource simple criteria create %} {app sql m %} {view current %} {window %}
    }
    dict set sections hostile[string totitle $kind] [string map [list % [list [dict get $hostile::texts $kind]]] $lines]
}

set display {
    {window create win} {window part create part} {window listener connect told} {window post true}
    {view list current unit} {window expandall} {OnTkTreeRequestSelect win 1 4} {view column caption C}
    {view column create c3} {view column current c3} {view style create ticks} {view element create tick}
    {view element connect property flag} {app sql m {INSERT INTO unit VALUES (4, 1, 'd', 0), (5, 4, 'b', 1)}}
    {view sort enabled} {view column sort byname title} {view filter string current b} {view filter string current {}}
    {window find property add title} {window find property current title} {window find property criterion current b}
    {window find perform} {window stripe true all} {window background red true} {view column show false}
    {window part show false} {OnTkTreePopupMenu win true} {view folder current v} {view folder create late}
    {app sql m {DELETE FROM unit WHERE id = 2}} {window collapseall} {window post false} {window post true} {view delete}
    {window delete}
}

# Every command family once, on a small model: the script that the fault sweep runs again and again. Whatever the
# host refuses, each line must come back.
proc zn {args} {catch {znbrowsermanager {*}$args}}

znbrowsermanager app sql m {CREATE TABLE IF NOT EXISTS unit(id INTEGER PRIMARY KEY, parent INTEGER REFERENCES unit(id), name TEXT, on_ BOOLEAN)}
znbrowsermanager app sql m {INSERT OR REPLACE INTO unit VALUES (1, NULL, 'a', 1), (2, 1, 'b', 0), (3, 2, 'c', 1)}
proc value {item} {return v}

foreach line {
    {datactrl names} {datactrl current m} {view create v} {view create w true} {view current v} {view names}
    {view datactrl connect} {datasource simple current unit} {datasource simple names}
    {datasource simple create own Own} {datasource simple caption Mine} {datasource simple connect unit}
    {datasource simple criteria create c} {datasource simple criteria type int} {datasource simple criteria code {id > ?}}
    {datasource simple criteria data integer 1} {datasource simple criteria data} {datasource simple criteria names}
    {datasource simple property create p 0 value} {datasource simple property names} {datasource simple connected}
    {view datasource simple connect own} {view datasource simple connect unit} {view datasource simple connected}
    {datasource hierarchical create h 0 0} {datasource hierarchical connect parent unit x}
    {datasource hierarchical connect child unit unit.parent} {datasource hierarchical connect child names}
    {view datasource hierarchical connect h} {datasource hierarchical names}
    {datareference names} {view datareference connect unit.parent} {view datareference connected}
    {dataoperation create o} {dataoperation script x {set ::ran 1}} {dataoperation perform} {dataoperation names}
    {view property create title} {view property type string} {view property connect unit name}
    {view property create flag} {view property type bool} {view property connect unit on_} {view property connected}
    {view property current title} {datasource simple current unit} {datasource simple dataitem}
    {view column create c2} {view column create c3 icon x} {view column current c2} {view column caption C}
    {view column width 40} {view column justify left} {view column move 0} {view column show true} {view column sort enabled}
    {view style create s} {view element create e} {view element connect property title} {window map create g}
    {window map type integer string} {window map record create 1 one} {window map record names}
    {view element connect map g} {element names} {view style names} {view sort enabled} {view sort descending}
    {view folder current v} {view folder create f} {view tree create h} {view tree names} {view folder current v}
    {view folder create g} {view list create unit} {view list current unit} {view list caption L} {view list names}
    {view style connect} {view folder children} {view folder empty true recursive} {view group children true}
    {view filter dataitemtype current unit} {view filter string current a} {view filter string current {}}
    {view operation create op} {view operation script {set ::ran 2}} {view operation connect} {view operation perform}
    {window create win} {window post true} {window names} {window part create part} {window part event current}
    {window part event names} {window part names true} {window part info} {window listener connect l}
    {window find property add title} {window find property criterion value b} {window find perform}
    {onre win 0} {onre win 1} {onre win 2} {onsel win 1 2} {OnTkTreeSelectionChangeFinished win} {app rows win}
    {view dataitem simple select bypropval b} {view dataitem selected} {view selection clear} {onrhc win Name 1}
    {onchkbox win Name e 2 1} {onsdi win 1 2} {window expandall} {window collapseall} {state names} {state current s}
    {view apply pending} {frame} {view redraw} {window part current part} {window part delete} {window delete}
    {view list delete unit} {view tree delete h} {view folder current v} {view folder delete f recursive}
    {view style delete} {view column current c3} {view column delete} {view property delete}
    {datasource simple criteria delete} {datasource simple delete own} {window map delete}
    {view datactrl disconnect} {view delete} {view current} {view delete}
} {zn {*}$line}

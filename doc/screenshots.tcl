# Makes the pictures of the README on the display at hand: znbrowsersh --tk screenshots.tcl EXAMPLES IMAGES
#   EXAMPLES  the directory of the prepared examples
#   IMAGES    where the pictures go
lassign $argv examples images

source [file join [file dirname [info script]] pictures.tcl]

source [file join $examples browser.tcl]
foreach text {{Ball bearing} {Shim}} {zn OnTkTreeRequestSelect gearbox [rowOf gearbox $text]}
takePicture 1080x640 [file join $images browser.png]

zn app datactrl open shop [file join $examples models shop.db]
znbrowser::any::browse shop
foreach text {Bicycles "City bicycles" Ciclofficina 2024-103 "order line"} {zn OnTkTreeRequestExpand shop [rowOf shop $text]}
wait 500
znbrowser::goTo [znbrowser::number shop] select [znbrowser::host position [znbrowser::number shop] [rowOf shop 2024-103]]
znbrowser::toggleDetails [znbrowser::number shop]
zn window current shop
takePicture 1240x640 [file join $images any_database.png]

# A database on a server, which ends with this script.
source [file join [file dirname [info script]] .. tests harness server.tcl]
if {[server::programs] eq ""} {
    puts "PostgreSQL is not installed: server.png stays as it is"
} else {
    server::start
    set database [server::database]
    server::ask $database {
        CREATE TABLE assembly (id integer PRIMARY KEY, parent integer REFERENCES assembly, name text);
        CREATE TABLE part (id integer PRIMARY KEY, assembly integer REFERENCES assembly, name text, mass real,
            steel boolean, made date);
        CREATE TABLE tool (shop text, no integer, name text, PRIMARY KEY (shop, no));
        CREATE TABLE use (id integer PRIMARY KEY, shop text, no integer, part integer REFERENCES part, what text,
            FOREIGN KEY (shop, no) REFERENCES tool);
        CREATE SCHEMA stock;
        CREATE TABLE stock.bin (id integer PRIMARY KEY, part integer REFERENCES part);
        CREATE VIEW heavy AS SELECT name, mass FROM part WHERE mass > 4;
        INSERT INTO assembly VALUES (1, NULL, 'Gearbox'), (2, 1, 'Input'), (3, 2, 'Output'), (4, 5, 'Cover'), (5, 4, 'Case');
        INSERT INTO part VALUES (1, 2, 'Shaft', 12.5, true, '2026-01-05'), (2, 2, 'Bush', 0.25, false, '2026-02-11'),
            (3, 4, 'Ring', 0.8, true, NULL), (4, 3, 'Gear', 4.75, true, '2026-03-01');
        INSERT INTO tool VALUES ('A', 1, 'lathe'), ('A', 2, 'mill'), ('O''Neil', 1, 'press');
        INSERT INTO use VALUES (1, 'A', 1, 1, 'turn'), (2, 'O''Neil', 1, 4, 'fit');
        INSERT INTO stock.bin VALUES (10, 1), (11, 4);
    }
    zn app datactrl open plm [server::url $database]
    znbrowser::any::browse plm
    foreach text {assembly heavy part stock.bin tool use} {zn OnTkTreeRequestExpand plm [rowOf plm "$text ("]}
    zn window current plm
    takePicture 960x620 [file join $images server.png]
    server::end
}

# A menu stands on the screen by itself: the picture is cut out of that.
zn window current gearbox
zn window post true
set top [winfo toplevel [zn window frame]]
wm geometry $top 900x560+0+0
raise $top
update
set ring [rowOf gearbox "Snap ring"]
zn OnTkTreeRequestSelectionUpdate gearbox $ring
zn OnTkTreeRequestExpand gearbox $ring
update
lassign [znbrowser::boxOf gearbox $ring Name] x1 y1 x2 y2
event generate [znbrowser::tree gearbox] <ButtonPress-3> -x [expr {$x1 + 90}] -y [expr {($y1 + $y2) / 2}] \
    -rootx [expr {[winfo rootx [znbrowser::tree gearbox]] + $x1 + 90}] \
    -rooty [expr {[winfo rooty [znbrowser::tree gearbox]] + ($y1 + $y2) / 2}]
update
set menu [znbrowser::popup gearbox]
event generate $menu <Down>
update
wait 900
exec import -window root -crop 900x560+0+0 +repage -strip [file join $images popup_menu.png]
tk::MenuUnpost $menu
zn window post false

# What is collected by hand: three bolts, isolated.
zn window current gearbox
zn window collapseall
zn window post true
zn collector show true
zn OnTkTreeRequestDeselect gearbox $ring
zn OnTkColListItemSelected gearbox part
zn view property current code
zn collector selection set byprop code HOU.REA-015 HOU.REA-017 HOU.BEL-003
zn OnTkColOptionItemSelected gearbox isolateonly
zn collector option perform
zn window expandall
zn collector pnlcolselector create "To be checked"
takePicture 1240x420 [file join $images collector.png]

zn window current gearbox
zn collector show false
zn collector showhide all
znbrowser::theme dark
zn window post true
takePicture 1080x420 [file join $images dark.png]

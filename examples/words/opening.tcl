# The model of the examples: the parts of a bicycle, some of them inside others, and notes on them.
znbrowsermanager app datactrl create bicycle
znbrowsermanager app sql bicycle {CREATE TABLE part(id INTEGER PRIMARY KEY, above INTEGER REFERENCES part(id), name TEXT, grams INTEGER, spare BOOLEAN)}
znbrowsermanager app sql bicycle {CREATE TABLE note(id INTEGER PRIMARY KEY, part INTEGER REFERENCES part(id), text TEXT)}
znbrowsermanager app sql bicycle {INSERT INTO part VALUES (1, NULL, 'bicycle', 11800, 0), (2, 1, 'wheel', 1900, 1), (3, 2, 'hub', 310, 1), (4, 2, 'rim', 480, 0)}
znbrowsermanager app sql bicycle {INSERT INTO note VALUES (1, 2, 'true it'), (2, 3, 'grease it')}
# A view of it, which shows the names of all parts as a list, in a window.
znbrowsermanager datactrl current bicycle
znbrowsermanager view create parts
znbrowsermanager view datactrl connect
znbrowsermanager view datasource simple connect part
znbrowsermanager view property create name
znbrowsermanager view property type string
znbrowsermanager view property connect part name
znbrowsermanager view column current Name
znbrowsermanager view style create plain
znbrowsermanager view element create text
znbrowsermanager view element connect property name
znbrowsermanager view folder current parts
znbrowsermanager view list create part
znbrowsermanager datasource simple current part
znbrowsermanager window create main

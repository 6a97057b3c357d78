znbrowsermanager view folder current parts
znbrowsermanager view datasource simple connect note
znbrowsermanager view list create note
znbrowsermanager view list names
znbrowsermanager view list current note
znbrowsermanager view list caption Notes
znbrowsermanager view list group true
znbrowsermanager view list style true
znbrowsermanager view list expand
znbrowsermanager app draw main
znbrowsermanager view list collapse true
znbrowsermanager view list delete note
znbrowsermanager view list add note
znbrowsermanager view list names true

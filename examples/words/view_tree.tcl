znbrowsermanager datasource hierarchical create inside true true
znbrowsermanager datasource hierarchical connect parent part all
znbrowsermanager datasource hierarchical connect child part part.above
znbrowsermanager datasource hierarchical connect child note note.part
znbrowsermanager view datasource hierarchical connect inside
znbrowsermanager view folder create all
znbrowsermanager view tree create inside
znbrowsermanager view tree names
znbrowsermanager view tree current inside
znbrowsermanager view tree show
znbrowsermanager view tree hide note
znbrowsermanager view tree show note
znbrowsermanager view tree group false
znbrowsermanager window expandall
znbrowsermanager app draw main
znbrowsermanager view tree delete inside

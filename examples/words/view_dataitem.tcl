znbrowsermanager window expandall
znbrowsermanager view dataitem simple select
znbrowsermanager view dataitem selected
znbrowsermanager view dataitem simple deselect
znbrowsermanager view dataitem simple select bypropval hub
znbrowsermanager view dataitem simple select bypropvals 2 rim wheel
znbrowsermanager view dataitem simple deselect bypropvals 1 rim
znbrowsermanager view dataitem simple deselect bypropval hub
znbrowsermanager view dataitem selected all
znbrowsermanager view dataitem simple deselect byprop any
znbrowsermanager view dataitem simple select byprop any
znbrowsermanager view selection clear
# The items of a hierarchical data source; true reaches those below.
znbrowsermanager datasource hierarchical create inside true true
znbrowsermanager datasource hierarchical connect parent part all
znbrowsermanager datasource hierarchical connect child part part.above
znbrowsermanager view datasource hierarchical connect inside
znbrowsermanager view folder create all
znbrowsermanager view tree create inside
znbrowsermanager window expandall
znbrowsermanager view dataitem hierarchical select
znbrowsermanager view dataitem hierarchical deselect false
znbrowsermanager view dataitem hierarchical select byprop any
znbrowsermanager view dataitem hierarchical select bypropval wheel true
znbrowsermanager view dataitem hierarchical select bypropvals 2 hub rim
znbrowsermanager view dataitem hierarchical deselect byprop any
znbrowsermanager view dataitem hierarchical deselect bypropval wheel true
znbrowsermanager view dataitem hierarchical deselect bypropvals 1 hub
znbrowsermanager view dataitem selected recursive
# The view helper's words, in a view that connects data sources by one word.
znbrowsermanager view create notes true
znbrowsermanager view current notes
znbrowsermanager view datactrl connect
znbrowsermanager view datasource connect note
znbrowsermanager view datasource current note
znbrowsermanager view property create text
znbrowsermanager view property type string
znbrowsermanager view property connect text
znbrowsermanager view folder current notes
znbrowsermanager view list create note
znbrowsermanager window create second
znbrowsermanager window expandall
znbrowsermanager view dataitem select
znbrowsermanager view dataitem current
znbrowsermanager view dataitem deselect bypropval {true it}
znbrowsermanager view dataitem deselect
znbrowsermanager view dataitem select bypropval {true it}
znbrowsermanager view dataitem selected

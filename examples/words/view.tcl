znbrowsermanager view names
znbrowsermanager view current
znbrowsermanager view namespace
znbrowsermanager view italic enabled
znbrowsermanager view datactrl
# A second view, which connects data sources itself.
znbrowsermanager view create notes true
znbrowsermanager view current notes
znbrowsermanager view datactrl connect
znbrowsermanager view datactrl disconnect
znbrowsermanager view delete
znbrowsermanager view names
# Changes of a folder can be held back.
znbrowsermanager view current parts
znbrowsermanager view folder current parts
znbrowsermanager view flush false
znbrowsermanager view folder bold true
znbrowsermanager view apply pending
znbrowsermanager view flush true
znbrowsermanager view redraw
znbrowsermanager view group children true

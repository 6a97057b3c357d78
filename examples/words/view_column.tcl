znbrowsermanager view column names
znbrowsermanager view column create Weight
znbrowsermanager view column create Spare checkbox
znbrowsermanager view column current Weight
znbrowsermanager view column caption "Weight in g"
znbrowsermanager view column justify right
znbrowsermanager view column width 80
znbrowsermanager view column width
znbrowsermanager view column italic enabled
znbrowsermanager view column sort enabled
znbrowsermanager view column sort byname name
znbrowsermanager view column show false
znbrowsermanager view column show
znbrowsermanager view column move 0
znbrowsermanager view column names
znbrowsermanager view popupmenu create tools
znbrowsermanager view column popupmenu tools
znbrowsermanager view column delete
znbrowsermanager view column names

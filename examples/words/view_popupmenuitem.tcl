znbrowsermanager view popupmenu create tools
znbrowsermanager view popupmenu connect view
znbrowsermanager view popupmenuitem create weigh
znbrowsermanager view popupmenuitem caption "Weigh it"
znbrowsermanager view popupmenuitem help "Puts the part on the scales"
znbrowsermanager view popupmenuitem description "for spare parts only"
znbrowsermanager view popupmenuitem icon scales.png
proc weigh {window item rows value} {lappend ::weighed [llength $rows]}
znbrowsermanager view popupmenuitem script weigh
znbrowsermanager view popupmenuitem onsingleitem false
znbrowsermanager view popupmenuitem showonfolder true
# It stands between others.
znbrowsermanager view popupmenuitem create line beginning
znbrowsermanager view popupmenuitem separator true
znbrowsermanager view popupmenuitem create spare end
znbrowsermanager view popupmenuitem checkable true
znbrowsermanager view popupmenuitem checked true
znbrowsermanager view popupmenuitem names
znbrowsermanager view popupmenuitem moveup
znbrowsermanager view popupmenuitem movedown
znbrowsermanager view popupmenuitem move beginning
znbrowsermanager view popupmenuitem move end
znbrowsermanager view popupmenuitem moveto 1
znbrowsermanager view popupmenuitem names
znbrowsermanager view popupmenuitem visible true
znbrowsermanager view popupmenuitem disabled true
znbrowsermanager view popupmenuitem enabled true
# What choosing it does.
znbrowsermanager view operation create open
znbrowsermanager view popupmenuitem operation open
znbrowsermanager view popupmenuitem operation none
znbrowsermanager dataoperation create tidy
znbrowsermanager view popupmenuitem dataoperation tidy
znbrowsermanager app inputfield create bicycle grams integer
znbrowsermanager view popupmenuitem userinput grams
proc asks {window item rows value} {return true}
znbrowsermanager view popupmenuitem preoperation asks
# One entry for each data source; a menu in a menu.
znbrowsermanager view popupmenuitem create sources
znbrowsermanager view popupmenuitem container simple all
znbrowsermanager view popupmenuitem container none
znbrowsermanager view popupmenu create more
znbrowsermanager view popupmenu current tools
znbrowsermanager view popupmenuitem current sources
znbrowsermanager view popupmenuitem cascade more
znbrowsermanager view popupmenuitem delete sources
znbrowsermanager view popupmenuitem current weigh
znbrowsermanager view popupmenuitem perform
set weighed

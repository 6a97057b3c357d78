proc weigh {} {lappend ::weighed [znbrowsermanager view current]}
znbrowsermanager view operation create weigh
znbrowsermanager view operation current weigh
znbrowsermanager view operation script weigh
znbrowsermanager view operation editable false
znbrowsermanager view operation perform
set weighed
znbrowsermanager dataoperation create tidy
znbrowsermanager view operation connect
znbrowsermanager view operation names

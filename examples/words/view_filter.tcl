znbrowsermanager view filter string current r
znbrowsermanager window expandall
znbrowsermanager app draw main
znbrowsermanager view filter option matchcase true
znbrowsermanager view filter option matchword false
znbrowsermanager view filter dataitemtype current part
znbrowsermanager view filter dataitemtype update
znbrowsermanager view filter group true
znbrowsermanager view filter string current {}

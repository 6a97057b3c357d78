znbrowsermanager window find names
znbrowsermanager window find current default
znbrowsermanager window find property add name
znbrowsermanager window find property names
znbrowsermanager window find property current name
znbrowsermanager window find property criterion names
znbrowsermanager window find property criterion current value
znbrowsermanager window find property criterion type equalto
znbrowsermanager window find property criterion value hub
znbrowsermanager window find property criterion matchcase true
znbrowsermanager window find property criterion matchword true
znbrowsermanager window find property criterion useregexp false
znbrowsermanager window find type all
znbrowsermanager window find perform
znbrowsermanager window expandall
znbrowsermanager app draw main

znbrowsermanager view style names
znbrowsermanager view style create strong
znbrowsermanager view style current plain
znbrowsermanager view style folder
znbrowsermanager view folder current parts
znbrowsermanager view style connect
znbrowsermanager view style current strong
znbrowsermanager view style delete
znbrowsermanager view style names

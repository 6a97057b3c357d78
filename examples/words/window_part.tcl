znbrowsermanager window part create bar
znbrowsermanager window part current bar
znbrowsermanager window part createproc fillBar text
znbrowsermanager window part packproc packBar
znbrowsermanager window part frame
znbrowsermanager window part show true
znbrowsermanager window part create button bar
znbrowsermanager window part current button
znbrowsermanager window part move 0
znbrowsermanager window part parent toplevel
znbrowsermanager window part parent bar
znbrowsermanager window part parent
znbrowsermanager window part current toplevel
znbrowsermanager window part names
znbrowsermanager window part names true
znbrowsermanager window part info
# What happens in a part, and who is told.
znbrowsermanager window part current bar
znbrowsermanager window part event names
znbrowsermanager window part event current SELECTION_CHANGED
znbrowsermanager window part event callback create told script
znbrowsermanager window part event callback create here WINDOW_OPERATION
znbrowsermanager window part event callback names
znbrowsermanager window part event callback current here
znbrowsermanager window part event callback window main
znbrowsermanager window part event callback operation TREE_AREA_SELECT_CHILDREN_ITEMS
znbrowsermanager window part event callback delete
znbrowsermanager window part operation names
znbrowsermanager window part delete

znbrowsermanager view folder current parts
znbrowsermanager view folder create workshop
znbrowsermanager view folder create tools
znbrowsermanager view folder current parts
znbrowsermanager view folder children
znbrowsermanager view folder current workshop
znbrowsermanager view folder bold true
znbrowsermanager view folder italic true
znbrowsermanager view folder empty true recursive
znbrowsermanager view folder keepchildrenfoldersinorderascreated true
znbrowsermanager view folder style false
znbrowsermanager view folder children count bynumber true
znbrowsermanager view folder children count byimage false
znbrowsermanager view folder createexpanded part 2
znbrowsermanager view folder expand
znbrowsermanager view folder collapse true
znbrowsermanager view folder dataitemtype
# A tree, tied together by data references.
znbrowsermanager view folder tree toplevel part part.above
znbrowsermanager view folder tree toplevel
znbrowsermanager view folder tree parentchild part part part.above
znbrowsermanager view folder tree parentchild
znbrowsermanager view folder tree update part
znbrowsermanager view folder selected
znbrowsermanager view folder selection
znbrowsermanager view folder current parts
znbrowsermanager view folder delete workshop recursive
# What is dropped on the folder.
znbrowsermanager datasource hierarchical create inside true true
znbrowsermanager datasource hierarchical connect parent part all
znbrowsermanager datasource hierarchical connect child part part.above
znbrowsermanager view datasource hierarchical connect inside
znbrowsermanager view folder create heap
znbrowsermanager view tree create inside
znbrowsermanager view folder dropitem datasource hierarchical inside
# The data sources of a folder, in a view that connects them by one word.
znbrowsermanager view create notes true
znbrowsermanager view current notes
znbrowsermanager view datactrl connect
znbrowsermanager view datasource connect note
znbrowsermanager view folder current notes
znbrowsermanager view list create note
znbrowsermanager view folder datasource current note
znbrowsermanager view folder datasource style true

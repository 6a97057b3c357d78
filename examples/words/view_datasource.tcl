znbrowsermanager view datasource simple connect note
znbrowsermanager view datasource simple connected
znbrowsermanager view datasource simple selected
znbrowsermanager view datasource simple disconnect note
znbrowsermanager datasource hierarchical create inside true true
znbrowsermanager datasource hierarchical connect parent part all
znbrowsermanager datasource hierarchical connect child part part.above
znbrowsermanager view datasource hierarchical connect inside
znbrowsermanager view datasource hierarchical connected
znbrowsermanager view datasource hierarchical selected recursive
znbrowsermanager view datasource hierarchical disconnect inside
# A view that connects data sources of either kind by one word.
znbrowsermanager view create notes true
znbrowsermanager view current notes
znbrowsermanager view datactrl connect
znbrowsermanager view datasource connect note
znbrowsermanager view datasource names
znbrowsermanager view datasource current note
znbrowsermanager view datasource selected
znbrowsermanager view datasource disconnect note

znbrowsermanager datasource simple names
znbrowsermanager datasource simple current part
znbrowsermanager datasource simple caption
znbrowsermanager datasource simple dataitem
# A property whose values are an attribute's, and one whose values a procedure gives.
proc kilograms {item} {return heavy}
znbrowsermanager datasource simple property create weight 1 integer 3
znbrowsermanager datasource simple property create about 0 kilograms
znbrowsermanager datasource simple property names
znbrowsermanager datasource simple property delete about
# A data source of ours: the light parts.
znbrowsermanager datasource simple create light "Light parts"
znbrowsermanager datasource simple caption Light
znbrowsermanager datasource simple filtercaption "light ones"
znbrowsermanager datasource simple connect part
znbrowsermanager datasource simple connect current part
znbrowsermanager datasource simple connected
znbrowsermanager datasource simple criteria create few
znbrowsermanager datasource simple criteria names
znbrowsermanager datasource simple criteria current few
znbrowsermanager datasource simple criteria code {grams < ?}
znbrowsermanager datasource simple criteria type integer
znbrowsermanager datasource simple criteria data integer 500
znbrowsermanager datasource simple criteria data
znbrowsermanager view datasource simple connect light
znbrowsermanager datasource simple dataitem
znbrowsermanager datasource simple criteria delete
znbrowsermanager datasource simple script names
znbrowsermanager datasource simple disconnect part
znbrowsermanager view datasource simple disconnect light
znbrowsermanager datasource simple delete light

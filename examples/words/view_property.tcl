znbrowsermanager view property names
znbrowsermanager view property create grams
znbrowsermanager view property type integer
znbrowsermanager view property connect part grams
znbrowsermanager view property connected
znbrowsermanager view property current grams
# A property whose values a procedure gives.
proc kilograms {item} {return heavy}
znbrowsermanager view property create weight
znbrowsermanager view property type string
znbrowsermanager view property connect script kilograms
znbrowsermanager view property connected
znbrowsermanager view property disconnect script
znbrowsermanager view property script take give
znbrowsermanager view property delete
znbrowsermanager view property names

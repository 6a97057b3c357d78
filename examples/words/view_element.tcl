znbrowsermanager view element names
znbrowsermanager view element create weight "in grams"
znbrowsermanager view element current weight
znbrowsermanager view property create grams
znbrowsermanager view property type integer
znbrowsermanager view property connect part grams
znbrowsermanager view element connect property grams
# A map shows a text for each value.
znbrowsermanager window map create words
znbrowsermanager window map type integer string
znbrowsermanager window map record create 310 light
znbrowsermanager view element connect map words
znbrowsermanager window expandall
znbrowsermanager app draw main
znbrowsermanager view element delete weight

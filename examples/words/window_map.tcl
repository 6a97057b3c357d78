znbrowsermanager window map create words
znbrowsermanager window map names
znbrowsermanager window map current words
znbrowsermanager window map type integer string
znbrowsermanager window map record create 310 light
znbrowsermanager window map record create 1900 heavy
znbrowsermanager window map record names
znbrowsermanager window map record delete 310
znbrowsermanager window map delete
# A map of pictures.
znbrowsermanager window map create pictures
znbrowsermanager window map type bool icon
znbrowsermanager window map record create true yes.png
znbrowsermanager window map record create disabled false no.png
znbrowsermanager window map record names

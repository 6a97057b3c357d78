# The application makes input fields, and deletes them.
znbrowsermanager userinput create limit integer
znbrowsermanager userinput names
znbrowsermanager app inputfield create bicycle limit integer
znbrowsermanager userinput current limit
znbrowsermanager userinput value 500
znbrowsermanager userinput datatype
znbrowsermanager userinput reset
znbrowsermanager userinput value
znbrowsermanager userinput script
znbrowsermanager userinput delete

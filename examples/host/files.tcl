# Shows the folders of the host in one view.
znbrowsermanager datactrl current files
znbrowsermanager view create all
znbrowsermanager view folder current all ;# the root folder bears the name of the view
znbrowsermanager view datactrl connect
foreach folder [znbrowsermanager datasource simple names] {
    znbrowsermanager view list create $folder
}
puts [znbrowsermanager app rows all]

znbrowsermanager view selection single
znbrowsermanager view selection multiple
znbrowsermanager view selection clear

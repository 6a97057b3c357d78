// The helper object of the collector family.
#ifndef COLLECTOR_HELPER_H
#define COLLECTOR_HELPER_H

#include "host/znutl/znString.h"

class znBrowserManagerTcl;

/// What the collector words keep beside the manager: whose it is, and the name of the data source whose items
/// are collected; empty for items of every data source. It stays a name: nothing tells when a source dies.
/// The manager creates it with itself; only `DeleteBrowserManagerCollectorTcl` destroys it.
class znBrowserManagerCollectorTcl {
public:
    explicit znBrowserManagerCollectorTcl(znBrowserManagerTcl* manager) : manager_(manager) {}
    znBrowserManagerTcl* GetManager() const { return manager_; }
    znString& DataSourceName() { return dataSourceName_; }

private:
    znBrowserManagerTcl* manager_;
    znString dataSourceName_;
};

#endif

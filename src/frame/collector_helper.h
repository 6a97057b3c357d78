// The helper object of the collector family.
#ifndef COLLECTOR_HELPER_H
#define COLLECTOR_HELPER_H

#include "host/znutl/znString.h"

class znBrowserManagerTcl;

/// Holds the collector's place beside the manager: whose it is, and the text that the collector words keep.
/// The manager creates it with itself; only `DeleteBrowserManagerCollectorTcl` destroys it.
class znBrowserManagerCollectorTcl {
public:
    explicit znBrowserManagerCollectorTcl(znBrowserManagerTcl* manager) : manager_(manager) {}
    znBrowserManagerTcl* GetManager() const { return manager_; }
    znString& Text() { return text_; }

private:
    znBrowserManagerTcl* manager_;
    znString text_;
};

#endif

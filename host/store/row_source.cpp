// The store's side of the row model.
#include "store/row_source.h"

#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"

namespace znhost {

// A simple source of this host reads its rows itself.
RowSource* GetRowSource(znIBrowserDataSourceSimple* source) { return dynamic_cast<RowSource*>(source); }

std::vector<RowLink> GetRowLinks(znIBrowserDataSourceHierarchical&) { return {}; }

} // namespace znhost

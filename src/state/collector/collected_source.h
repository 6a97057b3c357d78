// The data source whose items are collected.
#ifndef COLLECTED_SOURCE_H
#define COLLECTED_SOURCE_H

class znBrowserManagerTcl;
class znIBrowserDataSourceSimple;

namespace znlayer {

class CollectorViewOperation;

/// The data source whose items an operation collects: null when none is chosen.
/// @return false, and an error, when one is chosen that the view does not have
bool FindCollectedSource(const znBrowserManagerTcl& manager, const CollectorViewOperation& operation,
                         znIBrowserDataSourceSimple*& source);

/// A data source of that name was deleted: it is chosen no more, unless the current view still has one.
void ForgetCollectorDataSource(znBrowserManagerTcl& manager, const char* name);

} // namespace znlayer

#endif

// Data sources of the embedded host seen without regard to their kind.
#ifndef ZN_HOST_DATA_SOURCE_H
#define ZN_HOST_DATA_SOURCE_H

#include "base/host_call.h"
#include "host/znIBrowserDataSource.h"

#include <functional>

namespace znhost {

class HierarchicalSource;
class SimpleSource;
class View;
struct RowCondition;

/// The side of a simple or of a hierarchical source on which they are alike. It is a part of that source.
class DataSource final : public znIBrowserDataSource, public HostObject {
public:
    explicit DataSource(SimpleSource& simple);
    explicit DataSource(HierarchicalSource& hierarchical);

    const std::string& Name() const;

    znString GetName() const override;
    znIBrowserDataSourceSimple* GetSimple() override;
    znIBrowserDataSourceHierarchical* GetHierarchical() override;
    znIBrowserDataProperty* FindDataProperty(const char* name) override;
    bool SelectItems(znIBrowserView* view, bool select, bool recursive) override;
    bool SelectItemsByProperty(znIBrowserView* view, znIBrowserViewProperty* property, bool select,
                               bool recursive) override;
    bool SelectItemsByValue(znIBrowserView* view, znIBrowserViewProperty* property, const char* value,
                            bool select, bool recursive) override;
    bool SelectItemsByValues(znIBrowserView* view, znIBrowserViewProperty* property,
                             const std::vector<znString>& values, bool select, bool recursive) override;

private:
    /// What the items of a source must fulfil. @return false when none of that source does
    using Conditions = std::function<bool(SimpleSource& source, std::vector<RowCondition>& conditions)>;

    bool Select(znIBrowserView* view, bool select, bool recursive, const Conditions& conditions);
    bool SelectByProperty(znIBrowserView* view, znIBrowserViewProperty* property, bool select, bool recursive,
                          const std::vector<znString>* values);

    SimpleSource* const simple_;
    HierarchicalSource* const hierarchical_;
};

} // namespace znhost

#endif

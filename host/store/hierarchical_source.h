// A hierarchical data source of the embedded host.
#ifndef ZN_HOST_HIERARCHICAL_SOURCE_H
#define ZN_HOST_HIERARCHICAL_SOURCE_H

#include "base/host_call.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "model/row_source.h"
#include "store/data_source.h"

#include <string>

namespace znhost {

class DataCtrl;
class DataReference;
class SimpleSource;

/// A parent and its children, each tied by a data reference to a source that is in the tree already. The same
/// child may hang on several. A source whose table refers to itself by one reference nests along it to any
/// depth; where there are several, the source is made a child of itself along the one that is meant.
class HierarchicalSource final : public znIBrowserDataSourceHierarchical, public HostObject {
public:
    HierarchicalSource(DataCtrl& control, std::string name);

    const std::string& Name() const { return name_; }
    DataCtrl& Control() const { return control_; }
    DataSource& Facet() { return facet_; }
    SimpleSource* Top() const { return parent_; }
    bool Has(const SimpleSource& source) const;
    /// The parent and the children, each once.
    std::vector<SimpleSource*> Members() const;
    /// The ties as they stand with the present tables.
    std::vector<RowLink> Links();
    /// Lets go of a source that is about to be deleted, or whose table has gone.
    void Forget(const SimpleSource& source);
    /// Takes out the children that hang on nothing any more, and those whose tie has gone.
    void ForgetLooseChildren();

    const char* GetName() const override;
    bool IsConnected() const override;
    bool SetParent(const char* name) override;
    bool AddChild(const char* name, const char* third) override;
    bool RemoveChild(const char* name) override;
    znIBrowserDataSourceSimple* GetParent() override;
    bool GetChildren(std::vector<znIBrowserDataSourceSimple*>& children) override;
    void GetDataItems(const znBrowserDataItem* parent, znBrowserDataItems& items, bool flag,
                      bool recursive) override;
    znIBrowserDataSource* GetDataSource() override;
    znIBrowserDataCtrl* GetDataCtrl() override;

private:
    struct Child {
        SimpleSource* source;
        DataReference* reference;
    };

    SimpleSource* FindMember(const SimpleSource& child, const DataReference& reference) const;
    DataReference* OnlyReference(SimpleSource& child);
    bool Tie(SimpleSource& child, const std::string& referenceName);

    DataCtrl& control_;
    const std::string name_;
    SimpleSource* parent_ = nullptr;
    std::vector<Child> children_; // in the order added
    DataSource facet_;
};

} // namespace znhost

#endif

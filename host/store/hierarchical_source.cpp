#include "store/hierarchical_source.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view_links.h"
#include "store/data_ctrl.h"
#include "store/tree_walk.h"
#include "store/view_items.h"

namespace znhost {

HierarchicalSource::HierarchicalSource(DataCtrl& control, std::string name)
    : HostObject(control.Log()), control_(control), name_(std::move(name)), facet_(*this) {}

std::vector<SimpleSource*> HierarchicalSource::Members() const {
    std::vector<SimpleSource*> members;
    AddNew(members, parent_);
    for (const Child& child : children_) AddNew(members, child.source);
    return members;
}

bool HierarchicalSource::Has(const SimpleSource& source) const {
    return Contains(Members(), const_cast<SimpleSource*>(&source));
}

void HierarchicalSource::Forget(const SimpleSource& source) {
    if (parent_ == &source) parent_ = nullptr;
    RemoveWhere(children_, [&source](const Child& child) { return child.source == &source; });
    ForgetLooseChildren();
}

// A source whose own parent is the one that goes loses its place in the tree with it, so what hung on it is
// taken out too.
void HierarchicalSource::ForgetLooseChildren() {
    RemoveWhere(children_, [](const Child& child) { return !child.reference->IsThere(); });
    for (std::size_t i = 0; parent_ && i < children_.size();) {
        if (FindMember(*children_[i].source, *children_[i].reference)) {
            ++i;
        } else {
            children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(i));
            i = 0;
        }
    }
}

/// The first source of the tree on which the child can hang along the reference; itself only when nothing
/// else is there.
SimpleSource* HierarchicalSource::FindMember(const SimpleSource& child,
                                             const DataReference& reference) const {
    SimpleSource& below = const_cast<SimpleSource&>(child);
    for (SimpleSource* const member : Members()) {
        if (member != &child && CanLink(*member, below, reference)) return member;
    }
    return Has(child) && CanLink(below, below, reference) ? &below : nullptr;
}

std::vector<RowLink> HierarchicalSource::Links() {
    std::vector<RowLink> links;
    const auto add = [&links](SimpleSource& parent, SimpleSource& child, DataReference& reference) {
        AddNewLink(links, {&parent, &child, &reference});
    };
    for (SimpleSource* const member : Members()) {
        std::vector<DataReference*> own;
        for (DataReference* const reference : control_.References()) {
            if (CanLink(*member, *member, *reference)) own.push_back(reference);
        }
        if (own.size() == 1) add(*member, *member, *own.front());
    }
    for (const Child& child : children_) {
        SimpleSource* const member = FindMember(*child.source, *child.reference);
        if (member) add(*member, *child.source, *child.reference);
    }
    return links;
}

std::vector<RowLink> GetRowLinks(znIBrowserDataSourceHierarchical& source) {
    return static_cast<HierarchicalSource&>(source).Links();
}

/// The only reference between the child and the tree; null, with an error text, when there is none or there
/// are more.
DataReference* HierarchicalSource::OnlyReference(SimpleSource& child) {
    std::vector<DataReference*> fitting;
    std::string names;
    for (DataReference* const reference : control_.References()) {
        if (!FindMember(child, *reference)) continue;
        fitting.push_back(reference);
        names += (names.empty() ? "" : ", ") + reference->Name();
    }
    if (fitting.size() == 1) return fitting.front();
    Fail(fitting.empty()
             ? "No data reference ties \"" + child.Name() + "\" to the data source \"" + name_ + "\""
             : "More than one data reference ties \"" + child.Name() + "\" to the data source \"" + name_ +
                   "\": " + names);
    return nullptr;
}

bool HierarchicalSource::Tie(SimpleSource& child, const std::string& referenceName) {
    DataReference* const reference =
        referenceName.empty() ? OnlyReference(child) : control_.FindReference(referenceName);
    if (!reference) return referenceName.empty() ? false : control_.FailNoReference(referenceName);
    if (!FindMember(child, *reference)) {
        return Fail("The data reference \"" + reference->Name() + "\" does not tie \"" + child.Name() +
                    "\" to the data source \"" + name_ + "\"");
    }
    for (const Child& known : children_) {
        if (known.source != &child || known.reference != reference) continue;
        return Fail("\"" + child.Name() + "\" is already a child of the data source \"" + name_ + "\"");
    }
    children_.push_back({&child, reference});
    control_.ItemsChanged();
    return true;
}

const char* HierarchicalSource::GetName() const {
    if (Refused("znIBrowserDataSourceHierarchical::GetName")) return nullptr;
    return name_.c_str();
}

bool HierarchicalSource::IsConnected() const {
    if (Refused("znIBrowserDataSourceHierarchical::IsConnected")) return false;
    return control_.Model().Uses(const_cast<DataSource&>(facet_));
}

bool HierarchicalSource::SetParent(const char* name) {
    if (Refused("znIBrowserDataSourceHierarchical::SetParent", name)) return false;
    SimpleSource* const parent = control_.FindSimple(TextOf(name));
    if (!parent) return control_.FailNoSource(TextOf(name));
    if (parent == parent_) return true;
    if (parent_ && !children_.empty()) {
        return Fail("The data source \"" + name_ + "\" has children that hang on \"" + parent_->Name() +
                    "\"");
    }
    parent_ = parent;
    control_.ItemsChanged();
    return true;
}

bool HierarchicalSource::AddChild(const char* name, const char* third) {
    if (Refused("znIBrowserDataSourceHierarchical::AddChild", name, third)) return false;
    SimpleSource* const child = control_.FindSimple(TextOf(name));
    if (!child) return control_.FailNoSource(TextOf(name));
    if (!parent_) return Fail("The data source \"" + name_ + "\" has no parent to hang a child on");
    return Tie(*child, TextOf(third));
}

bool HierarchicalSource::RemoveChild(const char* name) {
    if (Refused("znIBrowserDataSourceHierarchical::RemoveChild", name)) return false;
    const std::string doomed = TextOf(name);
    SimpleSource* const source = control_.FindSimple(doomed);
    const std::size_t before = children_.size();
    if (source && source != parent_) {
        control_.NoteItemsChanged();
        Forget(*source);
    }
    if (children_.size() == before) {
        return Fail(parent_ && parent_ == source
                        ? "\"" + doomed + "\" is the parent of the data source \"" + name_ +
                              "\": it cannot be disconnected"
                        : "\"" + doomed + "\" is not a child of the data source \"" + name_ + "\"");
    }
    control_.ItemsChanged();
    return true;
}

znIBrowserDataSourceSimple* HierarchicalSource::GetParent() {
    if (Refused("znIBrowserDataSourceHierarchical::GetParent")) return nullptr;
    return parent_;
}

bool HierarchicalSource::GetChildren(std::vector<znIBrowserDataSourceSimple*>& children) {
    children.clear();
    if (Refused("znIBrowserDataSourceHierarchical::GetChildren")) return false;
    for (const Child& child : children_) {
        AddNew(children, static_cast<znIBrowserDataSourceSimple*>(child.source));
    }
    return true;
}

void HierarchicalSource::GetDataItems(const znBrowserDataItem* parent, znBrowserDataItems& items, bool flag,
                                      bool recursive) {
    items.Clear();
    if (Refused("znIBrowserDataSourceHierarchical::GetDataItems", parent, flag, recursive)) return;
    TreeWalk walk(*this);
    if (parent) {
        walk.ListBelow(*parent, recursive, items);
    } else {
        walk.ListTop(recursive, items);
    }
}

znIBrowserDataSource* HierarchicalSource::GetDataSource() {
    if (Refused("znIBrowserDataSourceHierarchical::GetDataSource")) return nullptr;
    return &facet_;
}

znIBrowserDataCtrl* HierarchicalSource::GetDataCtrl() {
    if (Refused("znIBrowserDataSourceHierarchical::GetDataCtrl")) return nullptr;
    return &control_;
}

} // namespace znhost

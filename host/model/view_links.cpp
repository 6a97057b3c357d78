#include "model/view_links.h"

#include "model/data_sources.h"
#include "model/view.h"

namespace znhost {

std::vector<RowLink> LinksOf(const View& view) {
    std::vector<RowLink> links;
    const auto addTree = [&links](znIBrowserDataSourceHierarchical* source) {
        if (!source) return;
        for (const RowLink& link : GetRowLinks(*source)) AddNewLink(links, link);
    };
    for (znIBrowserDataSource* const source : view.ConnectedSources()) {
        addTree(HierarchicalOf(view.Log(), source));
    }
    for (FreeFolder* const folder : view.RootFolder().WithBelow()) {
        addTree(folder->Tree().source);
        for (const FolderTreeLink& link : folder->TreeLinks()) {
            RowSource* const parent = GetRowSource(SimpleOf(view.Log(), link.parent));
            RowSource* const child = GetRowSource(SimpleOf(view.Log(), link.child));
            if (parent && child && link.reference) AddNewLink(links, {parent, child, link.reference});
        }
    }
    return links;
}

} // namespace znhost

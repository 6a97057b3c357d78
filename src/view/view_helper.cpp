#include "view/view_helper.h"

#include "data/item_values.h"
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

#include <algorithm>

using namespace znlayer;
using namespace view_messages;

namespace {

bool ReadValueText(znIBrowserDataProperty& property, const znBrowserDataItem& item, znString& text) {
    return VariantToText(property.GetValue(item), text);
}

} // namespace

znBrowserManagerViewTcl& ViewHelperOf(znBrowserManagerTcl& manager) {
    manager.CreateBrowserManagerViewTcl();
    znBrowserManagerViewTcl& helper = *manager.GetBrowserManagerViewTcl();
    helper.Serve(&manager);
    return helper;
}

bool znBrowserManagerViewTcl::Connect(const char* name) {
    const Operation operation(*owner_);
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return operation.Fail(znBrowserMessages::noCurrentView);
    znIBrowserDataCtrl* const control = view->GetDataCtrl();
    znIBrowserDataSource* const source = FindNamed(control, &znIBrowserDataCtrl::FindDataSource, name);
    if (!source) return operation.Fail({"Cannot find data source : ", name});
    return view->SetDataSourceConnected(source, true) || operation.Fail("Cannot connect data source");
}

bool znBrowserManagerViewTcl::Disconnect(const char* name) {
    const Operation operation(*owner_);
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return operation.Fail(znBrowserMessages::noCurrentView);
    znIBrowserDataSource* const source = FindNamed(view, &znIBrowserView::FindDataSource, name);
    if (!source) return operation.Fail({"Cannot find data source : ", name});
    if (!view->SetDataSourceConnected(source, false)) return operation.Fail("Cannot create tree");
    if (dataSource_ == source) dataSource_ = nullptr;
    return true;
}

bool znBrowserManagerViewTcl::SetCurrentDataSource(const char* name) {
    const Operation operation(*owner_);
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return operation.Fail(noViewName);
    znIBrowserDataSource* const source = FindNamed(view, &znIBrowserView::FindDataSource, name);
    if (!source) {
        return operation.Fail(
            {"DataSource of: ", name, "(s) is not configured in the view: ", view->GetName().c_str()});
    }
    dataSource_ = source;
    return true;
}

bool znBrowserManagerViewTcl::GetCurrentDataSource(znString& out) {
    const Operation operation(*owner_);
    znIBrowserDataSource* const source = RequireSource(operation, false);
    if (!source) return false;
    out = source->GetName();
    return true;
}

znString znBrowserManagerViewTcl::GetCurrentDataSourceName() const {
    znIBrowserDataSource* const source = CurrentDataSource();
    return source ? source->GetName() : znString("");
}

bool znBrowserManagerViewTcl::GetDataSourceNames(znString& out) {
    const Operation operation(*owner_);
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return operation.Fail(noViewName);
    std::vector<znIBrowserDataSource*> sources;
    if (!view->GetConnectedDataSources(sources))
        return operation.Fail("Cannot get list of connected data sources");
    return NameList(EntryForm::Braced).AddNames(sources, NullName::IsLeftOut).Give(*owner_, out);
}

bool znBrowserManagerViewTcl::SetFolderDataSource(const char* name) {
    const Operation operation(*owner_);
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    if (!owner_->GetCurrentViewPtr()) return operation.Fail(noViewName);
    if (!folder) return operation.Fail(noFolderName);
    znIBrowserDataSource* const source =
        FindNamed(folder, &znIBrowserViewItemFreeFolder::FindDataSource, name);
    if (!source) {
        return operation.Fail(
            {"DataSource of: ", name, "(s) is not configured in the folder: ", folder->GetName()});
    }
    return operation.HostAnswer(folder->SetCurrentDataSource(source));
}

bool znBrowserManagerViewTcl::GetFolderDataSource(znString& out) {
    const Operation operation(*owner_);
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    if (!owner_->GetCurrentViewPtr()) return operation.Fail(noViewName);
    if (!folder) return operation.Fail(noFolderName);
    znIBrowserDataSource* const source = folder->GetCurrentDataSource();
    if (!source) return operation.Fail(noDataSourceName);
    out = source->GetName();
    return true;
}

bool znBrowserManagerViewTcl::SetFolderDataSourceStyle(bool style) {
    const Operation operation(*owner_);
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    znIBrowserViewColumn* const column = owner_->GetCurrentColumnPtr();
    if (!folder) return operation.Fail(noFolderName);
    if (!column) return operation.Fail(noColumnHandle);
    znIBrowserDataSource* const source = folder->GetCurrentDataSource();
    if (!source) return operation.Fail(" datasource in the current folder");
    return operation.HostAnswer(folder->SetDataSourceStyle(source, column, style));
}

bool znBrowserManagerViewTcl::GetCurrentItem(znString& out) {
    const Operation operation(*owner_);
    out = "";
    znIBrowserDataProperty* const property = item_ ? ItemProperty(*owner_).Of(item_->source) : nullptr;
    if (property) ReadValueText(*property, *item_, out);
    return true;
}

bool znBrowserManagerViewTcl::GetSelectedItems(znString& out, bool recursive) {
    const Operation operation(*owner_);
    znIBrowserDataSource* const source = RequireSource(operation, true);
    if (!source) return false;
    znIBrowserDataSourceSimple* const simple = source->GetSimple();
    ItemProperty property(*owner_);
    if (simple && !property.Of(simple))
        return operation.Fail("Cannot get data property for current datasource");
    znBrowserDataItems items;
    if (!owner_->GetCurrentViewPtr()->GetSelectedItems(source, recursive, items))
        return operation.FailWithHostError();
    return GiveItemValues(*owner_, items, {&property}, out, ReadValueText);
}

bool znBrowserManagerViewTcl::GetAllSelectedItems(znString& out, bool recursive) {
    const Operation operation(*owner_);
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return operation.Fail(noViewName);
    if (!owner_->GetCurrentViewPropertyPtr()) return operation.Fail(noPropertyName);
    znBrowserDataItems items;
    if (!view->GetAllSelectedItems(recursive, items)) return operation.FailWithHostError();
    ItemProperty property(*owner_);
    return GiveItemValues(*owner_, items, {&property}, out, ReadValueText);
}

bool znBrowserManagerViewTcl::SelectItems(bool select, bool recursive) {
    const Operation operation(*owner_);
    znIBrowserDataSource* const source = RequireSource(operation, false);
    if (!source) return false;
    return operation.HostAnswer(source->SelectItems(owner_->GetCurrentViewPtr(), select, recursive));
}

bool znBrowserManagerViewTcl::SelectItemsByValue(const char* value, bool select, bool recursive) {
    const Operation operation(*owner_);
    znIBrowserDataSource* const source = RequireSource(operation, true);
    if (!source) return false;
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    znIBrowserViewProperty* const property = owner_->GetCurrentViewPropertyPtr();
    return operation.HostAnswer(source->SelectItemsByValue(view, property, value, select, recursive));
}

znIBrowserDataSource* znBrowserManagerViewTcl::CurrentDataSource() const {
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    std::vector<znIBrowserDataSource*> sources;
    if (!view || !view->GetConnectedDataSources(sources)) return nullptr;
    return std::find(sources.begin(), sources.end(), dataSource_) != sources.end() ? dataSource_ : nullptr;
}

znIBrowserDataSource* znBrowserManagerViewTcl::RequireSource(const Operation& operation, bool property) {
    znIBrowserDataSource* source = nullptr;
    if (!owner_->GetCurrentViewPtr())
        operation.Fail(noViewName);
    else if (property && !owner_->GetCurrentViewPropertyPtr())
        operation.Fail(noPropertyName);
    else if (source = CurrentDataSource(); !source)
        operation.Fail(noDataSourceName);
    return source;
}

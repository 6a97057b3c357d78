#include "view/view_helper.h"

#include "data/item_values.h"
#include "frame/data_types.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"

#include <algorithm>

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
    owner_->BeginOperation();
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return owner_->Fail(messages::noCurrentView);
    znIBrowserDataCtrl* const control = view->GetDataCtrl();
    znIBrowserDataSource* const source = control && name ? control->FindDataSource(name) : nullptr;
    if (!source) return owner_->FailWith({"Cannot find data source : ", name});
    return view->SetDataSourceConnected(source, true) || owner_->Fail("Cannot connect data source");
}

bool znBrowserManagerViewTcl::Disconnect(const char* name) {
    owner_->BeginOperation();
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return owner_->Fail(messages::noCurrentView);
    znIBrowserDataSource* const source = name ? view->FindDataSource(name) : nullptr;
    if (!source) return owner_->FailWith({"Cannot find data source : ", name});
    if (!view->SetDataSourceConnected(source, false)) return owner_->Fail("Cannot create tree");
    if (dataSource_ == source) dataSource_ = nullptr;
    return true;
}

bool znBrowserManagerViewTcl::SetCurrentDataSource(const char* name) {
    owner_->BeginOperation();
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return owner_->Fail(noViewName);
    znIBrowserDataSource* const source = name ? view->FindDataSource(name) : nullptr;
    if (!source) {
        return owner_->FailWith(
            {"DataSource of: ", name, "(s) is not configured in the view: ", view->GetName().c_str()});
    }
    dataSource_ = source;
    return true;
}

bool znBrowserManagerViewTcl::GetCurrentDataSource(znString& out) {
    znIBrowserDataSource* const source = RequireSource(false);
    if (!source) return false;
    out = source->GetName();
    return true;
}

znString znBrowserManagerViewTcl::GetCurrentDataSourceName() const {
    znIBrowserDataSource* const source = CurrentDataSource();
    return source ? source->GetName() : znString("");
}

bool znBrowserManagerViewTcl::GetDataSourceNames(znString& out) {
    owner_->BeginOperation();
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return owner_->Fail(noViewName);
    std::vector<znIBrowserDataSource*> sources;
    if (!view->GetConnectedDataSources(sources))
        return owner_->Fail("Cannot get list of connected data sources");
    return NameList(EntryForm::Braced).AddNames(sources, NullName::IsLeftOut).Give(*owner_, out);
}

bool znBrowserManagerViewTcl::SetFolderDataSource(const char* name) {
    owner_->BeginOperation();
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    if (!owner_->GetCurrentViewPtr()) return owner_->Fail(noViewName);
    if (!folder) return owner_->Fail(noFolderName);
    znIBrowserDataSource* const source = name ? folder->FindDataSource(name) : nullptr;
    if (!source) {
        return owner_->FailWith(
            {"DataSource of: ", name, "(s) is not configured in the folder: ", folder->GetName()});
    }
    return owner_->HostAnswer(folder->SetCurrentDataSource(source));
}

bool znBrowserManagerViewTcl::GetFolderDataSource(znString& out) {
    owner_->BeginOperation();
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    if (!owner_->GetCurrentViewPtr()) return owner_->Fail(noViewName);
    if (!folder) return owner_->Fail(noFolderName);
    znIBrowserDataSource* const source = folder->GetCurrentDataSource();
    if (!source) return owner_->Fail(noDataSourceName);
    out = source->GetName();
    return true;
}

bool znBrowserManagerViewTcl::SetFolderDataSourceStyle(bool style) {
    owner_->BeginOperation();
    znIBrowserViewItemFreeFolder* const folder = owner_->GetCurrentFreeFolderPtr();
    znIBrowserViewColumn* const column = owner_->GetCurrentColumnPtr();
    if (!folder) return owner_->Fail(noFolderName);
    if (!column) return owner_->Fail(noColumnHandle);
    znIBrowserDataSource* const source = folder->GetCurrentDataSource();
    if (!source) return owner_->Fail(" datasource in the current folder");
    return owner_->HostAnswer(folder->SetDataSourceStyle(source, column, style));
}

bool znBrowserManagerViewTcl::GetCurrentItem(znString& out) {
    owner_->BeginOperation();
    out = "";
    znIBrowserDataProperty* const property = item_ ? ItemProperty(*owner_).Of(item_->source) : nullptr;
    if (property) ReadValueText(*property, *item_, out);
    return true;
}

bool znBrowserManagerViewTcl::GetSelectedItems(znString& out, bool recursive) {
    znIBrowserDataSource* const source = RequireSource(true);
    if (!source) return false;
    znIBrowserDataSourceSimple* const simple = source->GetSimple();
    ItemProperty property(*owner_);
    if (simple && !property.Of(simple))
        return owner_->Fail("Cannot get data property for current datasource");
    znBrowserDataItems items;
    if (!owner_->GetCurrentViewPtr()->GetSelectedItems(source, recursive, items))
        return owner_->FailWithHostError();
    return GiveItemValues(*owner_, items, {&property}, out, ReadValueText);
}

bool znBrowserManagerViewTcl::GetAllSelectedItems(znString& out, bool recursive) {
    owner_->BeginOperation();
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    if (!view) return owner_->Fail(noViewName);
    if (!owner_->GetCurrentViewPropertyPtr()) return owner_->Fail(noPropertyName);
    znBrowserDataItems items;
    if (!view->GetAllSelectedItems(recursive, items)) return owner_->FailWithHostError();
    ItemProperty property(*owner_);
    return GiveItemValues(*owner_, items, {&property}, out, ReadValueText);
}

bool znBrowserManagerViewTcl::SelectItems(bool select, bool recursive) {
    znIBrowserDataSource* const source = RequireSource(false);
    if (!source) return false;
    return owner_->HostAnswer(source->SelectItems(owner_->GetCurrentViewPtr(), select, recursive));
}

bool znBrowserManagerViewTcl::SelectItemsByValue(const char* value, bool select, bool recursive) {
    znIBrowserDataSource* const source = RequireSource(true);
    if (!source) return false;
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    znIBrowserViewProperty* const property = owner_->GetCurrentViewPropertyPtr();
    return owner_->HostAnswer(source->SelectItemsByValue(view, property, value, select, recursive));
}

znIBrowserDataSource* znBrowserManagerViewTcl::CurrentDataSource() const {
    znIBrowserView* const view = owner_->GetCurrentViewPtr();
    std::vector<znIBrowserDataSource*> sources;
    if (!view || !view->GetConnectedDataSources(sources)) return nullptr;
    return std::find(sources.begin(), sources.end(), dataSource_) != sources.end() ? dataSource_ : nullptr;
}

znIBrowserDataSource* znBrowserManagerViewTcl::RequireSource(bool property) {
    owner_->BeginOperation();
    znIBrowserDataSource* source = nullptr;
    if (!owner_->GetCurrentViewPtr())
        owner_->Fail(noViewName);
    else if (property && !owner_->GetCurrentViewPropertyPtr())
        owner_->Fail(noPropertyName);
    else if (source = CurrentDataSource(); !source)
        owner_->Fail(noDataSourceName);
    return source;
}

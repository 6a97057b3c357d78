// The names of current objects.
#include "frame/operation.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserInputField.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "window/popup_messages.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

/// The object's name; "" without an object, and for an object without a name.
template <class T>
const char* NameOf(const T* object) {
    const char* const name = object ? object->GetName() : nullptr;
    return name ? name : "";
}

} // namespace

const char* znBrowserManagerTcl::GetCurrentDataCtrl() const { return NameOf(current_.dataCtrl); }

const char* znBrowserManagerTcl::GetCurrentDataSourceSimple() const {
    return NameOf(current_.dataSourceSimple);
}

const char* znBrowserManagerTcl::GetCurrentDataSourceHierarchical() const {
    return NameOf(current_.dataSourceHierarchical);
}

const char* znBrowserManagerTcl::GetCurrentConnectDataSourceSimple() const {
    return NameOf(current_.connectDataSourceSimple);
}

bool znBrowserManagerTcl::GetCurrentCriteria(znString& out) {
    const Operation operation(*this);
    out = NameOf(current_.criteria);
    return true;
}

bool znBrowserManagerTcl::GetCurrentDataOperation(znString& out) {
    const Operation operation(*this);
    if (!current_.dataOperation) return operation.Fail("Cannot get name of the current dataoperation");
    out = NameOf(current_.dataOperation);
    return true;
}

bool znBrowserManagerTcl::GetCurrentInputField(znString& out) {
    if (current_.inputField) out = NameOf(current_.inputField);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentPopupMenu(znString& out) {
    const Operation operation(*this);
    if (!current_.popupMenu) return operation.Fail(popup_messages::noMenu);
    out = NameOf(current_.popupMenu);
    return true;
}

bool znBrowserManagerTcl::GetCurrentPopupMenuItem(znString& out) {
    const Operation operation(*this);
    if (!current_.popupMenuItem) return operation.Fail(popup_messages::noItem);
    out = NameOf(current_.popupMenuItem);
    return true;
}

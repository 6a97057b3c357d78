// The current objects: how each is read, stored, cleared and moved with its parent.
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserFindRequest.h"
#include "host/znIBrowserInputField.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowPart.h"

using namespace znlayer;

namespace {

template <class T>
T* First(const std::vector<T*>& list) {
    return list.empty() ? nullptr : list.front();
}

} // namespace

// ---- Reading ----
znIBrowserView* znBrowserManagerTcl::GetCurrentViewPtr() const { return current_.view; }
znIBrowserViewColumn* znBrowserManagerTcl::GetCurrentColumnPtr() const { return current_.column; }
znIBrowserStyle* znBrowserManagerTcl::GetCurrentStylePtr() const { return current_.style; }
znIBrowserStyleElement* znBrowserManagerTcl::GetCurrentStyleElementPtr() const {
    return current_.styleElement;
}
znIBrowserViewItemFreeFolder* znBrowserManagerTcl::GetCurrentFreeFolderPtr() const {
    return current_.freeFolder;
}
znIBrowserDataSourceSimple* znBrowserManagerTcl::GetCurrentListPtr() const { return current_.list; }
znIBrowserViewOperation* znBrowserManagerTcl::GetCurrentViewOperationPtr() const {
    return current_.viewOperation;
}
znIBrowserViewProperty* znBrowserManagerTcl::GetCurrentViewPropertyPtr() const {
    return current_.viewProperty;
}
znIBrowserWindowAccess* znBrowserManagerTcl::GetCurrentWindowAccessPtr() const {
    return current_.windowAccess;
}
znIBrowserWindowPart* znBrowserManagerTcl::GetCurrentWindowPartPtr() const { return current_.windowPart; }
znIBrowserEvent* znBrowserManagerTcl::GetCurrentEventPtr() const { return current_.event; }
znIBrowserWindowCallback* znBrowserManagerTcl::GetCurrentWindowCallbackPtr() const {
    return current_.windowCallback;
}
znIBrowserGuiMap* znBrowserManagerTcl::GetCurrentGuiMapPtr() const { return current_.guiMap; }
znIBrowserFindRequest* znBrowserManagerTcl::GetCurrentFindRequestPtr() const { return current_.findRequest; }
znBrowserProperty* znBrowserManagerTcl::GetCurrentFindRequestPropertyPtr() const {
    return current_.findRequestProperty;
}
znBrowserCriterion* znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionPtr() const {
    return current_.findRequestPropertyCriterion;
}
znIBrowserDataCtrl* znBrowserManagerTcl::GetCurrentDataCtrlPtr() const { return current_.dataCtrl; }
znIBrowserDataSourceSimple* znBrowserManagerTcl::GetCurrentDataSourceSimplePtr() const {
    return current_.dataSourceSimple;
}
znIBrowserDataSourceHierarchical* znBrowserManagerTcl::GetCurrentDataSourceHierarchicalPtr() const {
    return current_.dataSourceHierarchical;
}
znIBrowserCriteria* znBrowserManagerTcl::GetCurrentCriteriaPtr() const { return current_.criteria; }
znIBrowserDataOperation* znBrowserManagerTcl::GetCurrentDataOperationPtr() const {
    return current_.dataOperation;
}
znIBrowserInputField* znBrowserManagerTcl::GetCurrentInputFieldPtr() const { return current_.inputField; }
znIBrowserState* znBrowserManagerTcl::GetCurrentStatePtr() const { return current_.state; }
znIBrowserPopupMenu* znBrowserManagerTcl::GetCurrentPopupMenuPtr() const { return current_.popupMenu; }
znIBrowserPopupMenuItem* znBrowserManagerTcl::GetCurrentPopupMenuItemPtr() const {
    return current_.popupMenuItem;
}
znIBrowserDataSourceSimple* znBrowserManagerTcl::GetCurrentConnectDataSourceSimplePtr() const {
    return current_.connectDataSourceSimple;
}

// ---- Storing ----
void znBrowserManagerTcl::SetCurrentColumn(znIBrowserViewColumn* column) { current_.column = column; }
void znBrowserManagerTcl::SetCurrentStyleElement(znIBrowserStyleElement* element) {
    current_.styleElement = element;
}
void znBrowserManagerTcl::SetCurrentFreeFolder(znIBrowserViewItemFreeFolder* folder) {
    current_.freeFolder = folder;
}
void znBrowserManagerTcl::SetCurrentList(znIBrowserDataSourceSimple* list) { current_.list = list; }
void znBrowserManagerTcl::SetCurrentViewOperation(znIBrowserViewOperation* operation) {
    current_.viewOperation = operation;
}
void znBrowserManagerTcl::SetCurrentViewProperty(znIBrowserViewProperty* property) {
    current_.viewProperty = property;
}
void znBrowserManagerTcl::SetCurrentWindowPartByPtr(znIBrowserWindowPart* part) {
    current_.windowPart = part;
}
void znBrowserManagerTcl::SetCurrentEvent(znIBrowserEvent* event) { current_.event = event; }
void znBrowserManagerTcl::SetCurrentWindowCallback(znIBrowserWindowCallback* callback) {
    current_.windowCallback = callback;
}
void znBrowserManagerTcl::SetCurrentGuiMap(znIBrowserGuiMap* map) { current_.guiMap = map; }
void znBrowserManagerTcl::SetCurrentFindRequestByPtr(znIBrowserFindRequest* request) {
    current_.findRequest = request;
}
void znBrowserManagerTcl::SetCurrentFindRequestPropertyByPtr(znBrowserProperty* property) {
    current_.findRequestProperty = property;
}
void znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionByPtr(znBrowserCriterion* criterion) {
    current_.findRequestPropertyCriterion = criterion;
}
void znBrowserManagerTcl::SetCurrentDataCtrl(znIBrowserDataCtrl* control) { current_.dataCtrl = control; }
void znBrowserManagerTcl::SetCurrentCriteria(znIBrowserCriteria* criteria) { current_.criteria = criteria; }
void znBrowserManagerTcl::SetCurrentDataOperation(znIBrowserDataOperation* operation) {
    current_.dataOperation = operation;
}
void znBrowserManagerTcl::SetCurrentInputField(znIBrowserInputField* field) { current_.inputField = field; }
void znBrowserManagerTcl::SetCurrentState(znIBrowserState* state) { current_.state = state; }
void znBrowserManagerTcl::SetCurrentPopupMenu(znIBrowserPopupMenu* menu) { current_.popupMenu = menu; }
void znBrowserManagerTcl::SetCurrentPopupMenuItem(znIBrowserPopupMenuItem* item) {
    current_.popupMenuItem = item;
}

void znBrowserManagerTcl::SetCurrentView(znIBrowserView* view) {
    current_.view = view;
    znIBrowserDataCtrl* const control = view ? view->GetDataCtrl() : nullptr;
    if (control) current_.dataCtrl = control;
}

void znBrowserManagerTcl::SetCurrentStyle(znIBrowserStyle* style) {
    current_.style = style;
    if (current_.column) current_.column->SetCurrentStyle(style);
}

void znBrowserManagerTcl::SetCurrentWindowAccess(znIBrowserWindowAccess* window) {
    current_.windowAccess = window;
    UpdateCurrentFindRequest(window);
    if (znIBrowser* const browser = BrowserOf(*this)) browser->SetCurrentWindowAccess(window);
}

void znBrowserManagerTcl::SetCurrentDataSourceSimple(znIBrowserDataSourceSimple* source) {
    UpdateCurrentDataSourceSimple(source);
}

void znBrowserManagerTcl::SetCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source) {
    UpdateCurrentDataSourceHierarchical(source);
}

void znBrowserManagerTcl::SetCurrentConnectDataSourceSimple(znIBrowserDataSourceSimple*) {}

// ---- Clearing ----
void znBrowserManagerTcl::ResetCurrentView() { current_.view = nullptr; }
void znBrowserManagerTcl::ResetCurrentColumn() { current_.column = nullptr; }
void znBrowserManagerTcl::ResetCurrentStyle() { current_.style = nullptr; }
void znBrowserManagerTcl::ResetCurrentStyleElement() { current_.styleElement = nullptr; }
void znBrowserManagerTcl::ResetCurrentFreeFolder() { current_.freeFolder = nullptr; }
void znBrowserManagerTcl::ResetCurrentList() { current_.list = nullptr; }
void znBrowserManagerTcl::ResetCurrentViewOperation() { current_.viewOperation = nullptr; }
void znBrowserManagerTcl::ResetCurrentWindowAccess() { current_.windowAccess = nullptr; }
void znBrowserManagerTcl::ResetCurrentWindowPart() { current_.windowPart = nullptr; }
void znBrowserManagerTcl::ResetCurrentEvent() { current_.event = nullptr; }
void znBrowserManagerTcl::ResetCurrentWindowCallback() { current_.windowCallback = nullptr; }
void znBrowserManagerTcl::ResetCurrentFindRequest() { current_.findRequest = nullptr; }
void znBrowserManagerTcl::ResetCurrentFindRequestProperty() { current_.findRequestProperty = nullptr; }
void znBrowserManagerTcl::ResetCurrentFindRequestPropertyCriterion() {
    current_.findRequestPropertyCriterion = nullptr;
}
void znBrowserManagerTcl::ResetCurrentDataCtrl() { current_.dataCtrl = nullptr; }
void znBrowserManagerTcl::ResetCurrentCriteria() { current_.criteria = nullptr; }
void znBrowserManagerTcl::ResetCurrentDataOperation() { current_.dataOperation = nullptr; }
void znBrowserManagerTcl::ResetCurrentInputField() { current_.inputField = nullptr; }
void znBrowserManagerTcl::ResetCurrentState() { current_.state = nullptr; }
void znBrowserManagerTcl::ResetCurrentPopupMenu() { current_.popupMenu = nullptr; }
void znBrowserManagerTcl::ResetCurrentPopupMenuItem() { current_.popupMenuItem = nullptr; }

bool znBrowserManagerTcl::ResetCurrentViewProperty() {
    const bool wasCurrent = current_.viewProperty != nullptr;
    current_.viewProperty = nullptr;
    return wasCurrent;
}

bool znBrowserManagerTcl::ResetCurrentGuiMap() {
    const bool wasCurrent = current_.guiMap != nullptr;
    current_.guiMap = nullptr;
    return wasCurrent;
}

// ---- Following a parent: always its first child, or none ----
void znBrowserManagerTcl::UpdateCurrentView(znIBrowserView* view) {
    if (view == current_.view) return;
    SetCurrentView(view);
    UpdateCurrentColumn(view);
    UpdateCurrentFreeFolder(view);
}

void znBrowserManagerTcl::UpdateCurrentColumn(znIBrowserView* view) {
    current_.column = view ? view->GetCurrentColumn() : nullptr;
}

void znBrowserManagerTcl::UpdateCurrentFreeFolder(znIBrowserView* view) {
    current_.freeFolder = view ? view->GetRootFreeFolder() : nullptr;
}

void znBrowserManagerTcl::UpdateCurrentStyle(znIBrowserViewColumn* column) {
    std::vector<znIBrowserStyle*> styles;
    if (column) column->GetStyles(styles);
    SetCurrentStyle(First(styles));
    UpdateCurrentStyleElement(current_.style);
}

void znBrowserManagerTcl::UpdateCurrentStyleElement(znIBrowserStyle* style) {
    std::vector<znIBrowserStyleElement*> elements;
    if (style) style->GetElements(elements);
    current_.styleElement = First(elements);
}

void znBrowserManagerTcl::UpdateCurrentEvent(znIBrowserWindowPart* part) {
    std::vector<znIBrowserEvent*> events;
    znIBrowserWindowAccess* const window = part ? part->GetWindowAccess() : nullptr;
    if (window && !window->GetEvents(part, events)) events.clear();
    current_.event = First(events);
}

void znBrowserManagerTcl::UpdateWindowAccessDependentCurrents(znIBrowserWindowAccess* window) {
    UpdateCurrentFindRequest(window);
}

void znBrowserManagerTcl::UpdateCurrentFindRequest(znIBrowserWindowAccess* window) {
    std::vector<znIBrowserFindRequest*> requests;
    if (window) window->GetFindRequests(requests);
    current_.findRequest = First(requests);
    UpdateCurrentFindRequestProperty(current_.findRequest);
}

void znBrowserManagerTcl::UpdateCurrentFindRequestProperty(znIBrowserFindRequest* request) {
    std::vector<znBrowserProperty*> properties;
    if (request) request->GetProperties(properties);
    current_.findRequestProperty = First(properties);
}

void znBrowserManagerTcl::UpdateCurrentFindRequestPropertyCriterion(znBrowserProperty* property) {
    current_.findRequestPropertyCriterion = property ? First(property->criteria) : nullptr;
}

void znBrowserManagerTcl::UpdateCurrentPopupMenuItem(znIBrowserPopupMenu* menu) {
    std::vector<znIBrowserPopupMenuItem*> items;
    if (menu && !menu->GetItems(items)) items.clear();
    current_.popupMenuItem = First(items);
}

void znBrowserManagerTcl::UpdateCurrentDataSourceSimple(znIBrowserDataSourceSimple* source) {
    if (source) current_.dataSourceSimple = source;
}

void znBrowserManagerTcl::UpdateCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source) {
    if (source) current_.dataSourceHierarchical = source;
}

// These never follow: scripts choose them by name alone.
void znBrowserManagerTcl::UpdateCurrentCriteria(znIBrowserDataSourceSimple*) {}
void znBrowserManagerTcl::UpdateCurrentWindowCallback(znIBrowserEvent*) {}
void znBrowserManagerTcl::UpdateEventDependentCurrents(znIBrowserEvent*) {}
void znBrowserManagerTcl::OnDataSourceDelete(znIBrowserDataSourceSimple*) {}
void znBrowserManagerTcl::OnDataSourceDelete(znIBrowserDataSourceHierarchical*) {}

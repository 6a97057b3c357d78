// Sorting of the current view, and the direction of its current column.
#include "frame/operation.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "view/view_messages.h"

using namespace znlayer;
using namespace view_messages;

bool znBrowserManagerTcl::SetSorting(bool sorting) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    return operation.HostAnswer(current_.view->SetSorting(sorting));
}

bool znBrowserManagerTcl::GetSorting(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    return operation.GiveBool(current_.view->GetSorting(), out);
}

bool znBrowserManagerTcl::SetAscendingOrder(bool ascending) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    if (!current_.column->GetSorting()) return operation.Fail("sorting disabled to the current column");
    return operation.Ask(&znIBrowser::SetColumnAscending, current_.column, ascending);
}

bool znBrowserManagerTcl::GetAscendingOrder(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    ZNBROWSER_SORT_ORDER order = ZNBROWSER_UNSORTED;
    if (!current_.column->GetSortOrder(order)) return operation.Fail("Cannot get ascending type of sorting");
    switch (order) {
    case ZNBROWSER_ASCENDING: out = znBrowserTclKeywords::KEYWORD_ASCENDING; break;
    case ZNBROWSER_DESCENDING: out = znBrowserTclKeywords::KEYWORD_DESCENDING; break;
    default: out = znBrowserTclKeywords::KEYWORD_UNSORTED; break;
    }
    return true;
}

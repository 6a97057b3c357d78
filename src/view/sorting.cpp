// Sorting of the current view, and the direction of its current column.
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

using namespace view_messages;

bool znBrowserManagerTcl::SetSorting(bool sorting) {
    BeginOperation();
    if (!current_.view) return Fail(noViewName);
    return HostAnswer(current_.view->SetSorting(sorting));
}

bool znBrowserManagerTcl::GetSorting(znString& out) {
    BeginOperation();
    if (!current_.view) return Fail(noViewName);
    return GiveBool(current_.view->GetSorting(), out);
}

bool znBrowserManagerTcl::SetAscendingOrder(bool ascending) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    if (!current_.column->GetSorting()) return Fail("sorting disabled to the current column");
    return AskBrowser(*this, &znIBrowser::SetColumnAscending, current_.column, ascending);
}

bool znBrowserManagerTcl::GetAscendingOrder(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    ZNBROWSER_SORT_ORDER order = ZNBROWSER_UNSORTED;
    if (!current_.column->GetSortOrder(order)) return Fail("Cannot get ascending type of sorting");
    switch (order) {
    case ZNBROWSER_ASCENDING: out = znBrowserTclKeywords::KEYWORD_ASCENDING; break;
    case ZNBROWSER_DESCENDING: out = znBrowserTclKeywords::KEYWORD_DESCENDING; break;
    default: out = znBrowserTclKeywords::KEYWORD_UNSORTED; break;
    }
    return true;
}

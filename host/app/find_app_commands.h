// The host's own words about finding rows, and about recording what is done to them.
#ifndef ZN_HOST_FIND_APP_COMMANDS_H
#define ZN_HOST_FIND_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// VIEW ?name|shown?: whether the text filter looks at the items' names or at all columns shown.
int AppFilterScope(AppCall& call);
/// VIEW COLUMN ?none|null|contains TEXT|equals VALUE|between LOW HIGH?
int AppFilterColumn(AppCall& call);
/// VIEW COLUMN ?BOOL?: whether the numbers in the column's texts are ordered as numbers.
int AppSortNatural(AppCall& call);
/// WINDOW PATH ?LASTPATH?: the index of the row at the end of the path, or those of all rows between two.
int AppRow(AppCall& call);
/// WINDOW INDEX: the path of a row.
int AppPath(AppCall& call);
/// WINDOW: collapses whatever holds no selected row.
int AppPrune(AppCall& call);
int AppScroll(AppCall& call);
int AppSelectAll(AppCall& call);

/// Lists what was recorded.
int AppRecord(AppCall& call);
/// ?FILE?
int AppRecordOn(AppCall& call);
int AppRecordOff(AppCall& call);

} // namespace znhost

#endif

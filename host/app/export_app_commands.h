// The host's own word that writes rows for other programs: "znbrowsermanager app export".
#ifndef ZN_HOST_EXPORT_APP_COMMANDS_H
#define ZN_HOST_EXPORT_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// WINDOW all|selected|INDEX csv|tsv|cells ?FILE?: the rows that are open, the selected ones of these, or
/// those below one, as lines of text. Answers the text or, with a file, how many rows it has now. A file that
/// cannot be written to the end is as it was.
int AppExport(AppCall& call);

} // namespace znhost

#endif

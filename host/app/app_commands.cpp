// The host's own words, as one table. To add a word, write its answer and give it a row.
#include "app/app_commands.h"

#include "app/data_app_commands.h"
#include "app/database_app_commands.h"
#include "app/export_app_commands.h"
#include "app/find_app_commands.h"
#include "app/item_app_commands.h"
#include "app/popup_app_commands.h"
#include "app/row_app_commands.h"
#include "app/state_app_commands.h"
#include "app/table_app_commands.h"
#include "base/tcl_values.h"
#include "model/data_sources.h"
#include "store/data_ctrl.h"

#include <tcl.h>

#include <algorithm>

namespace znhost {

namespace {

constexpr std::size_t anyNumber = static_cast<std::size_t>(-1);

std::string TextOf(Tcl_Obj* object) {
    int length = 0;
    const char* const text = Tcl_GetStringFromObj(object, &length);
    return {text, static_cast<std::size_t>(length)};
}

} // namespace

// ---- The call ----

AppCall::AppCall(Application& application, int objc, Tcl_Obj* const objv[])
    : application_(application), objects_(objv, objv + objc) {}

std::string AppCall::Text(std::size_t position) const {
    return position < objects_.size() ? TextOf(objects_[position]) : std::string();
}

int AppCall::Answer(Tcl_Obj* result) const {
    Tcl_SetObjResult(application_.Interp(), result);
    return TCL_OK;
}

int AppCall::Answer(std::string_view text) const { return Answer(NewText(text)); }

int AppCall::Answer(const std::vector<std::string>& list) const { return Answer(NewList(list)); }

int AppCall::Fail(const std::string& message, const char* kind, const std::string& detail) const {
    Tcl_Interp* const interp = application_.Interp();
    std::vector<std::string> code{"ZNBROWSER", "APP", kind};
    if (!detail.empty()) code.push_back(detail);
    Tcl_SetObjResult(interp, NewText(message));
    Tcl_SetObjErrorCode(interp, NewList(code));
    return TCL_ERROR;
}

DataCtrl* AppCall::DataControl(std::size_t position) const {
    const std::string name = Text(position);
    DataCtrl* const control = application_.DataControls().Find(name);
    if (!control) Fail("there is no data control \"" + name + "\"", "DATACTRL", name);
    return control;
}

bool AppCall::Number(std::size_t position, const char* meaning, std::size_t& number) const {
    Tcl_WideInt value = -1;
    if (Tcl_GetWideIntFromObj(nullptr, Word(position), &value) != TCL_OK || value < 0) {
        Fail(std::string(meaning) + " must be a whole number of at least 0, but is \"" + Text(position) +
                 "\"",
             "NUMBER", Text(position));
        return false;
    }
    number = static_cast<std::size_t>(value);
    return true;
}

// ---- The words ----

namespace {

int Help(AppCall& call);

int CreateDataCtrl(AppCall& call) {
    std::string error;
    if (!call.App().AddDataCtrl(call.Text(0), call.Text(1), error)) {
        return call.Fail("cannot create the data control \"" + call.Text(0) + "\": " + error, "DATACTRL",
                         call.Text(0));
    }
    return call.Answer(call.Text(0));
}

int DataCtrlNames(AppCall& call) {
    std::vector<std::string> names;
    for (const auto& control : call.App().DataControls()) names.push_back(control->Name());
    return call.Answer(names);
}

int Sql(AppCall& call);

/// As `Sql`, for who would rather do without the answer than wait.
int Glance(AppCall& call) {
    const HostServices::Hurry hurry(call.App(), std::chrono::milliseconds(100));
    return Sql(call);
}

int Sql(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::vector<std::string> values;
    for (std::size_t i = 2; i < call.Count(); ++i) values.push_back(call.Text(i));
    std::vector<std::vector<std::string>> rows;
    std::string error;
    if (!control->RunSql(call.Text(1), values, rows, error)) return call.Fail(error, "SQL");
    Tcl_Obj* const result = Tcl_NewListObj(0, nullptr);
    for (const std::vector<std::string>& row : rows) Tcl_ListObjAppendElement(nullptr, result, NewList(row));
    return call.Answer(result);
}

int Refuse(AppCall& call) {
    CallLog& log = call.App().Log();
    if (call.Count() == 0) {
        std::vector<std::string> waiting;
        for (const Refusal& refusal : log.Refusals()) waiting.push_back(refusal.operation);
        return call.Answer(waiting);
    }
    const std::string operation = call.Text(0);
    const std::string text = call.Count() > 1 ? call.Text(1) : operation + " was refused on demand";
    if (log.Refuse(operation, text)) return call.Answer("");
    return call.Fail("unknown host operation \"" + operation +
                         "\": it must be written like znIBrowser::DeleteView",
                     "OPERATION", operation);
}

int JournalOn(AppCall& call) {
    call.App().Log().SetJournal(true);
    return call.Answer("");
}

int JournalOff(AppCall& call) {
    call.App().Log().SetJournal(false);
    return call.Answer("");
}

int JournalClear(AppCall& call) {
    call.App().Log().ClearJournal();
    return call.Answer("");
}

int Journal(AppCall& call) {
    Tcl_Obj* const calls = Tcl_NewListObj(0, nullptr);
    for (const HostCall& recorded : call.App().Log().Journal()) {
        Tcl_Obj* const words = NewList({recorded.operation});
        for (const CallArgument& argument : recorded.arguments) {
            Tcl_ListObjAppendElement(nullptr, words,
                                     argument.isList ? NewList(argument.words) : NewText(argument.words[0]));
        }
        Tcl_ListObjAppendElement(nullptr, calls, words);
    }
    return call.Answer(calls);
}

constexpr AppWord appWords[] = {
    {"chooser", "WINDOW ?BOOL?", "BOOL", "tells whether the list of a window's columns is open, or opens it",
     1, 2, AnswerChooser},
    {"datactrl changes", "DATACTRL", "TEXT ...",
     "lists what people have changed in windows and can undo, the first change first", 1, 1, AppChanges},
    {"datactrl create", "NAME ?FILE?", "NAME",
     "adds a data control on the database FILE (or postgresql://...), or on one in memory", 1, 2,
     CreateDataCtrl},
    {"datactrl file", "DATACTRL", "?FILE?",
     "tells the file or the server of the database; nothing for one in memory", 1, 1, AppFile},
    {"datactrl follow", "DATACTRL", "BOOL",
     "looks whether others have changed the database, and lets windows show it then", 1, 1, AppFollow},
    {"datactrl names", "", "DATACTRL ...", "lists the data controls", 0, 0, DataCtrlNames},
    {"datactrl open", "NAME FILE", "NAME",
     "adds a data control on the database FILE, which is only read: nothing is written to it or beside it", 2,
     2, AppOpenToRead},
    {"datactrl refresh", "DATACTRL", "BOOL",
     "lets windows read the database anew; tells whether others have changed it", 1, 1, AppRefresh},
    {"datactrl undo", "DATACTRL", "", "undoes the last change that people have made in windows", 1, 1,
     AppUndo},
    {"datactrl write", "DATACTRL ?BOOL?", "BOOL", "tells whether the database may be changed, or sets it", 1,
     2, AppWrite},
    {"details", "WINDOW ?BOOL?", "BOOL",
     "tells whether a window shows the details of the current row, or shows them", 1, 2, AnswerDetails},
    {"draw", "WINDOW", "TEXT", "draws what a window shows, as a table", 1, 1, AnswerDraw},
    {"export", "WINDOW all|selected|INDEX csv|tsv|cells|sql ?FILE? ?deep?", "TEXT",
     "writes rows as text, or into FILE and answers how many; cells: without captions, sql: as INSERT "
     "statements, deep: closed rows too",
     3, 5, AppExport},
    {"filter column", "VIEW COLUMN ?none|null|contains TEXT|equals VALUE|between LOW HIGH?", "FILTER",
     "sets or reads which values in a column are shown", 2, 5, AppFilterColumn},
    {"filter scope", "VIEW ?name|shown?", "name|shown",
     "sets or reads whether the text filter looks at names or at all columns shown", 1, 2, AppFilterScope},
    {"flat", "WINDOW ?BOOL?", "BOOL",
     "tells whether the items of the lists at the top stand there without a row for each list, or sets it", 1,
     2, AnswerFlat},
    {"glance", "DATACTRL STATEMENT ?VALUE ...?", "VALUE ...",
     "runs one SQL statement, but no longer than a tenth of a second", 2, anyNumber, Glance},
    {"help", "", "TEXT", "lists these words", 0, 0, Help},
    {"inputfield choices", "DATACTRL NAME ?VALUES?", "VALUE ...",
     "sets or reads what users choose from; an empty list lets them type", 2, 3, AppInputFieldChoices},
    {"inputfield create", "DATACTRL NAME TYPE", "NAME",
     "adds a user input field: bool, unsigned, integer, double or string", 3, 3, AppCreateInputField},
    {"inputfield delete", "DATACTRL NAME", "", "deletes a user input field", 2, 2, AppDeleteInputField},
    {"item", "WINDOW INDEX ?BYTES?", "ITEM",
     "tells all about an item, and for each column a dictionary; of a value no more than so many bytes", 2, 3,
     AnswerItem},
    {"journal", "", "CALL ...", "lists the host calls recorded", 0, 0, Journal},
    {"journal clear", "", "", "empties the record of host calls", 0, 0, JournalClear},
    {"journal off", "", "", "stops recording host calls", 0, 0, JournalOff},
    {"journal on", "", "", "records host calls from now on", 0, 0, JournalOn},
    {"path", "WINDOW INDEX", "PATH", "names the way to a row, for \"app row\"", 2, 2, AppPath},
    {"popup", "WINDOW ?COLUMN INDEX ...?", "ENTRY ...",
     "lists what a right click on these rows shows, or on the selected ones: a dictionary for each entry", 1,
     anyNumber, AnswerPopup},
    {"prune", "WINDOW", "", "collapses whatever holds no selected row", 1, 1, AppPrune},
    {"record", "", "LINE ...", "lists what the user did while it was recorded, as lines of script", 0, 0,
     AppRecord},
    {"record off", "", "", "stops recording what the user does", 0, 0, AppRecordOff},
    {"record on", "?FILE?", "", "records what the user does in windows from now on, in FILE too", 0, 1,
     AppRecordOn},
    {"references", "WINDOW INDEX", "ITEM ...",
     "lists the items that an item refers to, a dictionary for each", 2, 2, AnswerReferences},
    {"referring", "WINDOW INDEX ?REFERENCE ?MOST??", "ENTRY ...",
     "counts the items that refer to an item, by reference; or lists those of one reference", 2, 4,
     AnswerReferring},
    {"refuse", "?OPERATION? ?TEXT?", "OPERATION ...",
     "lets the next call of OPERATION fail with TEXT; or lists what waits", 0, 2, Refuse},
    {"reveal", "WINDOW DATASOURCE ROW", "BOOL",
     "opens what lies above an item and scrolls to it; tells whether the window has it", 3, 3, AnswerReveal},
    {"row", "WINDOW PATH ?LASTPATH?", "INDEX ...",
     "answers the index of the row that names lead to, or those of all rows between two", 2, 3, AppRow},
    {"rows", "WINDOW ?FIRST COUNT?", "ROW ...", "lists what a window shows, a dictionary for each row", 1, 3,
     AnswerRows},
    {"scroll", "WINDOW ?PATH?", "PATH",
     "tells which row stands at the top of a window, or scrolls there, or as far on the way as there are "
     "rows",
     1, 2, AppScroll},
    {"select all", "WINDOW", "BOOL",
     "selects every row that a window shows; tells whether it may have more than one selected", 1, 1,
     AppSelectAll},
    {"sort natural", "VIEW COLUMN ?BOOL?", "BOOL",
     "sets or reads whether numbers in the texts of a column are ordered as numbers", 2, 3, AppSortNatural},
    {"sql", "DATACTRL STATEMENT ?VALUE ...?", "VALUE ...",
     "runs one SQL statement, the values bound to its ?s", 2, anyNumber, Sql},
    {"state create", "DATACTRL NAME", "NAME", "adds a state in which nothing is saved yet", 2, 2,
     AppCreateState},
    {"state delete", "DATACTRL NAME", "", "deletes a saved state", 2, 2, AppDeleteState},
    {"state entities", "DATACTRL NAME", "NAME ...", "lists the entities kept with a state", 2, 2,
     AppStateEntities},
    {"state file", "DATACTRL ?FILE?", "?FILE?",
     "tells the file in which states are kept instead of the database, or lets them be kept there", 1, 2,
     AppStateFile},
    {"state names", "DATACTRL", "STATE ...", "lists the saved states", 1, 1, AppStateNames},
    {"tables", "DATACTRL ?TABLE?", "TABLE ...",
     "lists what is known of the tables and views, or of one, a dictionary for each", 1, 2, AppTables},
};

int Help(AppCall& call) {
    std::size_t width = 0;
    const auto usage = [](const AppWord& row) {
        return std::string(row.words) + (*row.arguments ? " " : "") + row.arguments;
    };
    for (const AppWord& row : appWords) width = std::max(width, usage(row).size());
    std::string text;
    for (const AppWord& row : appWords) {
        std::string line = "    znbrowsermanager app " + usage(row);
        line.resize(width + 28, ' ');
        text += (text.empty() ? "" : "\n") + line + row.help;
    }
    return call.Answer(text);
}

// ---- Finding the row ----

/// How many words of the call the row takes: 1 or 2; 0 when it is not the row of these words.
int WordsTaken(const AppWord& row, const std::string& first, const std::string& second) {
    if (first == row.words) return 1;
    return !second.empty() && first + ' ' + second == row.words ? 2 : 0;
}

/// The words as "a, b or c".
std::string AsChoice(const std::vector<std::string>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text += (i == 0 ? "" : i + 1 == words.size() ? " or " : ", ") + words[i];
    }
    return text;
}

int FailUnknown(const AppCall& call) {
    const std::string first = call.Text(0);
    const std::string second = call.Text(1);
    const std::vector<std::string> seconds = NextAppWords({first});
    if (call.Count() == 0 || seconds.empty()) {
        const std::string what =
            call.Count() == 0 ? "missing app word" : "unknown app word \"" + first + "\"";
        return call.Fail(what + ": must be " + AsChoice(NextAppWords({})), "WORD", first);
    }
    const std::string what = call.Count() == 1
                                 ? "missing word after \"app " + first + "\""
                                 : "unknown word \"" + second + "\" after \"app " + first + "\"";
    return call.Fail(what + ": must be " + AsChoice(seconds), "WORD", second);
}

} // namespace

std::vector<std::string> NextAppWords(const std::vector<std::string>& words) {
    std::vector<std::string> next;
    if (words.size() > 1) return next;
    for (const AppWord& row : appWords) {
        const std::string all = row.words;
        const std::size_t blank = all.find(' ');
        const bool hasSecond = blank != std::string::npos;
        const std::string first = all.substr(0, blank);
        if (!words.empty() && (!hasSecond || first != words.front())) continue;
        const std::string word = words.empty() ? first : all.substr(blank + 1);
        if (!Contains(next, word)) next.push_back(word);
    }
    return next;
}

std::vector<const AppWord*> AppWordsBelow(const std::vector<std::string>& words) {
    std::string beginning;
    for (const std::string& word : words) beginning += word + ' ';
    std::vector<const AppWord*> below;
    for (const AppWord& row : appWords) {
        if ((std::string(row.words) + ' ').compare(0, beginning.size(), beginning) == 0)
            below.push_back(&row);
    }
    return below;
}

int Application::EvalAppCommand(int objc, Tcl_Obj* const objv[]) {
    // C++ clients may pass null words: the command ends before the first.
    objc = static_cast<int>(std::find(objv, objv + objc, nullptr) - objv);
    const AppCall whole(*this, objc, objv);
    const std::string first = whole.Text(0);
    const std::string second = whole.Text(1);
    const AppWord* chosen = nullptr;
    int taken = 0;
    for (const AppWord& row : appWords) {
        const int words = WordsTaken(row, first, second);
        if (words <= taken) continue;
        chosen = &row;
        taken = words;
    }
    const std::size_t count = chosen ? static_cast<std::size_t>(objc - taken) : 0;
    if (!chosen) return FailUnknown(whole);
    if (taken == 1 && count > chosen->most && !NextAppWords({first}).empty()) return FailUnknown(whole);
    AppCall call(*this, objc - taken, objv + taken);
    if (count >= chosen->fewest && count <= chosen->most) return chosen->answer(call);
    return whole.Fail(std::string("wrong # args: should be \"znbrowsermanager app ") + chosen->words +
                          (*chosen->arguments ? " " : "") + chosen->arguments + "\"",
                      "ARGUMENTS");
}

} // namespace znhost

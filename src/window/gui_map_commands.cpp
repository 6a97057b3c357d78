// znbrowsermanager window map ...
#include "frame/data_types.h"
#include "window/window_levels.h"

#include <cstring>
#include <limits>

const char* const znBrowserTclMessages::WINDOW_MAP =
    "    znbrowsermanager window map [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <map_name>              Creates a new window map and makes it the current one.\n"
    "    \tcurrent [map_name]             Gets/sets the current window map.\n"
    "    \tdelete                         Deletes the current window map.\n"
    "    \tnames                          Shows the existing window map name list.\n"
    "    \trecord                         Records of the current window map...\n"
    "    \ttype [key_type shown_type]     Gets/sets the type of the current window map. Key types: integer,\n"
    "    \t                               double, unsigned, bool, string. Shown types: icon, string, rgb "
    "and,\n"
    "    \t                               for the key type string, button.\n\n";

const char* const znBrowserTclMessages::WINDOW_MAP_RECORD =
    "    znbrowsermanager window map record [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <key> <value>            Adds a record to the current window map.\n"
    "    \tcreate disabled <key> <value>   Adds a record that shows the disabled form of a PNG file.\n"
    "    \tdelete <key>                    Removes a record from the current window map.\n"
    "    \tnames                           Shows the keys and values of the current window map.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

constexpr char emptyName[] = "Name of '' not allowed for gui map.  Gui map not created.";
constexpr char noMap[] = "No current window map available";

void RecordUsage(Call& call) { call.Answer(znBrowserTclMessages::WINDOW_MAP_RECORD); }

void Create(Call& call) {
    if (!*call.Text(4)) return call.Answer(emptyName);
    if (!call.manager.CreateGuiMap(call.Text(4))) return call.AnswerError();
    // Nothing is said when the host makes no map: the one that was current still is.
    if (!std::strcmp(call.manager.GetCurrentGuiMapName(), call.Text(4))) call.Answer(call.Text(4));
}

void Current(Call& call) {
    if (call.Has(4) && !call.manager.UpdateCurrentGuiMap(call.Text(4))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentGuiMapName());
}

void Delete(Call& call) {
    if (!call.manager.GetCurrentGuiMapPtr()) return call.Answer(noMap);
    call.AnswerOutcome(call.manager.DeleteGuiMap(call.manager.GetCurrentGuiMapName()));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetGuiMapNames); }

void Type(Call& call) {
    if (call.Has(4) && !call.Has(5)) return call.Answer(znBrowserTclMessages::WINDOW_MAP);
    if (call.Has(4) && !call.manager.CreateGuiMappingTypetoType(call.Text(4), call.Text(5)))
        return call.AnswerError();
    call.Answer(GuiMapTypeName(call.manager.GetCurrentGuiMapType()));
}

/// An unsigned number, as Tcl reads numbers.
bool Unsigned(const Call& call, int position, unsigned int& value) {
    long number = 0;
    if (!call.Long(position, number) || number < 0) return false;
    value = static_cast<unsigned int>(number);
    return static_cast<unsigned long>(number) <= std::numeric_limits<unsigned int>::max();
}

/// Reads a key as the type of the current map has it, and answers the outcome of `use(key)`. A map without a
/// type takes texts.
template <class Use>
void UseKey(Call& call, int position, Use use) {
    const ZNBROWSER_GUIMAP_TYPE type = call.manager.GetCurrentGuiMapType();
    int integer = 0;
    double number = 0;
    unsigned int count = 0;
    bool flag = false;
    if (type < ZNBROWSER_GUIMAP_INT_TO_ICON || type >= ZNBROWSER_GUIMAP_STRING_TO_ICON)
        return call.AnswerOutcome(use(call.Text(position)));
    if (type <= ZNBROWSER_GUIMAP_INT_TO_RGB)
        return call.Integer(position, integer) ? call.AnswerOutcome(use(integer)) : RecordUsage(call);
    if (type <= ZNBROWSER_GUIMAP_DOUBLE_TO_RGB)
        return call.Double(position, number) ? call.AnswerOutcome(use(number)) : RecordUsage(call);
    if (type <= ZNBROWSER_GUIMAP_UINT_TO_RGB)
        return Unsigned(call, position, count) ? call.AnswerOutcome(use(count)) : RecordUsage(call);
    return call.Boolean(position, flag) ? call.AnswerOutcome(use(flag)) : RecordUsage(call);
}

void RecordCreateDisabled(Call& call) {
    UseKey(call, 6, [&call](auto key) { return call.manager.CreateGuiMapDisabledRecord(key, call.Text(7)); });
}

constexpr CommandRow recordCreateRows[] = {
    {Keyword::Disabled, "VALUE TEXT", "Adds a record that shows the disabled form of a PNG file.",
     RecordCreateDisabled},
};
constexpr CommandLevel recordCreateLevel(recordCreateRows, znBrowserTclMessages::WINDOW_MAP_RECORD);

/// "disabled" is an option only before a key and a value: it may be a key itself. Its short form "dis" reads
/// as "display", which means nothing else here.
void RecordCreate(Call& call) {
    const bool disabled = call.Is(5, Keyword::Disabled) || call.Is(5, Keyword::Display);
    if (disabled && call.Count() > 7) return RunWord(call, recordCreateLevel, 5, Keyword::Disabled);
    UseKey(call, 5, [&call](auto key) { return call.manager.CreateGuiMapRecord(key, call.Text(6)); });
}

void RecordDelete(Call& call) {
    UseKey(call, 5, [&call](auto key) { return call.manager.DeleteGuiMapRecord(key); });
}

void RecordNames(Call& call) { call.AnswerValue(&Manager::GetGuiMapRecordNames); }

constexpr CommandRow recordRows[] = {
    {Keyword::Create, "VALUE TEXT", "Adds a record: a key, and what is shown for it.", RecordCreate,
     &recordCreateLevel},
    {Keyword::Delete, "VALUE", "Removes the record of a key.", RecordDelete},
    {Keyword::Names, "-> TEXT ...", "Lists the keys and what is shown for them.", RecordNames},
};
constexpr CommandLevel recordLevel(recordRows, znBrowserTclMessages::WINDOW_MAP_RECORD);

constexpr CommandRow rows[] = {
    {Keyword::Create, "NAME -> NAME", "Makes a map and makes it current.", Create},
    {Keyword::Current, "?MAP? -> MAP", "Makes a map current, or tells which is.", Current},
    {Keyword::Delete, "", "Deletes the current map.", Delete},
    {Keyword::Names, "-> MAP ...", "Lists the maps.", Names},
    {Keyword::Record, "What the current map shows for its keys.", &recordLevel},
    {Keyword::Type, "?integer|double|unsigned|bool|string? ?icon|string|rgb|button? -> TEXT",
     "Sets or reads of what type the keys are, and what is shown for them.", Type},
};

} // namespace

constexpr CommandLevel windowMapLevel(rows, znBrowserTclMessages::WINDOW_MAP);

} // namespace znlayer

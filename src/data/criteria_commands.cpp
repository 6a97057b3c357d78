// datasource simple criteria ...: what narrows a custom data source.
#include "data/data_messages.h"
#include "data/data_source_commands.h"
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "frame/data_types.h"

// The type names that the text lists are not the words that "type" takes.
// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::DATASOURCE_SIMPLE_CRITERIA =
    "    znbrowsermanager datasource simple criteria [action] \n\n"
    "    \tcode <code>                  Sets the code of the current criteria.\n"
    "    \tcreate <criteria_name>       Creates a criteria for the current scripted(custom)\n"
    "    \t                             datasource and makes it current.\n"
    "    \tcurrent [criteria_name]      Gets/sets the current criteria.\n"
    "    \tdata [<type> <value> ...]    Gets/sets the values of the current criteria, for\n"
    "    \t                             example: 'double 10.0 integer 2 string 'some'\n"
    "    \tdelete                       Deletes the current criteria.\n"
    "    \tnames                        Returns the names of all of the criteria for the\n"
    "    \t                             current simple datasource.\n"
    "    \ttype [data_type]             Gets/sets the data type of the current criteria.\n"
    "    \t                             Valid types: ZNBROWSER_DATA_BOOL, ZNBROWSER_DATA_BOOL_ARRAY,\n"
    "    \t                             ZNBROWSER_DATA_INT, ZNBROWSER_DATA_INT_ARRAY,\n"
    "    \t                             ZNBROWSER_DATA_UNSIGNED, ZNBROWSER_DATA_UNSIGNED_ARRAY,\n"
    "    \t                             ZNBROWSER_DATA_DOUBLE, ZNBROWSER_DATA_DOUBLE_ARRAY,\n"
    "    \t                             ZNBROWSER_DATA_STRING, ZNBROWSER_DATA_STRING_ARRAY.\n\n";
// clang-format on

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// The values of one "data" command, by type, each list in the order of the words.
struct Values {
    std::vector<bool> bools;
    std::vector<unsigned int> unsigneds;
    std::vector<int> ints;
    std::vector<double> doubles;
    znStlVector<znString> strings;
};

/// Appends the word at `position`, read by one of the call's readers. @return false when it cannot be read
template <class Read, class List>
bool Append(const Call& call, int position, bool (Call::*reader)(int, Read&) const, List& list) {
    Read value{};
    if (!(call.*reader)(position, value)) return false;
    list.push_back(static_cast<typename List::value_type>(value));
    return true;
}

/// Reads the type word at `position` and the value after it. @return false when either is no good
bool ReadPair(const Call& call, int position, Values& values) {
    const int next = position + 1;
    if (!call.Has(position) || !call.Has(next)) return false;
    switch (DataTypeFromWord(call.Text(position))) {
    case ZNBROWSER_DATA_BOOL: return Append(call, next, &Call::Boolean, values.bools);
    case ZNBROWSER_DATA_UNSIGNED: return Append(call, next, &Call::Long, values.unsigneds);
    case ZNBROWSER_DATA_INT: return Append(call, next, &Call::Integer, values.ints);
    case ZNBROWSER_DATA_DOUBLE: return Append(call, next, &Call::Double, values.doubles);
    case ZNBROWSER_DATA_STRING: values.strings.emplace_back(call.Text(next)); return true;
    default: return false;
    }
}

void Code(Call& call) {
    RunWithName(call, 5, &Manager::SetCriteriaCode, Messages::DATASOURCE_SIMPLE_CRITERIA);
}

void Create(Call& call) {
    CreateWithName(call, 5, &Manager::CreateDataCriteria, Messages::DATASOURCE_SIMPLE_CRITERIA);
}

void Current(Call& call) {
    call.SetThenAnswer(5, &Manager::SetCurrentCriteria, &Manager::GetCurrentCriteria);
}

void Data(Call& call) {
    if (call.Count() == 5) return call.AnswerValue(&Manager::GetCriteriaDataParameters);
    if (!call.manager.GetCurrentCriteriaPtr()) return call.Answer(data_messages::noCriteria);
    Values values;
    for (int position = 5; position < call.Count(); position += 2) {
        if (!ReadPair(call, position, values)) return call.Answer(Messages::DATASOURCE_SIMPLE_CRITERIA);
    }
    call.manager.UpdateCriteriaData(values.bools, values.unsigneds, values.ints, values.doubles,
                                    values.strings);
}

void Delete(Call& call) { call.AnswerOutcome(call.manager.DeleteDataCriteria()); }
void Names(Call& call) { call.AnswerValue(&Manager::GetDataSourceSimpleCriteriaNames); }

void Type(Call& call) { call.SetThenAnswer(5, &Manager::SetCriteriaDataType, &Manager::GetCriteriaDataType); }

constexpr CommandRow criteriaRows[] = {
    {Keyword::Code, "TEXT", "Sets the code of the criteria.", Code},
    {Keyword::Create, "NAME -> NAME", "Makes criteria, or finds those of that name, and makes them current.",
     Create},
    {Keyword::Current, "?CRITERIA? -> CRITERIA",
     "Makes criteria of the data source current, or tells which are.", Current},
    // Without criteria there is nothing to have values, whatever the words.
    {Keyword::Data,
     {"?TYPE? ?VALUE|TYPE? ... -> TEXT ...", Arguments::Check::ByHandler},
     "Sets the values of the criteria, each behind its type, or reads them.",
     Data},
    {Keyword::Delete, "", "Deletes the current criteria.", Delete},
    {Keyword::Names, "-> CRITERIA ...", "Lists the criteria of the current simple data source.", Names},
    {Keyword::Type, "?TYPE? -> TYPE", "Sets or reads the data type of the criteria.", Type},
};

} // namespace

constexpr CommandLevel criteriaLevel(criteriaRows, Messages::DATASOURCE_SIMPLE_CRITERIA);

} // namespace znlayer

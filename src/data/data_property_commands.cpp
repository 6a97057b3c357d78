// datasource simple property ...: the values that a data source has for each of its items.
#include "data/data_source_commands.h"
#include "frame/ascii.h"
#include "frame/command_table.h"
#include "host/znIBrowserDataSourceSimple.h"

// The type words "bool" and "int" of the text are none of those that "create" takes.
// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::DATASOURCE_SIMPLE_PROPERTY =
    "    znbrowsermanager datasource simple property [action] \n\n"
    "    \tcreate <ds_prop_name> 0 <ds_prop_script>      Creates a scripted data property\n"
    "    \t                                              for the current simple datasource.\n"
    "    \tcreate <ds_prop_name> 1 <data_type> <att_id>  Creates an attribute data property\n"
    "    \t                                              for the current datasource.  Valid\n"
    "    \t                                              datatype values: bool, double, int, string.\n"
    "    \tdelete                                        Deletes the scripted data property from\n"
    "    \t                                              the current datasource.\n"
    "    \tnames                                         Returns all of the properties for the\n"
    "    \t                                              current simple datasource.\n\n";
// clang-format on

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

struct TypeWord {
    Keyword keyword;
    ZNBROWSER_DATA_TYPE type;
};

constexpr TypeWord attributeTypes[] = {
    {Keyword::Boolean, ZNBROWSER_DATA_BOOL},
    {Keyword::Integer, ZNBROWSER_DATA_INT},
    {Keyword::Double, ZNBROWSER_DATA_DOUBLE},
    {Keyword::String, ZNBROWSER_DATA_STRING},
};

/// "str" is a type here, although as a keyword it stands for another word.
ZNBROWSER_DATA_TYPE AttributeType(const Call& call, int position) {
    const Keyword keyword = call.Word(position);
    if (keyword == Keyword::Stripe && EqualsIgnoringCase(call.Text(position), "str"))
        return ZNBROWSER_DATA_STRING;
    for (const TypeWord& word : attributeTypes)
        if (word.keyword == keyword) return word.type;
    return ZNBROWSER_DATA_UNDEFINED;
}

void CreateScripted(Call& call) {
    if (!call.Has(7)) return call.Answer(Messages::DATASOURCE_SIMPLE_PROPERTY);
    call.AnswerOutcome(call.manager.CreateDataPropertyScripted(call.Text(5), call.Text(7)), call.Text(5));
}

// The extra number counts only as the very last word.
void CreateAttribute(Call& call) {
    const ZNBROWSER_DATA_TYPE type = AttributeType(call, 7);
    int attribute = 0;
    int extra = 0;
    if (type == ZNBROWSER_DATA_UNDEFINED || !call.Integer(8, attribute) ||
        (call.Count() == 10 && !call.Integer(9, extra)))
        return call.Answer(Messages::DATASOURCE_SIMPLE_PROPERTY);
    const bool created = call.manager.CreateDataPropertyScripted(call.Text(5), type,
                                                                 static_cast<unsigned int>(attribute), extra);
    call.AnswerOutcome(created, call.Text(5));
}

void Create(Call& call) {
    int kind = 0;
    if (!call.Has(5) || !call.Integer(6, kind)) return call.Answer(Messages::DATASOURCE_SIMPLE_PROPERTY);
    if (kind == 0) return CreateScripted(call);
    if (kind == 1) return CreateAttribute(call);
}

void Delete(Call& call) {
    znIBrowserDataSourceSimple* const source = call.manager.GetCurrentDataSourceSimplePtr();
    call.AnswerOutcome(source->DeleteDataProperty(call.Text(5)), call.Text(5));
}

void Names(Call& call) {
    znString names;
    const bool listed =
        call.manager.DataSourceSimplePropertyNames(call.manager.GetCurrentDataSourceSimple(), names);
    call.AnswerOutcome(listed, names.c_str());
}

constexpr CommandRow propertyRows[] = {
    // How many words are read, the kind and their number tell.
    {Keyword::Create,
     {"NAME 0|1 ?SCRIPT|boolean|integer|double|string? ?INT? ?INT? -> NAME", Arguments::Check::ByHandler},
     "Makes a property: 0 and a script, or 1, a type, an attribute and a number.",
     Create},
    {Keyword::Delete, "DATAPROPERTY -> DATAPROPERTY", "Deletes a property of the data source.", Delete},
    {Keyword::Names, "-> DATAPROPERTY ...", "Lists the properties of the data source.", Names},
};

} // namespace

constexpr CommandLevel dataPropertyLevel(propertyRows, Messages::DATASOURCE_SIMPLE_PROPERTY);

} // namespace znlayer

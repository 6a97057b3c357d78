#include "frame/name_list.h"

#include "tests/frame/fake_application.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace znlayer;

namespace {

struct Named {
    const char* name;
    const char* GetName() const { return name; }
};

struct Case {
    EntryForm form;
    ExtraBlanks blanks;
    NullName rule;
    std::vector<Named> names;
    std::string text;
};

constexpr EntryForm plain = EntryForm::Plain;
constexpr ExtraBlanks none = ExtraBlanks::None;
constexpr NullName drops = NullName::DropsList;

const Case cases[] = {
    {plain, none, drops, {}, ""},
    {plain, none, drops, {{"a b"}, {"c"}}, "a b c"},
    {plain, ExtraBlanks::Between, drops, {{"a"}, {"b"}, {"c"}}, "a   b   c"},
    {plain, ExtraBlanks::Between, drops, {{""}, {"b"}}, "  b"},
    {plain, ExtraBlanks::After, drops, {{"a"}, {"b"}}, "a   b  "},
    {EntryForm::Braced, none, drops, {{"a b"}, {"c"}, {"d\te"}, {""}}, "{a b} c d\te "},
    {EntryForm::Element,
     none,
     drops,
     {{"#a"}, {"#a"}, {"a b"}, {"{"}, {""}, {"$x"}},
     "{#a} #a {a b} \\{ {} {$x}"},
    {EntryForm::Quoted, none, drops, {{"a b"}, {"\""}, {""}}, "\"a b\" \"\"\" \"\""},
    {plain, none, drops, {{"a"}, {nullptr}, {"b"}}, ""},
    {plain, ExtraBlanks::After, NullName::EndsList, {{"a"}, {nullptr}, {"b"}}, "a  "},
    {plain, ExtraBlanks::Between, NullName::IsLeftOut, {{nullptr}, {"a"}, {nullptr}, {"b"}}, "a   b"},
};

TEST(NameList, JoinsNamesAsTheirCommandPrintsThem) {
    FakeApplication application;
    znBrowserManagerTcl manager(&application);
    for (const Case& c : cases) {
        std::vector<const Named*> pointers;
        for (const Named& object : c.names) pointers.push_back(&object);
        manager.AppendToBuff("left over", false, false);
        znString out("left over");
        EXPECT_TRUE(NameList(c.form, c.blanks).AddNames(pointers, c.rule).Give(manager, out));
        EXPECT_EQ(out.Str(), c.text);
        EXPECT_EQ(manager.GetBuff(), c.text);
    }
    manager.DeleteBrowserManagerCollectorTcl();
}

} // namespace

#include "frame/name_list.h"

#include "tests/frame/fake_application.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct Named {
    const char* name;
    const char* GetName() const { return name; }
};

struct Case {
    EntryForm form;
    ExtraBlanks blanks;
    NullName rule;
    std::vector<const char*> names;
    std::string text;
};

class NameLists : public testing::TestWithParam<Case> {};

TEST_P(NameLists, JoinNamesAsTheirCommandPrintsThem) {
    FakeApplication application;
    znBrowserManagerTcl manager(&application);
    std::vector<Named> objects;
    for (const char* const name : GetParam().names) objects.push_back({name});
    std::vector<const Named*> pointers;
    for (const Named& object : objects) pointers.push_back(&object);

    manager.AppendToBuff("left over", false, false);
    znString out("left over");
    EXPECT_TRUE(
        NameList(GetParam().form, GetParam().blanks).AddNames(pointers, GetParam().rule).Give(manager, out));
    EXPECT_EQ(out.Str(), GetParam().text);
    EXPECT_FALSE(out.IsNull());
    EXPECT_EQ(manager.GetBuff(), GetParam().text);
    manager.DeleteBrowserManagerCollectorTcl();
}

constexpr EntryForm plain = EntryForm::Plain;
constexpr ExtraBlanks none = ExtraBlanks::None;
constexpr NullName drops = NullName::DropsList;

INSTANTIATE_TEST_SUITE_P(
    All, NameLists,
    testing::Values(
        Case{plain, none, drops, {}, ""}, Case{plain, none, drops, {"a b", "c"}, "a b c"},
        Case{plain, ExtraBlanks::Between, drops, {"a", "b", "c"}, "a   b   c"},
        Case{plain, ExtraBlanks::Between, drops, {"", "b"}, "  b"},
        Case{plain, ExtraBlanks::After, drops, {"a", "b"}, "a   b  "},
        Case{EntryForm::Braced, none, drops, {"a b", "c", "d\te", ""}, "{a b} c d\te "},
        Case{EntryForm::Quoted, none, drops, {"a b", "\"", ""}, "\"a b\" \"\"\" \"\""},
        Case{plain, none, drops, {"a", nullptr, "b"}, ""},
        Case{plain, ExtraBlanks::After, NullName::EndsList, {"a", nullptr, "b"}, "a  "},
        Case{plain, ExtraBlanks::Between, NullName::IsLeftOut, {nullptr, "a", nullptr, "b"}, "a   b"}));

} // namespace

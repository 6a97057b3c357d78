// Each operation of the host is called and refused by its name, and the refusal changes what follows.
#include "tests/faults/sweep.h"
#include "znBrowserTclCommandTree.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

namespace {

using Names = std::set<std::string_view>;

/// What a section leads to: what its commands answer, and which operations they call.
struct Course {
    std::string answers;
    std::vector<std::string_view> calls;

    bool operator==(const Course& other) const { return answers == other.answers && calls == other.calls; }
    std::size_t Count(std::string_view name) const {
        return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), name));
    }
};

std::string Lines(const Names& names) {
    std::string lines;
    for (const std::string_view name : names) lines.append(name).append("\n");
    return lines;
}

/// What no command asks for, but C++ clients of the manager do.
std::string AskAsClient(znBrowserManagerTcl& manager) {
    std::string answers;
    znString text;
    const auto note = [&](bool succeeded) {
        answers += (succeeded ? text.Str() : manager.GetError()) + "\n";
        text.clear();
    };
    note(manager.GetDataSourcesNames(text));
    note(manager.CreateDataSourceHierarchicalShare("h", "w"));
    note(manager.GetDataSourceHierarchicalSharedNames(text));
    note(manager.SetFreeFolderSortingException("unit", 1));
    note(manager.SetStyleElementMapName("g"));
    note(manager.GetStyleElementMapName(text));
    note(manager.DeleteDataOperation());
    std::vector<std::string> fields;
    znBrowserTclCommandTree::GetNames(manager, "FIELD", fields);
    answers += testing::PrintToString(fields);
    return answers;
}

class Refusals : public testing::Test {
protected:
    /// Runs a section, or the opening when `section` is empty, or the client's part, with the first calls of
    /// the operation refused.
    Course RunSection(const std::string& section, std::string_view name = {}, std::size_t times = 0) {
        SweepRun run(script_);
        if (!section.empty()) run.Open();
        if (section == "client") {
            script_.Eval("run {{app inputfield create m f integer} {window create win} {window map create g} "
                         "{view create w} {view datactrl connect} {view current v} {view folder current v} "
                         "{view column current c2} {view style current s} {view element current e}}");
        }
        run.Log().SetJournal(true);
        for (std::size_t i = 0; i < times; ++i) run.Log().Refuse(std::string(name), "not now");
        Course course;
        course.answers = section.empty()       ? run.Open()
                         : section == "client" ? AskAsClient(run.Manager())
                                               : run.Run(section);
        for (const znhost::HostCall& call : run.Log().Journal()) course.calls.emplace_back(call.operation);
        if (times == 1) {
            EXPECT_TRUE(run.Log().Refusals().empty()) << name << " was not refused in " << section;
        }
        return course;
    }
    /// Refuses each operation that the section calls, once and always.
    void RefuseAllOf(const std::string& section) {
        const Course undisturbed = RunSection(section);
        for (const std::string_view name : Names(undisturbed.calls.begin(), undisturbed.calls.end())) {
            called_.insert(name);
            if (noticed_.count(name)) continue;
            if (!(RunSection(section, name, 1) == undisturbed) ||
                !(RunSection(section, name, undisturbed.Count(name)) == undisturbed))
                noticed_.insert(name);
        }
    }

    SweepScript script_;
    Names called_, noticed_;
};

TEST_F(Refusals, EachOperationIsRefusedByItsNameAndThatIsNoticed) {
    const Names uncalled = {
        "znIBrowserDataCtrl::CreateInputField", // the manager's own operations fail before they ask
        "znIBrowserDataCtrl::DeleteInputField",
        "znIBrowserDataSource::GetHierarchical", // for hosts; the manager keeps the two kinds apart by itself
        "znIBrowserStyleElement::GetPropertyName",
        "znIBrowserView::GetViewOperations", // only completion at the prompt lists them
    };
    const Names unnoticed = {
        // What they change shows nowhere in an answer.
        "znIBrowser::ApplyPendingChanges", "znIBrowser::RedrawViews", "znIBrowser::SetCurrentWindowAccess",
        "znIBrowser::SetFlushFlag", "znIBrowserApplication::GetWindowReselectedSignal",
        "znIBrowserDataCtrl::SetCurrentView", "znIBrowserDataSourceSimple::Update",
        "znIBrowserViewColumn::SetCurrentStyle", "znIBrowserViewItemFreeFolder::SetDropItem",
        // Nothing, zero and an unknown number are what the host gives anyway.
        "znIBrowserApplication::GetTclNameSpace", "znIBrowserInputField::SetUnsignedValue",
        "znIBrowserWindowPart::GetPosition",
        // Whose owner the host does not tell is taken to die with it, as here it does.
        "znIBrowserCriteria::GetDataSource", "znIBrowserDataSourceSimple::GetDataCtrl",
        "znIBrowserEvent::GetWindowPart", "znIBrowserStyleElement::GetStyle",
        "znIBrowserViewItemFreeFolder::GetView", "znIBrowserViewOperation::GetView"};

    RefuseAllOf("");
    RefuseAllOf("client");
    for (const std::string& section : script_.Sections()) RefuseAllOf(section);

    Names left, silent;
    for (const std::string_view name : znhost::operationNames) {
        if (!called_.count(name))
            left.insert(name);
        else if (!noticed_.count(name))
            silent.insert(name);
    }
    EXPECT_EQ(Lines(left), Lines(uncalled));
    EXPECT_EQ(Lines(silent), Lines(unnoticed));
}

} // namespace

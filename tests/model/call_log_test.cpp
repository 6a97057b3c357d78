// What scripts cannot reach of the record of host calls: faults from C++, calls the host makes unseen.
#include "host/base/host_call.h"
#include "host/model/gui_map.h"
#include "host/znBrowserDataItems.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace znhost {
namespace {

class Probe final : public HostObject {
public:
    explicit Probe(CallLog& log) : HostObject(log) {}

    template <class... Arguments>
    bool CreateView(const Arguments&... arguments) const {
        return !Refused({"znIBrowser::CreateView", "CreateView"}, arguments...);
    }
    mutable std::string refusedBecause;

private:
    void OnRefused(const std::string& text) const override { refusedBecause = text; }
};

TEST(CallLog, ArgumentsReadAsScriptsWriteThem) {
    CallLog log;
    Probe probe(log);
    GuiMap map(log, "my map");
    const znIBrowserGuiMap* const none = nullptr;
    const char* const noText = nullptr;
    log.SetJournal(true);
    probe.CreateView("a b", noText, znString("text"), true, -3, 7U, 0.1, static_cast<znIBrowserGuiMap*>(&map),
                     none, std::vector<znString>{"x", "y z"}, std::vector<bool>{true, false},
                     znBrowserDataItem{nullptr, 5});
    ASSERT_EQ(log.Journal().size(), 1U); // asking the map for its name is not recorded
    const std::vector<std::string> words{"a b", "", "text", "1", "-3", "7", "0.1", "my map", ""};
    const std::vector<CallArgument>& arguments = log.Journal()[0].arguments;
    ASSERT_EQ(arguments.size(), words.size() + 3);
    for (std::size_t i = 0; i < words.size(); ++i) EXPECT_EQ(arguments[i].words, std::vector{words[i]});
    EXPECT_EQ(arguments[9].words, (std::vector<std::string>{"x", "y z"}));
    EXPECT_EQ(arguments[10].words, (std::vector<std::string>{"1", "0"}));
    EXPECT_EQ(arguments[11].words, (std::vector<std::string>{"", "5"}));
}

TEST(CallLog, ARefusalIsUsedUpByOneCallOfItsOperation) {
    CallLog log;
    Probe probe(log);
    GuiMap map(log, "map");
    EXPECT_FALSE(log.Refuse("znIBrowser::NoSuchOperation", "text"));
    ASSERT_TRUE(log.Refuse("znIBrowser::CreateView", "first"));
    ASSERT_TRUE(log.Refuse("znIBrowser::CreateView", "second"));
    EXPECT_STREQ(map.GetName(), "map");
    {
        const CallLog::Quiet quiet(log);
        EXPECT_TRUE(probe.CreateView());
    }
    for (const char* const text : {"first", "second"}) {
        EXPECT_FALSE(probe.CreateView());
        EXPECT_EQ(log.Error(), text);
        EXPECT_EQ(probe.refusedBecause, text);
    }
    EXPECT_TRUE(probe.CreateView());
    EXPECT_FALSE(log.IsArmed());
}

TEST(CallLog, ASweepFailsTheChosenCallOrAllFromThereOn) {
    for (const bool andFollowing : {false, true}) {
        CallLog log;
        Probe probe(log);
        log.FailCall(2, CallLog::Fault::Refuse, andFollowing);
        EXPECT_TRUE(probe.CreateView());
        EXPECT_FALSE(log.HasFailed());
        EXPECT_FALSE(probe.CreateView());
        EXPECT_TRUE(log.HasFailed());
        EXPECT_EQ(probe.CreateView(), !andFollowing);
        log.FailCall(1, CallLog::Fault::Throw, andFollowing);
        EXPECT_THROW(probe.CreateView(), std::runtime_error);
        log.FailCall(0);
        EXPECT_TRUE(probe.CreateView());
    }
}

} // namespace
} // namespace znhost

#include "znBrowserErrorReporter.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace {

class Reporter : public znBrowserErrorReporter {
public:
    using znBrowserErrorReporter::SetErrCommand;
};

static_assert(std::is_polymorphic_v<znBrowserErrorReporter>);

TEST(ErrorReporter, StartsWithoutErrorAndReportsAnUnknownOne) {
    Reporter reporter;
    EXPECT_TRUE(reporter.GetState());
    EXPECT_TRUE(reporter.GetErrorText().empty());
    EXPECT_STREQ(reporter.GetError(), "[Command] \n\t[Error] Unknown error");
}

TEST(ErrorReporter, BannerHoldsCommandAndMessageAndIsWrappedAgain) {
    Reporter reporter;
    reporter.SetErrCommand("znbrowsermanager view current xyz");
    reporter.SetError("Cannot find view :  xyz");
    EXPECT_FALSE(reporter.GetState());
    EXPECT_EQ(reporter.GetErrorText(), "Cannot find view :  xyz");
    const std::string head = "[Command] znbrowsermanager view current xyz\n\t[Error] ";
    EXPECT_EQ(reporter.GetError(), head + "Cannot find view :  xyz");
    EXPECT_EQ(reporter.GetError(), head + head + "Cannot find view :  xyz");
    EXPECT_FALSE(reporter.GetState());
    reporter.SetOk();
    EXPECT_TRUE(reporter.GetState());
    EXPECT_EQ(reporter.GetError(), head + "Unknown error");
}

TEST(ErrorReporter, ErrorTextMayBeItsOwnMessageAndMessagesMayBeNull) {
    Reporter reporter;
    reporter.SetError("refused");
    reporter.SetError(reporter.GetErrorText());
    EXPECT_EQ(reporter.GetErrorText(), "refused");
    reporter.SetError(reporter.GetErrorText().c_str() + 2);
    EXPECT_EQ(reporter.GetErrorText(), "fused");
    reporter.SetError(static_cast<const char*>(nullptr));
    EXPECT_EQ(reporter.GetErrorText(), "");
    reporter.SetOk();
    reporter.SetError(znString());
    EXPECT_FALSE(reporter.GetState());
}

TEST(ErrorReporter, CommandEndsAtItsFirstNul) {
    Reporter reporter;
    reporter.SetErrCommand(std::string("view\0hidden", 11));
    EXPECT_STREQ(reporter.GetError(), "[Command] view\n\t[Error] Unknown error");
}

TEST(ErrorReporter, CopiesTakeOverStateAndBothTexts) {
    Reporter reporter;
    reporter.SetErrCommand("view");
    reporter.SetError("refused");
    Reporter copy(reporter);
    Reporter assigned;
    assigned = reporter;
    Reporter& self = assigned;
    assigned = self;
    reporter.SetOk();
    for (Reporter* other : {&copy, &assigned}) {
        EXPECT_FALSE(other->GetState());
        EXPECT_STREQ(other->GetError(), "[Command] view\n\t[Error] refused");
    }
}

TEST(ErrorReporter, StorageIsReused) {
    Reporter reporter;
    const znString command(std::string(100, 'c'));
    const znString message(std::string(200, 'm'));
    const auto fail = [&] {
        reporter.SetOk();
        reporter.SetErrCommand(command);
        reporter.SetError(message);
        return reporter.GetError();
    };
    const char* const first = fail();
    fail();
    EXPECT_EQ(fail(), first); // the two buffers take turns
}

} // namespace

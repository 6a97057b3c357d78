// A host can be made of the default answers alone, with its own where it has some.
#include "host/defaults/znBrowserApplicationDefaults.h"
#include "host/defaults/znBrowserCollectorDefaults.h"
#include "host/defaults/znBrowserCriteriaDefaults.h"
#include "host/defaults/znBrowserDataCtrlDefaults.h"
#include "host/defaults/znBrowserDataOperationDefaults.h"
#include "host/defaults/znBrowserDataPropertyDefaults.h"
#include "host/defaults/znBrowserDataReferenceDefaults.h"
#include "host/defaults/znBrowserDataSourceDefaults.h"
#include "host/defaults/znBrowserDataSourceHierarchicalDefaults.h"
#include "host/defaults/znBrowserDataSourceSimpleDefaults.h"
#include "host/defaults/znBrowserDefaults.h"
#include "host/defaults/znBrowserEventDefaults.h"
#include "host/defaults/znBrowserFindRequestDefaults.h"
#include "host/defaults/znBrowserGuiMapDefaults.h"
#include "host/defaults/znBrowserInputFieldDefaults.h"
#include "host/defaults/znBrowserPopupMenuDefaults.h"
#include "host/defaults/znBrowserPopupMenuItemDefaults.h"
#include "host/defaults/znBrowserStateDefaults.h"
#include "host/defaults/znBrowserStyleDefaults.h"
#include "host/defaults/znBrowserStyleElementDefaults.h"
#include "host/defaults/znBrowserViewColumnDefaults.h"
#include "host/defaults/znBrowserViewDefaults.h"
#include "host/defaults/znBrowserViewItemDefaults.h"
#include "host/defaults/znBrowserViewItemFreeFolderDefaults.h"
#include "host/defaults/znBrowserViewOperationDefaults.h"
#include "host/defaults/znBrowserViewPropertyDefaults.h"
#include "host/defaults/znBrowserWindowAccessDefaults.h"
#include "host/defaults/znBrowserWindowCallbackDefaults.h"
#include "host/defaults/znBrowserWindowPartDefaults.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <type_traits>

namespace {

/// Does not compile for a class that leaves an operation to its heirs.
template <class Class>
constexpr bool answersAll = !std::is_abstract_v<Class>;

static_assert(answersAll<znBrowserApplicationDefaults>);
static_assert(answersAll<znBrowserCollectorDefaults>);
static_assert(answersAll<znBrowserCriteriaDefaults>);
static_assert(answersAll<znBrowserCriteriaContainerDefaults>);
static_assert(answersAll<znBrowserDataCtrlDefaults>);
static_assert(answersAll<znBrowserDataOperationDefaults>);
static_assert(answersAll<znBrowserDataPropertyDefaults>);
static_assert(answersAll<znBrowserDataReferenceDefaults>);
static_assert(answersAll<znBrowserDataSourceDefaults>);
static_assert(answersAll<znBrowserDataSourceHierarchicalDefaults>);
static_assert(answersAll<znBrowserDataSourceSimpleDefaults>);
static_assert(answersAll<znBrowserDefaults>);
static_assert(answersAll<znBrowserEventDefaults>);
static_assert(answersAll<znBrowserFindRequestDefaults>);
static_assert(answersAll<znBrowserGuiMapDefaults>);
static_assert(answersAll<znBrowserGuiMapListDefaults>);
static_assert(answersAll<znBrowserInputFieldDefaults>);
static_assert(answersAll<znBrowserPopupMenuDefaults>);
static_assert(answersAll<znBrowserPopupMenuListDefaults>);
static_assert(answersAll<znBrowserPopupMenuItemDefaults>);
static_assert(answersAll<znBrowserStateDefaults>);
static_assert(answersAll<znBrowserStateContainerDefaults>);
static_assert(answersAll<znBrowserStyleDefaults>);
static_assert(answersAll<znBrowserStyleElementDefaults>);
static_assert(answersAll<znBrowserViewColumnDefaults>);
static_assert(answersAll<znBrowserViewDefaults>);
static_assert(answersAll<znBrowserViewListDefaults>);
static_assert(answersAll<znBrowserViewItemDefaults>);
static_assert(answersAll<znBrowserViewItemFreeFolderDefaults>);
static_assert(answersAll<znBrowserViewOperationDefaults>);
static_assert(answersAll<znBrowserViewPropertyDefaults>);
static_assert(answersAll<znBrowserWindowAccessDefaults>);
static_assert(answersAll<znBrowserWindowAccessListDefaults>);
static_assert(answersAll<znBrowserWindowCallbackDefaults>);
static_assert(answersAll<znBrowserWindowPartDefaults>);

std::string Read(const std::filesystem::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
}

/// The names in the headers of a folder that the first group of the pattern finds.
std::set<std::string> NamesIn(const char* folder, const char* pattern) {
    std::set<std::string> names;
    const std::regex regex(pattern);
    for (const auto& entry : std::filesystem::directory_iterator(std::string(ZN_SOURCE_DIR) + folder)) {
        if (!entry.is_regular_file()) continue;
        const std::string text = Read(entry.path());
        for (std::sregex_iterator found(text.begin(), text.end(), regex), end; found != end; ++found)
            names.insert((*found)[1]);
    }
    return names;
}

TEST(Defaults, ThereAreSomeForEachInterfaceAndAllAreCheckedAbove) {
    std::set<std::string> interfaces = NamesIn("/include/host", R"(\bclass znI(Browser\w*) [:{])");
    ASSERT_GT(interfaces.erase("BrowserInfo"), 0U); // the layer has that one
    EXPECT_EQ(NamesIn("/include/host/defaults", R"(\bclass zn(Browser\w*)Defaults : public znI\1 )"),
              interfaces);
    const std::string self = Read(ZN_SOURCE_DIR "/tests/frame/defaults_test.cpp");
    for (const std::string& name : interfaces)
        EXPECT_NE(self.find("answersAll<zn" + name + "Defaults>"), self.npos) << name << " is not checked";
}

} // namespace

// znbrowser::hostcheck finds out each promise that a host breaks: a small host of views and folders that can
// lie.
#include "host/defaults/znBrowserApplicationDefaults.h"
#include "host/defaults/znBrowserDefaults.h"
#include "host/defaults/znBrowserGuiMapDefaults.h"
#include "host/defaults/znBrowserViewDefaults.h"
#include "host/defaults/znBrowserViewItemFreeFolderDefaults.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>
#include <strings.h>
#include <tcl.h>

#include <algorithm>
#include <list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

enum class Lie {
    None,
    NothingMade,
    SecondMade,
    NullInList,
    NotListed,
    NotFound,
    FoundInAnyCase,
    FoundThoughUnknown,
    ListTurns,
    SortedByName,
    CreationReorders,
    CreationTakesAnother,
    DeletionDoesNothing,
    GoneButFound,
    DeletionTakesAnother,
    NoReason,
    RefusedButDone,
    SettingForgotten,
    SettingRefusedButDone,
    AnswerTurns,
};
Lie lie = Lie::None;

class Folder final : public znBrowserViewItemFreeFolderDefaults {
public:
    Folder(const char* name, znIBrowserView& view, Folder* parent)
        : name_(name), view_(view), parent_(parent) {}
    const char* GetName() const override { return name_.c_str(); }
    znIBrowserView* GetView() override { return &view_; }
    Folder* GetParent() override { return parent_; }
    Folder* FindChildFolder(const char* name) override {
        if (lie == Lie::FoundThoughUnknown && !children.empty()) return children.front().get();
        const auto bears = [&](const auto& child) {
            return lie == Lie::FoundInAnyCase ? !strcasecmp(child->GetName(), name) : child->name_ == name;
        };
        const auto child = std::find_if(children.begin(), children.end(), bears);
        if (child != children.end()) return lie == Lie::NotFound ? nullptr : child->get();
        const auto ghost = std::find_if(gone.begin(), gone.end(), bears);
        return lie == Lie::GoneButFound && ghost != gone.end() ? ghost->get() : nullptr;
    }
    bool GetChildFolders(std::vector<znIBrowserViewItemFreeFolder*>& folders) override {
        folders.clear();
        for (const auto& child : children) folders.push_back(child.get());
        if (lie == Lie::NotListed && !folders.empty()) folders.pop_back();
        if (lie == Lie::SortedByName)
            std::sort(folders.begin(), folders.end(),
                      [](const auto* a, const auto* b) { return std::string(a->GetName()) < b->GetName(); });
        if (lie == Lie::ListTurns && asked_++ % 2) std::reverse(folders.begin(), folders.end());
        return true;
    }
    void Lose(std::size_t index) {
        if (index >= children.size()) return;
        gone.push_back(std::move(children[index]));
        children.erase(children.begin() + static_cast<std::ptrdiff_t>(index));
    }

    std::vector<std::unique_ptr<Folder>> children;
    std::vector<std::unique_ptr<Folder>> gone;
    bool style = false;
    bool groups = false;

private:
    const std::string name_;
    znIBrowserView& view_;
    Folder* const parent_;
    unsigned int asked_ = 0;
};

class View final : public znBrowserViewDefaults {
public:
    explicit View(const char* name) : name_(name), root_(name, *this, nullptr) {}
    const znString& GetName() const override { return name_; }
    znIBrowserViewItemFreeFolder* GetRootFreeFolder() override { return &root_; }

private:
    const znString name_;
    Folder root_;
};

class Map final : public znBrowserGuiMapDefaults {
public:
    explicit Map(const char* name) : name_(name) {}
    const char* GetName() const override { return name_.c_str(); }

private:
    const std::string name_;
};

class Maps final : public znBrowserGuiMapListDefaults {
public:
    Map* FindGuiMap(const char* name) override {
        for (Map& map : maps)
            if (map.GetName() == std::string(name)) return &map;
        return nullptr;
    }
    void GetGuiMaps(std::vector<znIBrowserGuiMap*>& list) override {
        list.clear();
        for (Map& map : maps) list.push_back(&map);
        if (lie == Lie::NullInList) list.push_back(nullptr);
    }

    std::list<Map> maps;
};

class Browser final : public znBrowserDefaults, public znBrowserViewListDefaults {
public:
    const char* GetError() const override { return lie == Lie::NoReason ? "" : "no"; }
    znIBrowserViewList* GetViewList() override { return this; }
    bool CreateView(const char* name, bool) override {
        if (FindView(name) && lie != Lie::SecondMade) return false;
        views_.push_back(std::make_unique<View>(name));
        return true;
    }
    bool DeleteView(znIBrowserView* view) override {
        const auto isView = [&](const auto& one) { return one.get() == view; };
        views_.erase(std::remove_if(views_.begin(), views_.end(), isView), views_.end());
        return true;
    }
    View* FindView(const char* name) override {
        for (const auto& view : views_)
            if (view->GetName() == name) return view.get();
        return nullptr;
    }
    void GetViews(std::vector<znIBrowserView*>& views, int) override {
        views.clear();
        for (const auto& view : views_) views.push_back(view.get());
    }

    znIBrowserGuiMapList* GetGuiMapList() override { return &maps_; }
    bool CreateGuiMap(const char* name) override {
        maps_.maps.emplace_back(name);
        return true;
    }
    bool DeleteGuiMap(const char* name) override {
        maps_.maps.remove_if([&](const Map& map) { return map.GetName() == std::string(name); });
        return true;
    }

    bool CreateFreeFolder(znIBrowserViewItemFreeFolder* parent, const char* name) override {
        auto& folder = *static_cast<Folder*>(parent);
        if (lie == Lie::NothingMade) return true;
        if (lie == Lie::CreationReorders) std::reverse(folder.children.begin(), folder.children.end());
        if (lie == Lie::CreationTakesAnother) folder.Lose(0);
        folder.children.push_back(std::make_unique<Folder>(name, *parent->GetView(), &folder));
        return true;
    }
    bool DestroyFreeFolder(znIBrowserViewItemFreeFolder* folder, bool) override {
        Folder& parent = *static_cast<Folder*>(folder->GetParent());
        if (lie == Lie::DeletionDoesNothing) return true;
        if (lie == Lie::NoReason) return false;
        for (std::size_t i = 0; i < parent.children.size(); ++i)
            if (parent.children[i].get() == folder) parent.Lose(i);
        if (lie == Lie::DeletionTakesAnother) parent.Lose(0);
        return lie != Lie::RefusedButDone;
    }
    bool GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder) override {
        return static_cast<Folder*>(folder)->groups;
    }
    bool SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder, bool group) override {
        static_cast<Folder*>(folder)->groups = group;
        return true;
    }
    bool GetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder) override {
        return static_cast<Folder*>(folder)->style ^ (lie == Lie::AnswerTurns && asked_++ % 2);
    }
    bool SetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder, bool style) override {
        if (lie == Lie::SettingForgotten) return true;
        bool& set = static_cast<Folder*>(folder)->style;
        return std::exchange(set, style) == style || lie != Lie::SettingRefusedButDone;
    }

private:
    std::vector<std::unique_ptr<View>> views_;
    Maps maps_;
    unsigned int asked_ = 0;
};

class Application final : public znBrowserApplicationDefaults {
public:
    using znBrowserApplicationDefaults::znBrowserApplicationDefaults;
    znIBrowser* GetBrowser() override { return &browser_; }

private:
    Browser browser_;
};

/// The promises that the check takes to be broken by a host of its own, a line each.
std::string BrokenBy(Lie told) {
    lie = told;
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Application application(interp);
    znBrowserManagerTcl manager(&application);
    const std::string script =
        "source -encoding utf-8 {" ZN_SOURCE_DIR "/packaging/hostcheck/hostcheck.tcl};"
        "join [lmap finding [znbrowser::hostcheck::run] {"
        "if {[lindex $finding 0] ne {broken}} continue; join [lrange $finding 1 2] {: }}] \\n";
    EXPECT_EQ(Tcl_Eval(interp, script.c_str()), TCL_OK) << Tcl_GetStringResult(interp);
    std::string broken = Tcl_GetStringResult(interp);
    Tcl_DeleteInterp(interp);
    manager.DeleteBrowserManagerCollectorTcl();
    return broken;
}

TEST(HostCheck, FindsNothingWrongInAHostThatHasLittle) { EXPECT_EQ(BrokenBy(Lie::None), ""); }

const struct {
    Lie lie;
    const char* finding;
} found[] = {
    {Lie::NothingMade,
     "CreateFreeFolder: \"view folder create hostcheck1C\" succeeds, but it is neither listed"},
    {Lie::SecondMade, "CreateView: a second \"hostcheck1C\" is accepted"},
    {Lie::NullInList, "GetGuiMaps: \"hostcheck1C\" is found, but not listed"},
    {Lie::NotListed, "GetChildFolders: \"hostcheck1C\" is found, but not listed"},
    {Lie::NotFound, "FindChildFolder: \"hostcheck1C\" is listed, but not found"},
    {Lie::FoundInAnyCase, "FindChildFolder: asked for \"hostcheck1c\", it finds \"hostcheck1C\""},
    {Lie::FoundThoughUnknown, "FindChildFolder: it finds the name \"hostcheck none\""},
    {Lie::ListTurns, "GetChildFolders: the answer changes from one question to the next"},
    {Lie::SortedByName, "is not the order of creation: \"hostcheck1C\" \"hostcheck1c\""},
    {Lie::CreationReorders,
     "GetChildFolders: \"view folder create hostcheck1Ä\" changes the order of others"},
    {Lie::CreationTakesAnother,
     "CreateFreeFolder: \"view folder create hostcheck1c\" takes \"hostcheck1C\" along"},
    {Lie::DeletionDoesNothing, "DestroyFreeFolder: \"hostcheck1c\" is still listed after its deletion"},
    {Lie::GoneButFound, "DestroyFreeFolder: \"hostcheck1c\" is still found after its deletion"},
    {Lie::DeletionTakesAnother,
     "DestroyFreeFolder: \"view folder delete hostcheck1c\" takes \"hostcheck1C\" along"},
    {Lie::NoReason, "DestroyFreeFolder: \"view folder delete hostcheck1c\" is refused without a reason"},
    {Lie::RefusedButDone, "DestroyFreeFolder: \"view folder delete hostcheck1c\" is refused, but done"},
    {Lie::SettingForgotten, "GetFreeFolderStyle: after \"view folder style true\" it reads \"false\""},
    {Lie::SettingRefusedButDone,
     "SetFreeFolderStyle: \"view folder style true\" is refused, but changes what is read"},
    {Lie::AnswerTurns, "GetFreeFolderStyle: \"view folder style\" changes from one question to the next"},
};

TEST(HostCheck, FindsOutWhichPromiseIsBroken) {
    for (const auto& [told, finding] : found) {
        const std::string broken = BrokenBy(told);
        EXPECT_NE(broken.find(finding), std::string::npos) << finding << "\nbut found:\n" << broken;
    }
}

} // namespace

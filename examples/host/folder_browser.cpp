// A first host: its model is folders of the file system, each a data source whose items are the files in it.
//     folder_browser SCRIPT FOLDER ...
// The default classes answer what this host does not have, so that only what it has stands here.
#include <znBrowserScripting/host/defaults/znBrowserApplicationDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataCtrlDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataPropertyDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataSourceDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataSourceSimpleDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserViewDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserViewItemFreeFolderDefaults.h>
#include <znBrowserScripting/znBrowserManagerTcl.h>

#include <tcl.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace fs = std::filesystem;

namespace {

/// The object of that name among those that a list owns; null when there is none.
template <class T>
T* Find(const std::vector<std::unique_ptr<T>>& owned, std::string_view name) {
    for (const auto& one : owned) {
        if (one->GetName() == name) return one.get();
    }
    return nullptr;
}

/// Replaces a list of the layer's by all that a list owns.
template <class T, class Interface>
void List(const std::vector<std::unique_ptr<T>>& owned, std::vector<Interface*>& list) {
    list.clear();
    for (const auto& one : owned) list.push_back(one.get());
}

/// A name of the file system, as Tcl has its texts.
std::string ToTcl(const fs::path& name) {
    Tcl_DString text;
    Tcl_ExternalToUtfDString(nullptr, name.c_str(), -1, &text);
    std::string result = Tcl_DStringValue(&text);
    Tcl_DStringFree(&text);
    return result;
}

// ---- The model ----

/// A folder: its items are its files, and their number is the place in the alphabet.
class Folder final : public znBrowserDataSourceSimpleDefaults {
public:
    explicit Folder(const fs::path& path) : name_(ToTcl(path.filename())), general_(*this) {
        for (const auto& entry : fs::directory_iterator(path))
            if (entry.is_regular_file()) files_.push_back(entry.path());
        std::sort(files_.begin(), files_.end());
    }
    const char* GetName() const override { return name_.c_str(); }
    const char* GetCaption() const override { return name_.c_str(); }
    bool IsBase() const override { return true; }
    void GetDataItems(znBrowserDataItems& items) override {
        items.Clear();
        for (std::size_t i = 0; i < files_.size(); ++i) items.Append(this, static_cast<std::int64_t>(i));
    }
    znIBrowserDataSource* GetDataSource() override { return &general_; }
    const fs::path& At(std::int64_t row) const { return files_.at(static_cast<std::size_t>(row)); }

private:
    /// The source without regard to its kind is another object, as the layer asks that one for its name, too.
    class General final : public znBrowserDataSourceDefaults {
    public:
        explicit General(Folder& folder) : folder_(folder) {}
        znString GetName() const override { return folder_.GetName(); }
        znIBrowserDataSourceSimple* GetSimple() override { return &folder_; }

    private:
        Folder& folder_;
    };

    const std::string name_;
    std::vector<fs::path> files_;
    General general_;
};

class Files final : public znBrowserDataCtrlDefaults {
public:
    std::vector<std::unique_ptr<Folder>> folders;

    const char* GetName() const override { return "files"; }
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override {
        List(folders, sources);
    }
    Folder* FindDataSourceSimple(const char* name) override { return Find(folders, name); }
};

// ---- The views ----

class View final : public znBrowserViewDefaults {
public:
    explicit View(const char* name) : name_(name), root_(*this) {}
    const znString& GetName() const override { return name_; }
    znIBrowserDataCtrl* GetDataCtrl() override { return dataCtrl_; }
    bool SetDataCtrl(znIBrowserDataCtrl* dataCtrl) override {
        dataCtrl_ = dataCtrl;
        return true;
    }
    znIBrowserViewItemFreeFolder* GetRootFreeFolder() override { return &root_; }

    std::vector<znIBrowserDataSourceSimple*> lists; ///< what the view shows

private:
    /// A view of this host has one folder.
    class Root final : public znBrowserViewItemFreeFolderDefaults {
    public:
        explicit Root(View& view) : view_(view) {}
        const char* GetName() const override { return view_.name_.c_str(); }
        znIBrowserView* GetView() override { return &view_; }
        bool GetLists(std::vector<znIBrowserDataSourceSimple*>& lists) override {
            lists = view_.lists;
            return true;
        }

    private:
        View& view_;
    };

    const znString name_;
    znIBrowserDataCtrl* dataCtrl_ = nullptr;
    Root root_;
};

class Browser final : public znBrowserDefaults, public znBrowserViewListDefaults {
public:
    bool CreateView(const char* name, bool) override {
        if (Find(views_, name)) return false;
        views_.push_back(std::make_unique<View>(name));
        return true;
    }
    bool DeleteView(znIBrowserView* view) override {
        const auto isView = [&](const auto& one) { return one.get() == view; };
        views_.erase(std::remove_if(views_.begin(), views_.end(), isView), views_.end());
        return true;
    }
    bool AddList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source, bool) override {
        static_cast<View*>(folder->GetView())->lists.push_back(source->GetSimple());
        return true;
    }
    znIBrowserViewList* GetViewList() override { return this; }
    View* FindView(const char* name) override { return Find(views_, name); }
    void GetViews(std::vector<znIBrowserView*>& views, int) override { List(views_, views); }

private:
    std::vector<std::unique_ptr<View>> views_;
};

// ---- The application ----

class Application final : public znBrowserApplicationDefaults {
public:
    using znBrowserApplicationDefaults::znBrowserApplicationDefaults;

    Files files;

    znIBrowserDataCtrl* FindDataCtrl(const char* name) override {
        return std::string_view(name) == files.GetName() ? &files : nullptr;
    }
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override { controls = {&files}; }
    znIBrowser* GetBrowser() override { return &browser_; }
    /// "znbrowsermanager app rows VIEW": what a window would show.
    int EvalAppCommand(int objc, Tcl_Obj* const objv[]) override {
        View* const view = objc == 2 ? browser_.FindView(Tcl_GetString(objv[1])) : nullptr;
        Tcl_SetObjResult(GetTclInterp(), view ? Rows(*view) : Tcl_NewStringObj("expected: rows VIEW", -1));
        return view ? TCL_OK : TCL_ERROR;
    }

private:
    static Tcl_Obj* Rows(const View& view) {
        std::string rows;
        for (znIBrowserDataSourceSimple* const list : view.lists) {
            znBrowserDataItems items;
            list->GetDataItems(items);
            rows += std::string(list->GetCaption()) + " (" + std::to_string(items.Size()) + ")\n";
            items.ForEach([&](const znBrowserDataItem& item) {
                const fs::path& file = static_cast<Folder*>(item.source)->At(item.row);
                rows +=
                    "  " + ToTcl(file.filename()) + ", " + std::to_string(fs::file_size(file)) + " bytes\n";
            });
        }
        return Tcl_NewStringObj(rows.data(), static_cast<int>(rows.size()));
    }

    Browser browser_;
};

/// Adds a folder of the file system to the model. @return false when there is none, or one of that name
/// already
bool Add(Files& files, const char* path) {
    std::error_code error;
    const fs::path folder = fs::canonical(path, error);
    if (error || !fs::is_directory(folder) || files.FindDataSourceSimple(ToTcl(folder.filename()).c_str()))
        return false;
    files.folders.push_back(std::make_unique<Folder>(folder));
    return true;
}

/// @return false with a message when a folder cannot be added or the script fails
bool Run(Tcl_Interp* interp, Application& application, char** arguments) {
    for (char** folder = arguments + 1; *folder; ++folder) {
        if (Add(application.files, *folder)) continue;
        std::fprintf(stderr, "not a folder, or one of that name is there: %s\n", *folder);
        return false;
    }
    if (Tcl_Init(interp) == TCL_OK && Tcl_EvalFile(interp, arguments[0]) == TCL_OK) return true;
    std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
    return false;
}

} // namespace

// What is made first goes last, but for the interpreter: it is deleted while the manager and the model are
// there, as its scripts may use them until it is.
int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: folder_browser SCRIPT FOLDER ...\n");
        return 2;
    }
    Tcl_FindExecutable(argv[0]);
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Application application(interp);
    znBrowserManagerTcl manager(&application); // from here on there is a command "znbrowsermanager"
    const bool done = Run(interp, application, argv + 1);
    Tcl_DeleteInterp(interp);
    manager.DeleteBrowserManagerCollectorTcl();
    return done ? 0 : 1;
}

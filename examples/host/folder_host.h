// A first host: each folder is a data source whose items are the files in it. The default classes answer what
// this host does not have, so that only what it has stands here.
#ifndef FOLDER_HOST_H
#define FOLDER_HOST_H

#include "folders.h"

#include <znBrowserScripting/host/defaults/znBrowserApplicationDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataCtrlDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataSourceDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDataSourceSimpleDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserViewDefaults.h>
#include <znBrowserScripting/host/defaults/znBrowserViewItemFreeFolderDefaults.h>

#include <list>

/// The object of that name among those that a list owns; null when there is none.
template <class T>
T* Find(std::list<T>& owned, std::string_view name) {
    for (T& one : owned)
        if (one.GetName() == name) return &one;
    return nullptr;
}

/// Replaces a list of the layer's by all that a list owns.
template <class T, class Interface>
void List(std::list<T>& owned, std::vector<Interface*>& list) {
    list.clear();
    for (T& one : owned) list.push_back(&one);
}

class Source final : public znBrowserDataSourceSimpleDefaults {
public:
    explicit Source(Folder&& folder) : folder_(std::move(folder)), general_(*this) {}
    const char* GetName() const override { return folder_.name.c_str(); }
    const char* GetCaption() const override { return GetName(); }
    bool IsBase() const override { return true; }
    void GetDataItems(znBrowserDataItems& items) override {
        items.Clear();
        for (std::size_t i = 0; i < folder_.files.size(); ++i)
            items.Append(this, static_cast<std::int64_t>(i));
    }
    znIBrowserDataSource* GetDataSource() override { return &general_; }
    const File& At(std::int64_t row) const { return folder_.files.at(static_cast<std::size_t>(row)); }

private:
    /// The source without regard to its kind is another object, as the layer asks that one for its name, too.
    class General final : public znBrowserDataSourceDefaults {
    public:
        explicit General(Source& source) : source_(source) {}
        znString GetName() const override { return source_.GetName(); }
        znIBrowserDataSourceSimple* GetSimple() override { return &source_; }

    private:
        Source& source_;
    };

    const Folder folder_;
    General general_;
};

class Files final : public znBrowserDataCtrlDefaults {
public:
    std::list<Source> folders;

    const char* GetName() const override { return "files"; }
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override {
        List(folders, sources);
    }
    Source* FindDataSourceSimple(const char* name) override { return Find(folders, name); }
};

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
        views_.emplace_back(name);
        return true;
    }
    bool DeleteView(znIBrowserView* view) override {
        views_.remove_if([&](const View& one) { return &one == view; });
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
    std::list<View> views_;
};

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
                const File& file = static_cast<Source*>(item.source)->At(item.row);
                rows += "  " + file.name + ", " + std::to_string(file.size) + " bytes\n";
            });
        }
        return Tcl_NewStringObj(rows.data(), static_cast<int>(rows.size()));
    }

    Browser browser_;
};

#endif

// The default answers of `znIBrowserViewColumn`.
#ifndef ZN_BROWSER_VIEW_COLUMN_DEFAULTS_H
#define ZN_BROWSER_VIEW_COLUMN_DEFAULTS_H

#include "../znIBrowserViewColumn.h"

#include <vector>

/// `znIBrowserViewColumn` for hosts that have a part of it: override what there is.
class znBrowserViewColumnDefaults : public znIBrowserViewColumn {
public:
    const char* GetName() const override { return nullptr; }
    bool IsBuiltIn() const override { return false; }
    znIBrowserView* GetView() override { return nullptr; }
    const char* GetCaption() const override { return nullptr; }
    bool SetCaption(const char*) override { return false; }
    bool GetItalic() const override { return false; }
    bool SetItalic(bool) override { return false; }
    bool GetShown() const override { return false; }
    bool SetShown(bool) override { return false; }
    bool GetSorting() const override { return false; }
    bool SetSorting(bool) override { return false; }
    bool GetSortOrder(ZNBROWSER_SORT_ORDER&) const override { return false; }
    const char* GetSortProperty() const override { return nullptr; }
    bool SetSortProperty(const char*) override { return false; }
    void GetStyles(std::vector<znIBrowserStyle*>& styles) override { styles.clear(); }
    void SetCurrentStyle(znIBrowserStyle*) override {}
    bool CreateStyle(const char*) override { return false; }
    znIBrowserStyle* FindStyle(const char*) override { return nullptr; }
    bool DeleteStyle(znIBrowserStyle*) override { return false; }
    void SetStyle(znIBrowserStyle*) override {}
    znIBrowserPopupMenu* GetPopupMenu() override { return nullptr; }
    bool SetPopupMenu(const char*) override { return false; }

protected:
    ~znBrowserViewColumnDefaults() = default;
};

#endif

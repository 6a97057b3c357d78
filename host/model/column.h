// A column of a view.
#ifndef ZN_HOST_COLUMN_H
#define ZN_HOST_COLUMN_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserViewColumn.h"
#include "model/column_filter.h"
#include "model/popup_place.h"
#include "model/style.h"

#include <memory>
#include <string>

namespace znhost {

class View;
class ViewProperty;

enum class ColumnKind { BuiltIn, TextBox, Icon, Button };
enum class Justify { Left, Center, Right };

class Column final : public znIBrowserViewColumn,
                     public HostObject,
                     public std::enable_shared_from_this<Column> {
public:
    /// What a view's built-in column is called.
    static constexpr const char* builtInName = "Name";

    /// `icon` is the icon that an icon column shows, "" for none.
    Column(View& view, std::string name, ColumnKind kind, std::string icon = {});

    const std::string& Name() const { return name_; }
    View& Owner() const { return view_; }
    ColumnKind Kind() const { return kind_; }
    const std::string& Icon() const { return icon_; }
    const std::string& Caption() const { return caption_; }
    bool IsItalic() const { return italic_; }
    bool IsShown() const { return shown_; }
    /// In pixels.
    int Width() const { return width_; }
    void SetWidth(int pixels);
    Justify Justification() const { return justify_; }
    void SetJustification(Justify justify);
    /// Whether the column may sort, and how it does now.
    bool MaySort() const { return sorting_; }
    ZNBROWSER_SORT_ORDER SortOrder() const;
    /// The view property by which the column sorts; "" for its text.
    const std::string& SortProperty() const { return sortProperty_; }
    /// Whether the numbers in texts are compared as numbers: "row 2" before "row 10".
    bool SortsNaturally() const { return naturally_; }
    void SetSortsNaturally(bool naturally);
    const ColumnFilter& Filter() const { return filter_; }
    void SetFilter(ColumnFilter filter);
    /// Lets go of a property that is about to be deleted.
    void Forget(const ViewProperty& property);
    const NamedList<Style>& Styles() const { return styles_; }
    /// The style that the column draws its items with; null when none was set.
    Style* StyleInUse() const { return styleInUse_; }
    /// Null for none.
    PopupMenu* Popup() const { return popupMenu_.Get(); }

    const char* GetName() const override;
    bool IsBuiltIn() const override;
    znIBrowserView* GetView() override;
    const char* GetCaption() const override;
    bool SetCaption(const char* caption) override;
    bool GetItalic() const override;
    bool SetItalic(bool italic) override;
    bool GetShown() const override;
    bool SetShown(bool shown) override;
    bool GetSorting() const override;
    bool SetSorting(bool sorting) override;
    bool GetSortOrder(ZNBROWSER_SORT_ORDER& order) const override;
    const char* GetSortProperty() const override;
    bool SetSortProperty(const char* property) override;
    void GetStyles(std::vector<znIBrowserStyle*>& styles) override;
    void SetCurrentStyle(znIBrowserStyle* style) override;
    bool CreateStyle(const char* name) override;
    znIBrowserStyle* FindStyle(const char* name) override;
    bool DeleteStyle(znIBrowserStyle* style) override;
    void SetStyle(znIBrowserStyle* style) override;
    znIBrowserPopupMenu* GetPopupMenu() override;
    bool SetPopupMenu(const char* name) override;

private:
    bool Changed(unsigned what) const;

    View& view_;
    const std::string name_;
    const ColumnKind kind_;
    const std::string icon_;
    std::string caption_;
    std::string sortProperty_;
    bool italic_ = false;
    bool shown_ = true;
    bool sorting_ = true;
    bool naturally_ = false;
    ColumnFilter filter_;
    int width_;
    Justify justify_ = Justify::Left;
    NamedList<Style> styles_;
    Style* styleInUse_ = nullptr;
    Style* currentStyle_ = nullptr; ///< As scripts told; the model itself makes no use of it.
    PopupPlace popupMenu_;
};

} // namespace znhost

#endif

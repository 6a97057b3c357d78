// The windows of the embedded host.
#ifndef ZN_HOST_WINDOW_H
#define ZN_HOST_WINDOW_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserWindowAccess.h"
#include "model/find_request.h"
#include "model/view_observer.h"
#include "rows/row_model.h"
#include "window/window_part.h"
#include "window/window_popup.h"
#include "znBrowserTypes.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace znhost {

class BrowserWindows;
class RowFinder;
struct FindCriterion;
class View;
class WindowDisplay;

/// The collector bar of a window, and its controls by `ZNBROWSER_COLLECTOR_CONTROL`.
struct CollectorBar {
    static constexpr std::size_t controls = ZNBROWSER_COLLECTOR_SELECTION + 1;
    struct Control {
        bool shown = true;
        bool enabled = true;
    };

    bool shown = false;
    std::array<Control, controls> control;
};

/// A window on a view. Its events run scripts, and a script may delete the window: then it is closed at once
/// (it has no view, no rows and no parts any more) and goes when the event has been handled.
class Window final : public znIBrowserWindowAccess,
                     public HostObject,
                     public ViewObserver,
                     public std::enable_shared_from_this<Window> {
public:
    Window(BrowserWindows& browser, View& view, std::string name);
    ~Window() override;

    const std::string& Name() const { return name_; }
    BrowserWindows& Owner() const { return browser_; }
    /// Null when the view was deleted or the window is closed.
    View* ShownView() const { return view_; }
    RowModel& Rows() { return rows_; }
    const std::string& TkFrame() const { return tkFrame_; }
    /// Notes where the display put it.
    void SetTkFrame(std::string frame) { tkFrame_ = std::move(frame); }
    /// Puts the window and its parts into another frame; when it is posted, at once.
    void MoveInto(std::string frame);
    /// Posting fills the parts: their create procedures are called, then the pack procedures of those shown.
    void Post(bool posted);
    /// Whether it is posted. Nothing is recorded.
    bool IsShown() const { return posted_; }
    bool HasStripes() const { return stripes_; }
    void SetStripes(bool on);
    const std::string& Background() const { return background_; }
    void SetBackground(std::string colour);
    /// As the Tk tree reported it last.
    int ScrollPosition() const { return scrollPosition_; }
    void ScrollTo(int position) noexcept { scrollPosition_ = position; }
    /// Whether its user has that open, as long as the window is posted: its display follows.
    enum class Aid { Details, Chooser };
    bool IsOpen(Aid aid) const { return open_[static_cast<std::size_t>(aid)]; }
    void SetOpen(Aid aid, bool open);
    /// The collector bar.
    CollectorBar& Bar() { return bar_; }
    WindowPopup& Popup() { return popup_; }

    WindowPart::Parts& Parts() { return parts_; }
    WindowPart* FindPart(std::string_view name);
    // What becomes of the parts of a posted window becomes of their frames at once, by the procedures of the
    // parts, which may delete the part and the window.
    void AddPart(const std::string& name, WindowPart* parent);
    void DeletePart(WindowPart& part);
    void ShowPart(WindowPart& part, bool shown);
    /// Moves a part to the end of the children of `parent`, or of the window's own; it must not hold
    /// `parent`.
    void MovePart(WindowPart& part, WindowPart* parent);
    /// False when the position is not one among the part's siblings.
    bool PlacePart(WindowPart& part, int position);
    void SetCreateProcedure(WindowPart& part, WindowPart::Procedure procedure);
    void SetPackProcedure(WindowPart& part, WindowPart::Procedure procedure);
    NamedList<FindRequest>& FindRequests() { return findRequests_; }
    /// Searches by a request of the window. False, with an error text, when it cannot, and when nothing is
    /// found.
    bool Perform(FindRequest& request);

    /// Ends the window's life: lets go of its view, rows and parts.
    void Close();
    bool IsClosed() const { return closed_; }

    void OnViewChanged(unsigned changes) override;
    void OnExpanded(FreeFolder& folder, znIBrowserDataSourceSimple* list, bool expanded,
                    bool recursive) override;
    void OnFolderDeleted(FreeFolder& folder) override { rows_.OnFolderDeleted(folder); }
    void OnColumnDeleted(Column&) override { rows_.OnViewChanged(VIEW_COLUMNS); }
    void OnDataSourceDeleted(znIBrowserDataSource& source) override { rows_.OnSourceDeleted(source); }
    void OnViewDeleted() noexcept override;

    znIBrowserView* GetView() override;
    const char* GetName() const override;
    const char* GetTkFrame() const override;
    bool GetStripeDisplay() const override;
    const char* GetBackgroundColor() const override;
    bool IsPosted() const override;
    void GetWindowParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) override;
    znIBrowserWindowPart* FindWindowPart(const char* name) override;
    void GetListenerNames(std::vector<znString>& names) override;
    bool AddListener(const char* name) override;
    bool DeleteListener(const char* name) override;
    bool RequestExpand(unsigned int index) override;
    bool RequestCollapse(unsigned int index) override;
    bool SetStatePos(int position) override;
    bool SelectionAdded(const std::vector<unsigned int>& indices) override;
    bool SelectionRemoved(const std::vector<unsigned int>& indices) override;
    bool SelectionUpdate(const std::vector<unsigned int>& indices) override;
    bool SelectionChangeFinished() override;
    bool PopupMenu(bool on) override;
    bool CheckBoxClick(const char* column, const char* element, unsigned int index, bool value) override;
    bool WindowButtonClick(const char* column, const char* element, unsigned int index,
                           const znString& value) override;
    bool LeftHandClick(const char* column, const char* element, unsigned int index) override;
    bool RightHandClick(znIBrowserViewColumn* column, const std::vector<unsigned int>& indices) override;
    bool SetDropItem(unsigned int target, const std::vector<unsigned int>& indices) override;
    bool PerformPopupOperation(const char* first, const char* second) override;
    bool IsWindowPartShown(znIBrowserWindowPart* part) override;
    bool SetWindowPartPosition(znIBrowserWindowPart* part, int position) override;
    void SetWindowPartParent(znIBrowserWindowPart* part, znIBrowserWindowPart* parent) override;
    bool GetEvents(znIBrowserWindowPart* part, std::vector<znIBrowserEvent*>& events) override;
    znIBrowserWindowCallback* FindCallback(znIBrowserEvent* event, const char* name) override;
    bool GetCallbacks(znIBrowserEvent* event, std::vector<znIBrowserWindowCallback*>& callbacks) override;
    bool GetOperations(znIBrowserWindowPart* part, std::vector<znString>& operations) override;
    void GetFindRequests(std::vector<znIBrowserFindRequest*>& requests) override;
    znIBrowserFindRequest* FindFindRequest(const char* name) override;
    void ReportColumnWidth(znIBrowserViewColumn* column) override;
    bool SetSingleSelection() override;
    bool SetMultipleSelection() override;
    bool CollapseAllItems() override;
    bool CollapseSelectedItems() override;
    bool ExpandAllItems() override;
    bool ExpandSelectedItems() override;

private:
    WindowPart* Own(znIBrowserWindowPart* part) const;
    WindowEvent* Own(znIBrowserEvent* event) const;
    std::vector<WindowPart*> AllParts() const;
    std::shared_ptr<RowFinder> Search(std::vector<FindCriterion> criteria);
    void Fire(EventKind kind);
    void Call(const std::vector<std::string>& words);
    void CallForPart(const WindowPart::Procedure& procedure, const std::string& frame);
    WindowPart* PostedPart(unsigned number) const;
    WindowPart* PostedPart(unsigned number, const std::string& frame) const;
    WindowDisplay* Display() const;
    void MakeFrame(unsigned number);
    void PackFrame(unsigned number);
    void FillParts(const std::vector<WindowPart*>& parts);
    void RefillPart(WindowPart& part, const std::string& before);
    void RepackPart(const WindowPart& part);
    void RunWindowOperation(Window& target, ZNBROWSER_CALLBACK_OPERATION operation);
    void TellSelectedFolders();
    void KeepExpanded();
    bool FailOnTrouble();
    Column* FindColumn(const char* name) const;
    struct Click;
    bool FindClicked(const char* column, const char* element, unsigned int index, Click& click);
    bool WriteValue(ViewProperty& property, const znBrowserDataItem& item, const std::string& value);
    bool RunOperation(const std::string& name);

    BrowserWindows& browser_;
    View* view_;
    const std::string name_;
    std::string tkFrame_;
    std::string background_;
    bool stripes_ = false;
    bool posted_ = false;
    bool closed_ = false;
    int scrollPosition_ = 0;
    std::array<bool, 2> open_{}; ///< by `Aid`
    CollectorBar bar_;
    unsigned partsMade_ = 0;
    WindowPart::Parts parts_;
    std::vector<std::string> listeners_;
    NamedList<FindRequest> findRequests_;
    RowModel rows_;
    WindowPopup popup_{*this};
    bool filters_ = false;              ///< whether a text narrows the rows
    std::vector<KeptRow> expanded_;     ///< what was expanded before it did
    std::shared_ptr<RowFinder> finder_; ///< what was searched last
};

} // namespace znhost

#endif

// A simple data source: a flat set of data items.
#ifndef ZN_I_BROWSER_DATA_SOURCE_SIMPLE_H
#define ZN_I_BROWSER_DATA_SOURCE_SIMPLE_H

#include "../znBrowserTypes.h"
#include <vector>

struct znBrowserDataItems;
class znIBrowserCriteria;
class znIBrowserCriteriaContainer;
class znIBrowserDataCtrl;
class znIBrowserDataProperty;
class znIBrowserDataSource;
class znIBrowserPopupMenu;

/// A flat source of data items. A base source comes with the data control; a custom (scripted) one is made by
/// a script, gets its items from the base sources connected to it, and keeps criteria. A source has an error
/// text of its own; where the text of a refusal is read at all here, it is that one.
class znIBrowserDataSourceSimple {
public:
    /// The name, unique in the data control; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// What people read as its name. It is set through the data control.
    virtual const char* GetCaption() const = 0;
    /// What people read for it in a list of filters.
    virtual const char* GetFilterCaption() const = 0;
    /// The source's own last error text. Read after a refusal to create a data property.
    virtual const char* GetError() const = 0;
    /// Whether something uses the source, so that it cannot be deleted: a view, a hierarchical source or a
    /// custom one.
    virtual bool IsConnected() const = 0;
    /// Whether it is a base source. Scripts cannot delete it.
    virtual bool IsBase() const = 0;
    /// Whether it is a custom source. Only to one of these does the layer connect bases.
    virtual bool IsCustom() const = 0;
    /// Custom sources: takes items from that base source too. `base` may be any simple source of the data
    /// control: one that is no base, or is connected already, is for the host to refuse.
    virtual bool ConnectBase(znIBrowserDataSourceSimple* base) = 0;
    /// Custom sources: takes no more items from that base source. It need not be connected: refuse then.
    virtual bool DisconnectBase(znIBrowserDataSourceSimple* base) = 0;
    /// The base sources in the order connected; none for a base source. False counts as none.
    virtual bool GetBaseDataSources(std::vector<znIBrowserDataSourceSimple*>& bases) = 0;
    /// Rebuilds the list of items after its bases changed. Follows each `ConnectBase` and `DisconnectBase`
    /// that succeeded.
    virtual void Update() = 0;
    /// Custom sources: chooses the base source to which further settings (criteria codes, attributes) refer.
    /// A base source refuses.
    virtual bool SetCurrentBase(znIBrowserDataSourceSimple* base) = 0;

    // Criteria.
    /// The source's criteria; null for a source that is not custom.
    virtual znIBrowserCriteriaContainer* GetCriteriaList() = 0;
    /// Makes a criteria object, without type, code and values: it narrows nothing yet. Asked only while there
    /// is a criteria list without that name.
    virtual bool CreateCriteria(const char* name) = 0;
    /// Deletes a criteria object. It may be another source's: refuse then.
    virtual bool DeleteCriteria(znIBrowserCriteria* criteria) = 0;

    // Data properties.
    /// All data properties, in the host's order.
    virtual bool GetDataProperties(std::vector<znIBrowserDataProperty*>& properties) = 0;
    /// A property that reads an attribute of the item, by a number of the host's (in the embedded host the
    /// column's, from 0). `type` is 1 to 13, see `znIBrowserDataProperty::GetType`. The meaning of `extra` is
    /// the host's, 0 when the script gave none.
    virtual bool CreateDataPropertyAttribute(const char* name, ZNBROWSER_DATA_TYPE type,
                                             unsigned int attributeId, int extra) = 0;
    /// A property whose value a Tcl procedure, named by `script`, computes for each item.
    virtual bool CreateDataPropertyScript(const char* name, const char* script) = 0;
    /// Deletes a property that a script created, with the connections of view properties to it. The text of a
    /// refusal is not read.
    virtual bool DeleteDataProperty(const char* name) = 0;

    /// The items of the source, in the host's order.
    virtual void GetDataItems(znBrowserDataItems& items) = 0;

    /// The source without regard to its kind.
    virtual znIBrowserDataSource* GetDataSource() = 0;
    /// The data control that owns the source.
    virtual znIBrowserDataCtrl* GetDataCtrl() = 0;

    /// The popup menu of the rows of the source's items, in any view; null for none.
    virtual znIBrowserPopupMenu* GetPopupMenu() { return nullptr; }
    /// Gives these rows the popup menu of that name, which exists; "" for none. The text of a refusal is the
    /// browser object's.
    virtual bool SetPopupMenu(const char* /*name*/) { return false; }

protected:
    ~znIBrowserDataSourceSimple() = default;
};

#endif

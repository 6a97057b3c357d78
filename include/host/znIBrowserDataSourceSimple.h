// A simple data source: a flat set of data items.
#ifndef ZN_I_BROWSER_DATA_SOURCE_SIMPLE_H
#define ZN_I_BROWSER_DATA_SOURCE_SIMPLE_H

#include "znBrowserTypes.h"
#include <vector>

struct znBrowserDataItems;
class znIBrowserCriteria;
class znIBrowserCriteriaContainer;
class znIBrowserDataCtrl;
class znIBrowserDataProperty;
class znIBrowserDataSource;

/// A flat source of data items. A base source comes with the data control; a custom (scripted) one is made by
/// a script, gets its items from the base sources connected to it, and keeps criteria.
class znIBrowserDataSourceSimple {
public:
    virtual const char* GetName() const = 0;
    virtual const char* GetCaption() const = 0;
    virtual const char* GetFilterCaption() const = 0;
    /// The source's own last error text.
    virtual const char* GetError() const = 0;
    /// Whether something uses the source, so that it cannot be deleted.
    virtual bool IsConnected() const = 0;
    virtual bool IsBase() const = 0;
    virtual bool IsCustom() const = 0;
    /// Custom sources: takes items from that base source too.
    virtual bool ConnectBase(znIBrowserDataSourceSimple* base) = 0;
    virtual bool DisconnectBase(znIBrowserDataSourceSimple* base) = 0;
    virtual bool GetBaseDataSources(std::vector<znIBrowserDataSourceSimple*>& bases) = 0;
    /// Makes the list of items anew after its bases changed.
    virtual void Update() = 0;
    /// Custom sources: chooses the base source to which further settings refer.
    virtual bool SetCurrentBase(znIBrowserDataSourceSimple* base) = 0;

    // Criteria.
    /// The source's criteria; null for a source that is not custom.
    virtual znIBrowserCriteriaContainer* GetCriteriaList() = 0;
    virtual bool CreateCriteria(const char* name) = 0;
    virtual bool DeleteCriteria(znIBrowserCriteria* criteria) = 0;

    // Data properties.
    virtual bool GetDataProperties(std::vector<znIBrowserDataProperty*>& properties) = 0;
    /// A property that reads an attribute of the item. The meaning of `extra` is the host's.
    virtual bool CreateDataPropertyAttribute(const char* name, ZNBROWSER_DATA_TYPE type,
                                             unsigned int attributeId, int extra) = 0;
    /// A property whose value a Tcl procedure computes for each item.
    virtual bool CreateDataPropertyScript(const char* name, const char* script) = 0;
    virtual bool DeleteDataProperty(const char* name) = 0;

    /// The items of the source, in the host's order.
    virtual void GetDataItems(znBrowserDataItems& items) = 0;

    /// The source without regard to its kind.
    virtual znIBrowserDataSource* GetDataSource() = 0;
    /// The data control that owns the source.
    virtual znIBrowserDataCtrl* GetDataCtrl() = 0;

protected:
    ~znIBrowserDataSourceSimple() = default;
};

#endif

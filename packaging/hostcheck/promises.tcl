# What the check tries: tables of words, and of the operations of the host that they ask for.
namespace eval ::znbrowser::hostcheck {
    # Where each kind of object is found: the words that make its surroundings current, before each step. Only the
    # change to another view makes the root folder current.
    variable places {
        none {}
        view {{view current hostcheck}}
        root {{view current hostcheck2} {view current hostcheck}}
        column {{view current hostcheck} {view column current hostcheck}}
        style {{view current hostcheck} {view column current hostcheck} {view style current hostcheck}}
        folder {{view current hostcheck2} {view current hostcheck} {view folder current hostcheck}}
        window {{window current hostcheck} {window part current toplevel}}
        part {{window current hostcheck} {window part current hostcheck}}
        menu {{view popupmenu current hostcheck}}
        item {{view popupmenu current hostcheck} {view popupmenuitem current hostcheck}}
        data {{datactrl current @dataCtrl}}
        source {{datactrl current @dataCtrl} {datasource simple current hostcheck}}
    }

    # What has names, after the kinds that it lies in: its place, the words (% is the name) that create, list, select
    # and delete, and the operations that these ask for. "-" says that there is no such word. Options:
    #   -of WORDS   the names are those of existing objects, which these words list
    #   -created    the order is that of creation
    #   -again      creating an object a second time is accepted, and changes nothing
    #   -stays      one named "hostcheck" is made afterwards: kinds below need it
    #   -unheard    the words do not tell that creating was refused
    #   -lasting    no word deletes one
    variable kinds {
        view none {{view create %} {view names} {view current %} {view delete}}
            {znIBrowser::CreateView znIBrowserViewList::GetViews znIBrowserViewList::FindView znIBrowser::DeleteView}
            {-stays 1}
        column view {{view column create %} {view column names} {view column current %} {view column delete}}
            {znIBrowser::CreateTextBoxColumn znIBrowserView::GetColumns znIBrowserView::FindColumn
                znIBrowser::DeleteColumn}
            {-stays 1}
        style column {{view style create %} {view style names} {view style current %} {view style delete}}
            {znIBrowserViewColumn::CreateStyle znIBrowserViewColumn::GetStyles znIBrowserViewColumn::FindStyle
                znIBrowserViewColumn::DeleteStyle}
            {-stays 1}
        "style element" style
            {{view element create %} {view element names} {view element current %} {view element delete %}}
            {znIBrowserStyle::CreateElement znIBrowserStyle::GetElements znIBrowserStyle::FindElement
                znIBrowserStyle::DeleteElement}
            {}
        "view property" view
            {{view property create %} {view property names} {view property current %} {view property delete}}
            {znIBrowser::CreateViewProperty znIBrowserView::GetViewProperties znIBrowserView::FindViewProperty
                znIBrowser::DeleteViewProperty}
            {}
        "view operation" view {{view operation create %} - {view operation current %} -}
            {znIBrowser::CreateViewOperation - znIBrowserView::FindViewOperation -}
            {}
        folder root
            {{view folder create %} {view folder children} {view folder current %} {view folder delete %}}
            {znIBrowser::CreateFreeFolder znIBrowserViewItemFreeFolder::GetChildFolders
                znIBrowserViewItemFreeFolder::FindChildFolder znIBrowser::DestroyFreeFolder}
            {-created 1 -again 1 -stays 1}
        "data source of a view" view
            {{view datasource simple connect %} {view datasource simple connected} -
                {view datasource simple disconnect %}}
            {znIBrowser::ConnectDataSourceSimple znIBrowserView::GetDataSourcesSimple -
                znIBrowser::DisconnectDataSource}
            {-of {datasource simple names} -again 1}
        "data reference of a view" view
            {{view datareference connect %} {view datareference connected} - {view datareference disconnect %}}
            {znIBrowserView::ConnectDataReference znIBrowserView::GetConnectedDataReferences -
                znIBrowserView::ConnectDataReference}
            {-of {datareference names} -created 1 -again 1}
        list folder {{view list create %} {view list names} {view list current %} {view list delete %}}
            {znIBrowser::AddList znIBrowserViewItemFreeFolder::GetLists znIBrowserViewItemFreeFolder::GetLists
                znIBrowser::RemoveList}
            {-of {datasource simple names}}
        window view {{window create %} {window names} {window current %} {window delete}}
            {znIBrowser::CreateWindowAccess znIBrowserWindowAccessList::GetWindowAccesses
                znIBrowserWindowAccessList::FindWindowAccess znIBrowser::DeleteWindowAccess}
            {-stays 1}
        "window part" window
            {{window part create %} {window part names} {window part current %} {window part delete}}
            {znIBrowser::CreateWindowPart znIBrowserWindowAccess::GetWindowParts
                znIBrowserWindowAccess::FindWindowPart znIBrowser::DeleteWindowPart}
            {-stays 1}
        listener window {{window listener connect %} {window listener names} - {window listener disconnect %}}
            {znIBrowserWindowAccess::AddListener znIBrowserWindowAccess::GetListenerNames -
                znIBrowserWindowAccess::DeleteListener}
            {-created 1}
        "GUI map" none {{window map create %} {window map names} {window map current %} {window map delete}}
            {znIBrowser::CreateGuiMap znIBrowserGuiMapList::GetGuiMaps znIBrowserGuiMapList::FindGuiMap
                znIBrowser::DeleteGuiMap}
            {-again 1 -unheard 1}
        "popup menu" none
            {{view popupmenu create %} {view popupmenu names} {view popupmenu current %} {view popupmenu delete %}}
            {znIBrowser::CreatePopupMenu znIBrowserPopupMenuList::GetPopupMenus znIBrowserPopupMenuList::FindPopupMenu
                znIBrowser::DeletePopupMenu}
            {-stays 1}
        "popup menu item" menu
            {{view popupmenuitem create %} {view popupmenuitem names} {view popupmenuitem current %}
                {view popupmenuitem delete %}}
            {znIBrowserPopupMenu::CreateItem znIBrowserPopupMenu::GetItems znIBrowserPopupMenu::FindItem
                znIBrowserPopupMenu::DeleteItem}
            {-created 1 -stays 1}
        "data source" data
            {{datasource simple create %} {datasource simple names} {datasource simple current %}
                {datasource simple delete %}}
            {znIBrowserDataCtrl::CreateDataSourceSimple znIBrowserDataCtrl::GetDataSourcesSimple
                znIBrowserDataCtrl::FindDataSourceSimple znIBrowserDataCtrl::DeleteDataSourceSimple}
            {-again 1 -unheard 1 -stays 1}
        "data property" source
            {{datasource simple property create % 0 hostcheck} {datasource simple property names} -
                {datasource simple property delete %}}
            {znIBrowserDataSourceSimple::CreateDataPropertyScript znIBrowserDataSourceSimple::GetDataProperties -
                znIBrowserDataSourceSimple::DeleteDataProperty}
            {-again 1}
        criteria source
            {{datasource simple criteria create %} {datasource simple criteria names}
                {datasource simple criteria current %} {datasource simple criteria delete}}
            {znIBrowserDataSourceSimple::CreateCriteria znIBrowserCriteriaContainer::GetCriteria
                znIBrowserCriteriaContainer::FindCriteria znIBrowserDataSourceSimple::DeleteCriteria}
            {-again 1}
        "data operation" data {{dataoperation create %} {dataoperation names} {dataoperation current %} -}
            {znIBrowserDataCtrl::CreateDataOperation znIBrowserDataCtrl::GetDataOperations
                znIBrowserDataCtrl::FindDataOperation -}
            {-lasting 1}
        "hierarchical data source" data
            {{datasource hierarchical create % 0 0} {datasource hierarchical names}
                {datasource hierarchical current %} -}
            {znIBrowserDataCtrl::CreateDataSourceHierarchical znIBrowserDataCtrl::GetDataSourcesHierarchical
                znIBrowserDataCtrl::FindDataSourceHierarchical -}
            {-again 1 -unheard 1 -lasting 1}
    }

    # Operations whose reason for a refusal does not reach the words.
    variable silent {
        znIBrowser::ConnectDataSourceSimple znIBrowser::DisconnectDataSource znIBrowserViewColumn::CreateStyle
        znIBrowserDataSourceSimple::DeleteDataProperty znIBrowserDataCtrl::SetDataSourceSimpleCaption
        znIBrowserDataCtrl::SetDataSourceSimpleFilterCaption
    }

    # What is set and read: the place, the words, values as they are given and as they are read, and the operations
    # that set and read.
    variable flags {true true false false}
    variable settings {
        column {view column caption} {{Ä Ä} {Ä Ä} a a}
            znIBrowserViewColumn::SetCaption znIBrowserViewColumn::GetCaption
        column {view column italic} {enabled true disabled false}
            znIBrowserViewColumn::SetItalic znIBrowserViewColumn::GetItalic
        column {view column show} @flags znIBrowserViewColumn::SetShown znIBrowserViewColumn::GetShown
        column {view column sort} {enabled true disabled false}
            znIBrowserViewColumn::SetSorting znIBrowserViewColumn::GetSorting
        folder {view folder style} @flags znIBrowser::SetFreeFolderStyle znIBrowser::GetFreeFolderStyle
        folder {view group children} @flags znIBrowser::SetFreeFolderGroupLeafs znIBrowser::GetFreeFolderGroupLeafs
        folder {view folder empty} @flags
            znIBrowser::SetFreeFolderShowEmptyFolders znIBrowserViewItemFreeFolder::GetShowEmptyFolders
        folder {empty show} @flags
            znIBrowser::SetFreeFolderShowEmptyContainers znIBrowserViewItemFreeFolder::GetShowEmptyContainers
        folder {view folder keepchildrenfoldersinorderascreated} @flags
            znIBrowser::SetFreeFolderKeepChildrenAsCreated znIBrowserViewItemFreeFolder::GetKeepChildrenAsCreated
        view {view filter string current} {hostcheck hostcheck {} {}}
            znIBrowserView::SetFilterString znIBrowserView::GetFilterString
        view {view filter option matchcase} @flags
            znIBrowserView::SetFilterMatchCase znIBrowserView::GetFilterMatchCase
        view {view filter option matchword} @flags
            znIBrowserView::SetFilterMatchWord znIBrowserView::GetFilterMatchWord
        view {view filter group} @flags znIBrowserView::SetGroupFilter znIBrowserView::GetGroupFilter
        window {window stripe} @flags znIBrowser::SetWindowStripeDisplay znIBrowserWindowAccess::GetStripeDisplay
        window {window background} {red red white white}
            znIBrowser::SetWindowBackgroundColor znIBrowserWindowAccess::GetBackgroundColor
        part {window part show} @flags znIBrowser::SetWindowPartShown znIBrowserWindowAccess::IsWindowPartShown
        item {view popupmenuitem caption} {{Ä Ä} {Ä Ä} a a}
            znIBrowserPopupMenuItem::SetCaption znIBrowserPopupMenuItem::GetCaption
        item {view popupmenuitem visible} @flags
            znIBrowserPopupMenuItem::SetVisible znIBrowserPopupMenuItem::GetVisible
        source {datasource simple caption} {{Ä Ä} {Ä Ä} a a}
            znIBrowserDataCtrl::SetDataSourceSimpleCaption znIBrowserDataSourceSimple::GetCaption
        source {datasource simple filtercaption} {{Ä Ä} {Ä Ä} a a}
            znIBrowserDataCtrl::SetDataSourceSimpleFilterCaption znIBrowserDataSourceSimple::GetFilterCaption
    }

    # What a host must refuse, with a reason: the place, the words, the operation, and why.
    variable refusals {
        column {view column justify hostcheck} znIBrowser::SetColumnJustify "there is no such justification"
        window {window listener disconnect hostcheck} znIBrowserWindowAccess::DeleteListener "there is no such listener"
    }
}

// Window parts: the frames into which a window is divided. Without a current part the top level is meant.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowPart.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

constexpr char noWindow[] = "Cannot get a handle to the current window";
constexpr char noWindowAccess[] = "Cannot get handle to window access";
constexpr char noPart[] = "Cannot get a handle to the current window part";
constexpr char noPartToMove[] = "Cannot get handle to current window part";

/// The parts under a part or, without one, those of the window.
std::vector<znIBrowserWindowPart*> PartsUnder(znIBrowserWindowPart* part, znIBrowserWindowAccess* window,
                                              bool recursive) {
    std::vector<znIBrowserWindowPart*> parts;
    if (part)
        part->GetChildParts(parts, recursive);
    else
        window->GetWindowParts(parts, recursive);
    return parts;
}

/// One line of the table of parts.
void AppendPartLine(const znBrowserManagerTcl& manager, znIBrowserWindowPart* part,
                    znIBrowserWindowAccess* window) {
    const auto append = [&manager](auto piece) { manager.AppendToBuff(piece, true, false); };
    append(part->GetName());
    append("\t\t");
    if (znIBrowserWindowPart* const parent = part->GetParent()) {
        append(parent->GetName());
    } else {
        append(window->GetName());
        append("(Root)");
        append(" ");
    }
    append("\t\t");
    append(" ");
    append(part->GetPosition());
    append("\t\t");
    append(part->GetFramePath());
    append("\n");
}

} // namespace

bool znBrowserManagerTcl::CreateWindowPart(const char* name, const char* parent) {
    const Operation operation(*this);
    if (!name) return false;
    if (!parent) parent = "";
    znIBrowserWindowAccess* const window = current_.windowAccess;
    if (!window) return operation.Fail(noWindow);
    if (window->FindWindowPart(name)) return operation.Fail({"Window part", name, " already exists"});
    if (*parent && !window->FindWindowPart(parent))
        return operation.Fail({"Window part", parent, " doesn't exists"});
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser || !browser->CreateWindowPart(window, name, parent)) return operation.FailWithHostError();
    // A new part of a posted window is filled by a script, which may have deleted the window.
    znIBrowserWindowPart* const part =
        current_.windowAccess == window ? window->FindWindowPart(name) : nullptr;
    if (!part) return false;
    SetCurrentWindowPartByPtr(part);
    UpdateCurrentEvent(part);
    return true;
}

bool znBrowserManagerTcl::DeleteWindowPart(const char* name) {
    const Operation operation(*this);
    if (!name) return false;
    znIBrowserWindowAccess* const window = current_.windowAccess;
    if (!window) return operation.Fail(noWindow);
    znIBrowserWindowPart* const part = window->FindWindowPart(name);
    if (!part) return operation.Fail({"Window part: ", name, " not found"});
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, part);
    znIBrowser* const browser = BrowserOf(*this);
    const auto deletion = [&] { return browser && browser->DeleteWindowPart(part); };
    if (!DeleteAndForget(*this, doomed, deletion)) return operation.FailWithHostError();
    if (current_.windowAccess != window) return true;
    const std::vector<znIBrowserWindowPart*> remaining = PartsUnder(nullptr, window, true);
    SetCurrentWindowPartByPtr(remaining.empty() ? nullptr : remaining.front());
    UpdateCurrentEvent(current_.windowPart);
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowPartByName(const char* name) {
    const Operation operation(*this);
    if (!name) return false;
    if (!current_.windowAccess) return operation.Fail(noWindowAccess);
    znIBrowserWindowPart* const part = current_.windowAccess->FindWindowPart(name);
    if (!part) return operation.Fail({"Cannot find window part : ", name});
    SetCurrentWindowPartByPtr(part);
    UpdateCurrentEvent(part);
    return true;
}

bool znBrowserManagerTcl::GetCurrentWindowPart(znString& out) {
    const Operation operation(*this);
    out = current_.windowPart ? current_.windowPart->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowPartParent(znIBrowserWindowPart* parent) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noPartToMove);
    if (!current_.windowPart)
        return operation.Fail("The current part is toplevel, and no parent can be assigned");
    current_.windowAccess->SetWindowPartParent(current_.windowPart, parent);
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentWindowPartParentByName(const char* name) {
    const Operation operation(*this);
    const bool movable = current_.windowAccess && current_.windowPart;
    znIBrowserWindowPart* const parent =
        movable && name ? current_.windowAccess->FindWindowPart(name) : nullptr;
    if (movable && name && !parent) return operation.Fail({"Cannot find window part : ", name});
    return SetCurrentWindowPartParent(parent);
}

bool znBrowserManagerTcl::GetCurrentWindowPartParent(znString& out) {
    const Operation operation(*this);
    out.clear();
    const char* name = nullptr;
    if (current_.windowPart) {
        znIBrowserWindowPart* const parent = current_.windowPart->GetParent();
        if (!parent) return true;
        name = parent->GetName();
    } else {
        if (!current_.windowAccess) return operation.Fail(noPartToMove);
        name = current_.windowAccess->GetName();
    }
    if (!name) return operation.Fail("The current part is toplevel, and no parent can be supplied");
    out = name;
    return true;
}

bool znBrowserManagerTcl::SetWindowPartCreateProc(const char* procedure, const char* argument) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail("Cannot attach the create proc to toplevel");
    current_.windowPart->SetCreateProc(procedure, argument);
    return GetState();
}

bool znBrowserManagerTcl::SetWindowPartPackProc(const char* procedure, const char* argument) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail("Cannot attach the pack proc to toplevel");
    current_.windowPart->SetPackProc(procedure, argument);
    return GetState();
}

bool znBrowserManagerTcl::SetWindowPartPosition(int position) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    znIBrowserWindowPart* const part = current_.windowPart;
    return (part && current_.windowAccess->SetWindowPartPosition(part, position)) || operation.Fail(noPart);
}

bool znBrowserManagerTcl::SetWindowPartShownState(bool shown) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail(noPart);
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser && browser->SetWindowPartShown(current_.windowPart, shown));
}

bool znBrowserManagerTcl::GetWindowPartShownState(znString& out) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail(noPart);
    znIBrowserWindowAccess* const window = current_.windowPart->GetWindowAccess();
    return operation.GiveBool(window && window->IsWindowPartShown(current_.windowPart), out);
}

bool znBrowserManagerTcl::GetWindowPartFramePath(znString& out) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail(noPart);
    out = current_.windowPart->GetFramePath();
    return true;
}

bool znBrowserManagerTcl::GetWindowPartNames(znString& out, bool recursive) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindowAccess);
    return NameList(EntryForm::Plain, ExtraBlanks::Between)
        .AddNames(PartsUnder(current_.windowPart, current_.windowAccess, recursive))
        .Give(*this, out);
}

bool znBrowserManagerTcl::GetWindowPartInfo(znString& out) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindowAccess);
    const auto parts = PartsUnder(current_.windowPart, current_.windowAccess, true);
    AppendToBuff("Part\t\t\t\tParent\t\t\tPosition\tFramePath\n", true, false);
    for (znIBrowserWindowPart* const part : parts) AppendPartLine(*this, part, current_.windowAccess);
    return operation.GiveBuffer(out);
}

bool znBrowserManagerTcl::GetWindowPartOperationNames(znString& out) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail(noPart);
    std::vector<znString> operations;
    znIBrowserWindowAccess* const window = current_.windowPart->GetWindowAccess();
    if (!window || !window->GetOperations(current_.windowPart, operations))
        return operation.Fail("Cannot get list of operations");
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddTexts(operations).Give(*this, out);
}

#include "model/find_request.h"

#include "model/view.h"

namespace znhost {

FindRequest::FindRequest(CallLog& log, znIBrowserWindowAccess& window, std::string name)
    : HostObject(log), window_(window), name_(std::move(name)) {}

znBrowserProperty* FindRequest::Find(std::string_view name) {
    for (znBrowserProperty& property : properties_) {
        if (property.name.View() == name) return &property;
    }
    return nullptr;
}

znBrowserProperty& FindRequest::AddProperty(const std::string& name) {
    if (znBrowserProperty* const known = Find(name)) return *known;
    znBrowserCriterion criterion;
    criterion.name = "value";
    criterion.type = ZNBROWSER_CRITERION_EQUAL_TO;
    criterion.value = "";
    criteria_.push_back(criterion);
    properties_.push_back({name, {&criteria_.back()}});
    return properties_.back();
}

const char* FindRequest::GetName() const {
    if (Refused("znIBrowserFindRequest::GetName")) return nullptr;
    return name_.c_str();
}

znIBrowserWindowAccess* FindRequest::GetWindowAccess() {
    if (Refused("znIBrowserFindRequest::GetWindowAccess")) return nullptr;
    return &window_;
}

void FindRequest::GetProperties(std::vector<znBrowserProperty*>& properties) {
    properties.clear();
    if (Refused("znIBrowserFindRequest::GetProperties")) return;
    for (znBrowserProperty& property : properties_) properties.push_back(&property);
}

znBrowserProperty* FindRequest::FindProperty(const char* name) {
    if (Refused("znIBrowserFindRequest::FindProperty", name) || !name) return nullptr;
    return Find(name);
}

ZNBROWSER_FIND_REQUEST_TYPE FindRequest::GetType() const {
    if (Refused("znIBrowserFindRequest::GetType")) return ZNBROWSER_FIND_REQUEST_UNKNOWN;
    return type_;
}

// ---- Of a view ----

bool View::AddFindRequestProperty(znIBrowserFindRequest* request, const char* name) {
    if (Refused("znIBrowserView::AddFindRequestProperty", request, name)) return false;
    if (!request) return Fail("There is no such find request");
    const std::string property = TextOf(name);
    if (property != Column::builtInName && !properties_.Find(property)) {
        return Fail("The view \"" + Name() + "\" has no property \"" + property + "\"");
    }
    static_cast<FindRequest&>(*request).AddProperty(property);
    return true;
}

} // namespace znhost

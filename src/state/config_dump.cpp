// The configuration kept in a state, as lines of text: eight sections, each with a heading.
#include "frame/operation.h"
#include "host/znIBrowserState.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

using State = znIBrowserState;

// What stands behind a name, by the kind of setting.
void AppendSetting(znString& line, bool value) {
    line += value ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
}

void AppendSetting(znString& line, const znString& value) { line += value; }

void AppendSetting(znString& line, const std::vector<znString>& values) {
    for (const znString& value : values) {
        line += value;
        line += ' ';
    }
}

void AppendSetting(znString& line, const State::Pairs& pairs) {
    for (const auto& [first, second] : pairs) {
        line += '(';
        line += first;
        line += ',';
        line += second;
        line += ") ";
    }
}

/// Appends a section. @return false, and nothing is appended, when the state cannot deliver it
template <class Setting>
bool AppendSection(std::vector<znString>& lines, const char* heading, State& state,
                   bool (State::*get)(std::map<znString, Setting>&)) {
    std::map<znString, Setting> settings;
    if (!(state.*get)(settings)) return false;
    lines.emplace_back(heading);
    for (const auto& [name, setting] : settings) {
        znString line = name;
        line += "   ";
        AppendSetting(line, setting);
        lines.push_back(std::move(line));
    }
    return true;
}

} // namespace

// A section that fails ends the dump without a message; the sections before it stay.
bool znBrowserManagerTcl::GetConfigData(std::vector<znString>& lines) {
    const Operation operation(*this);
    if (!current_.state) return operation.Fail("Cannot get handle to the current state");
    State& state = *current_.state;
    return AppendSection(lines, " Window Part(s)     Visibilty", state, &State::GetWindowPartVisibility) &&
           AppendSection(lines, " Tree Area Column(s)     Visibilty", state,
                         &State::GetTreeAreaColumnVisibility) &&
           AppendSection(lines, " Option(s)     Value", state, &State::GetOptions) &&
           AppendSection(lines, " Folder Name:     Tree Configured:", state, &State::GetFolderTrees) &&
           AppendSection(lines, " Folder Name:     List(s) Configured:", state, &State::GetFolderLists) &&
           AppendSection(lines, " View Property Name:     Types Mapped:", state,
                         &State::GetViewPropertyTypeMappings) &&
           AppendSection(lines, " GUI Map Name:     Types Mapped:", state, &State::GetGuiMapTypes) &&
           AppendSection(lines, " GUI Map Name:     Records Configured:", state, &State::GetGuiMapRecords);
}

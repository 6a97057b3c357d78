#include "example_host.h"

#include "base/tcl_values.h"
#include "znBrowserTclCommandTree.h"

#include <cstddef>

namespace {

constexpr const char* COMMAND = "znbrowsermanager";

std::vector<std::string> WordsOf(const std::string& command) {
    int count = 0;
    const char** elements = nullptr;
    if (Tcl_SplitList(nullptr, command.c_str(), &count, &elements) != TCL_OK) return {};
    std::vector<std::string> words(elements, elements + count);
    Tcl_Free(reinterpret_cast<char*>(elements));
    return words;
}

/// The word of the command, and of the host behind "app", that begins the line and is the longest.
/// @return how many words of the line it takes
std::size_t FindWord(const std::vector<std::string>& typed, KnownLine& known) {
    const bool app = typed.front() == "app";
    std::string all;
    std::size_t taken = 0;
    znBrowserTclCommand command;
    for (std::size_t count = 1; count <= typed.size(); ++count) {
        const std::vector<std::string> words(typed.begin(), typed.begin() + static_cast<long>(count));
        if (app) {
            all += (count == 1 ? "" : " ") + words.back();
            for (const auto& row : znhost::EmbeddedHost::GetAppCommands({words.begin() + 1, words.end()})) {
                if ("app " + row.words != all) continue;
                known.words = all;
                known.notation = row.arguments;
                taken = count;
            }
        } else if (znBrowserTclCommandTree::GetCommand(words, command)) {
            known.words += (count == 1 ? "" : " ") + command.word;
            known.notation = command.arguments;
            taken = count;
        }
    }
    return taken;
}

} // namespace

int ExampleHost::Run(const std::string& command, std::string& answer) const {
    const int code = Tcl_EvalEx(interp_.get(), command.c_str(), -1, TCL_EVAL_GLOBAL);
    answer = Tcl_GetString(Tcl_GetObjResult(interp_.get()));
    return code;
}

std::optional<KnownLine> Recognize(const std::string& command) {
    const std::vector<std::string> words = WordsOf(command);
    if (words.size() < 2 || words.front() != COMMAND) return std::nullopt;
    KnownLine known;
    const std::size_t taken = FindWord({words.begin() + 1, words.end()}, known);
    if (taken == 0) return std::nullopt;
    const auto arguments = words.begin() + 1 + static_cast<long>(taken);
    known.beginning.assign(words.begin(), arguments);
    known.arguments.assign(arguments, words.end());
    return known;
}

#include "line_editor.h"

#include "base/native.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cwchar>

namespace {

constexpr std::size_t SCREEN_WIDTH = 80;

/// The editor counts in characters of the locale, the text in bytes.
int CountCharacters(const std::string& text) {
    const std::size_t count = std::mbstowcs(nullptr, text.c_str(), 0);
    return static_cast<int>(count == static_cast<std::size_t>(-1) ? text.size() : count);
}

/// Prints the words below the line, in columns.
void ListWords(const std::vector<std::string>& choices) {
    std::vector<std::string> words;
    words.reserve(choices.size());
    std::size_t width = 0;
    for (const std::string& choice : choices) words.push_back(znhost::ToNative(choice));
    for (const std::string& word : words) width = std::max(width, word.size() + 2);
    const std::size_t columns = std::max<std::size_t>(1, SCREEN_WIDTH / width);
    for (std::size_t i = 0; i < words.size(); ++i) {
        std::printf("%s%-*s", i % columns ? "" : "\n", static_cast<int>(width), words[i].c_str());
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

LineEditor::LineEditor(Services services)
    : services_(std::move(services)), editor_(Edit().el_init("znbrowsersh", stdin, stdout, stderr)) {
    Edit().el_set(editor_, EL_CLIENTDATA, this);
    Edit().el_set(editor_, EL_PROMPT, ShowPrompt);
    Edit().el_set(editor_, EL_GETCFN, ReadCharacter);
    Edit().el_set(editor_, EL_SIGNAL, 1);
    Edit().el_set(editor_, EL_HIST, Edit().history, history_.Get());
    Edit().el_set(editor_, EL_EDITOR, "emacs");
    // the narrow form would copy both texts and never release them
    Edit().el_wset(editor_, EL_ADDFN, L"zn-complete", L"Complete a command word or a name", Complete);
    Edit().el_set(editor_, EL_BIND, "^I", "zn-complete", nullptr);
    Edit().el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    Edit().el_source(editor_, nullptr);
}

LineEditor::~LineEditor() { Edit().el_end(editor_); }

LineEditor::Outcome LineEditor::Read(const std::string& prompt, std::string& line) {
    prompt_ = prompt;
    int count = 0;
    Edit().el_set(editor_, EL_PREP_TERM,
                  1); // before the prompt shows: what is typed at it must not meet the old mode
    const char* const text = Edit().el_gets(editor_, &count);
    if (!text || count <= 0) return count < 0 ? Outcome::Interrupted : Outcome::End;
    const std::string typed(text, static_cast<std::size_t>(count));
    history_.Add(typed.substr(0, typed.find_last_not_of('\n') + 1));
    line = znhost::FromNative(typed);
    return Outcome::Line;
}

LineEditor& LineEditor::Self(EditLine* editor) {
    void* self = nullptr;
    Edit().el_get(editor, EL_CLIENTDATA, &self);
    return *static_cast<LineEditor*>(self);
}

char* LineEditor::ShowPrompt(EditLine* editor) { return Self(editor).prompt_.data(); }

// Gives one character, -1 when interrupted, 0 at the end. Bytes that are no character of the locale count
// as one each, so that a stray byte does not end the session.
int LineEditor::ReadCharacter(EditLine* editor, wchar_t* character) {
    char bytes[MB_LEN_MAX];
    std::size_t count = 0;
    while (count < sizeof bytes) {
        if (!Self(editor).services_.wait()) return -1;
        const ssize_t got = read(STDIN_FILENO, bytes + count, 1);
        if (got < 0 && (errno == EINTR || errno == EAGAIN)) continue;
        if (got <= 0) return 0;
        ++count;
        std::mbstate_t state{};
        const std::size_t used = std::mbrtowc(character, bytes, count, &state);
        if (used == static_cast<std::size_t>(-2)) continue;
        if (used != static_cast<std::size_t>(-1)) return 1;
        break;
    }
    *character = static_cast<unsigned char>(bytes[0]);
    return 1;
}

// Types what is certain of the word; lists what it may be when that is nothing new.
unsigned char LineEditor::Complete(EditLine* editor, int) {
    const LineInfo* const info = Edit().el_line(editor);
    const std::string typed(info->buffer, info->cursor);
    const Completion completion = Self(editor).services_.complete(znhost::FromNative(typed));
    if (completion.choices.empty()) return CC_REFRESH_BEEP;
    if (!completion.replacement.empty()) {
        Edit().el_deletestr(editor, CountCharacters(znhost::ToNative(completion.replaced)));
        return Edit().el_insertstr(editor, znhost::ToNative(completion.replacement).c_str()) == 0 ? CC_REFRESH
                                                                                                  : CC_ERROR;
    }
    ListWords(completion.choices);
    return CC_REDISPLAY;
}

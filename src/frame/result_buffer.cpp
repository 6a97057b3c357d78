// The result buffer.
#include "frame/text_piece.h"
#include "frame/word_text.h"
#include "znBrowserManagerTcl.h"

#include <cstdio>
#include <cstring>

using namespace znlayer;

namespace {

/// Copies a word, which is short nearly always: a call of the library's copy would cost more than the copy.
/// @return behind the copy
inline char* CopyBytes(std::string_view word, char* to) {
    const char* const from = word.data();
    const std::size_t size = word.size();
    if (size - 4 < 4) {
        std::memcpy(to, from, 4);
        std::memcpy(to + size - 4, from + size - 4, 4);
    } else if (size - 8 <= 8) {
        std::memcpy(to, from, 8);
        std::memcpy(to + size - 8, from + size - 8, 8);
    } else if (size > 16) {
        std::memcpy(to, from, size);
    } else if (size) {
        to[0] = from[0];
        to[size / 2] = from[size / 2];
        to[size - 1] = from[size - 1];
    }
    return to + size;
}

/// Words, one behind the other. Most commands are as long as the last one: then they are written into its
/// place without being measured before.
class JoinedWords {
public:
    explicit JoinedWords(znString& text)
        : text_(text), begin_(text.Data()), at_(begin_), end_(begin_ + text.size()) {}

    bool IsEmpty() const { return at_ == begin_; }
    void AddFirst(std::string_view word) {
        MakeRoom(word.size());
        at_ = CopyBytes(word, at_);
    }
    void AddNext(std::string_view word) {
        MakeRoom(word.size() + 1);
        *at_++ = ' ';
        at_ = CopyBytes(word, at_);
    }
    const znString& Finish() {
        if (at_ != end_) text_.Resize(static_cast<std::size_t>(at_ - begin_));
        return text_;
    }

private:
    void MakeRoom(std::size_t bytes) {
        if (static_cast<std::size_t>(end_ - at_) < bytes) Grow(bytes);
    }
    void Grow(std::size_t bytes) {
        const auto written = static_cast<std::size_t>(at_ - begin_);
        const std::size_t size = 2 * (written + bytes);
        begin_ = text_.Resize(size);
        at_ = begin_ + written;
        end_ = begin_ + size;
    }

    znString& text_;
    char* begin_;
    char* at_;
    char* end_;
};

} // namespace

bool znBrowserManagerTcl::_AppendToBuff(const char* text, bool quoted, bool separate,
                                        bool braceIfBlank) const {
    return AppendPiece(buffer_, text, quoted, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuff(const char* text, bool separate, bool braceIfBlank) const {
    return _AppendToBuff(text, false, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuff(int value, bool separate, bool braceIfBlank) const {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    return AppendToBuff(text, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuffWithQuotes(const char* text, bool separate, bool braceIfBlank) const {
    return _AppendToBuff(text, true, separate, braceIfBlank);
}

bool znBrowserManagerTcl::NewAppendToBuff(const char* text, bool separate, bool braceIfBlank,
                                          bool quoted) const {
    return _AppendToBuff(text, quoted, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToListBuff(const char* text) const {
    if (!text) return false;
    buffer_ += " {";
    buffer_ += text;
    buffer_ += '}';
    return true;
}

void znBrowserManagerTcl::ResetBuff() const { buffer_.clear(); }
void znBrowserManagerTcl::_ResetBuff() const { ResetBuff(); }
const char* znBrowserManagerTcl::GetBuff() const { return buffer_.c_str(); }

/// The words, joined by blanks. Missing ones leave no blank, nor do empty ones at the beginning.
void znBrowserManagerTcl::SetCommand(int objc, Tcl_Obj* const objv[]) {
    JoinedWords joined(ErrCommand());
    Tcl_Obj* const* next = objv;
    Tcl_Obj* const* const end = objv + objc;
    for (; next != end && joined.IsEmpty(); ++next) joined.AddFirst(WordText(*next));
    for (; next != end; ++next) {
        if (*next) joined.AddNext(WordText(*next));
    }
    SetErrCommand(joined.Finish());
    ResetBuff();
}

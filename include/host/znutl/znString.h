// The text type of the host's utility library, as far as the scripting layer uses it.
#ifndef ZN_STRING_H
#define ZN_STRING_H

#include <cstddef>
#include <string>
#include <string_view>

/// A text that may be absent. A default-constructed string, and one made from a null pointer, has no
/// text storage (`IsNull()`); a string made from "" has storage and is empty. Both count as `empty()`
/// and read as "". Texts may hold any byte, NUL included.
class znString {
public:
    /// A string without text storage.
    znString() = default;
    /// A copy of the text, up to its NUL; a null pointer gives a string without text storage.
    znString(const char* text) : null_(text == nullptr), text_(text ? text : "") {}
    /// A copy of the text, with storage even when it is empty.
    znString(std::string_view text) : null_(false), text_(text) {}
    /// The same.
    znString(const std::string& text) : null_(false), text_(text) {}
    /// Takes the text over, with storage even when it is empty.
    znString(std::string&& text) noexcept : null_(false), text_(std::move(text)) {}

    /// True when the string has no text storage.
    bool IsNull() const { return null_; }
    /// True when there is no byte, with text storage or without.
    bool empty() const { return text_.empty(); }
    /// The number of bytes, NULs inside included.
    std::size_t size() const { return text_.size(); }

    /// The text, NUL-terminated; "" for a string without storage, never null. Owned by the string.
    const char* c_str() const { return text_.c_str(); }
    /// The text, or null for a string without storage. Owned by the string.
    const char* GetText() const { return null_ ? nullptr : text_.c_str(); }
    /// The whole text, valid until the next change of the string.
    std::string_view View() const { return text_; }
    /// The same as a standard string, valid as long as this one.
    const std::string& Str() const { return text_; }

    /// Makes the string empty, with storage; the capacity is kept for the next text.
    void clear() {
        null_ = false;
        text_.clear();
    }
    /// The bytes, `size()` of them, to be changed in place; the string has text storage afterwards.
    char* Data() {
        null_ = false;
        return text_.data();
    }
    /// Makes the text `size` bytes long, for the caller to fill; what it had stays as far as there is room.
    /// @return where they begin
    char* Resize(std::size_t size) {
        null_ = false;
        text_.resize(size);
        return text_.data();
    }
    /// Replaces the text, reusing the storage; a null pointer leaves the string without text storage.
    znString& operator=(const char* text) {
        null_ = text == nullptr;
        const std::string_view given = text ? std::string_view(text) : std::string_view();
        if (text_.empty()) // appending to nothing costs half of what replacing does
            text_.append(given);
        else
            text_.assign(given);
        return *this;
    }
    /// Replaces the text, reusing the storage. `text` may lie inside this string.
    znString& assign(std::string_view text) {
        null_ = false;
        text_.assign(text);
        return *this;
    }
    /// Appends; a null pointer appends nothing.
    znString& operator+=(const char* text) { return text ? *this += std::string_view(text) : *this; }
    /// Appends; the string has text storage afterwards. `text` may lie inside this string.
    znString& operator+=(std::string_view text) {
        null_ = false;
        text_.append(text);
        return *this;
    }
    /// Appends another string; it may be this one.
    znString& operator+=(const znString& other) { return *this += other.View(); }
    /// Appends one byte.
    znString& operator+=(char character) {
        null_ = false;
        text_.push_back(character);
        return *this;
    }

    /// Texts compare byte by byte; a string without storage equals an empty one.
    friend bool operator==(const znString& a, const znString& b) { return a.text_ == b.text_; }
    friend bool operator!=(const znString& a, const znString& b) { return a.text_ != b.text_; }
    friend bool operator<(const znString& a, const znString& b) { return a.text_ < b.text_; }

private:
    bool null_ = true;
    std::string text_;
};

#endif

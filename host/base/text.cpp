#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <tcl.h>

namespace znhost {

namespace {

constexpr std::string_view nulForTcl("\xC0\x80", 2);

unsigned char ByteAt(std::string_view text, std::size_t place) {
    return place < text.size() ? static_cast<unsigned char>(text[place]) : 0;
}

bool Continues(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// How many bytes the first character has, a surrogate like any other; 0 where none begins.
std::size_t LengthOfFirst(std::string_view text) {
    const unsigned char first = ByteAt(text, 0);
    const unsigned char second = ByteAt(text, 1);
    if (first < 0x80) return text.empty() ? 0 : 1;
    if (first < 0xC2 || first > 0xF4 || !Continues(second)) return 0;
    if (first < 0xE0) return 2;
    if (!Continues(ByteAt(text, 2))) return 0;
    if (first < 0xF0) return first == 0xE0 && second < 0xA0 ? 0 : 3; // longer than it needs to be
    if (first == 0xF0 ? second < 0x90 : first == 0xF4 && second > 0x8F) return 0;
    return Continues(ByteAt(text, 3)) ? 4 : 0;
}

char32_t Decode(std::string_view text, std::size_t length) {
    constexpr unsigned char marks[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t character = ByteAt(text, 0) & marks[length];
    for (std::size_t i = 1; i < length; ++i) character = character << 6 | (ByteAt(text, i) & 0x3F);
    return character;
}

bool IsHigh(char32_t character) { return character >= 0xD800 && character <= 0xDBFF; }
bool IsLow(char32_t character) { return character >= 0xDC00 && character <= 0xDFFF; }
/// What stands for a byte that belongs to no character.
bool IsByte(char32_t character) { return character >= 0xDC80 && character <= 0xDCFF; }

/// The character of three bytes at the place; 0 when there is none.
char32_t ThreeBytesAt(std::string_view text, std::size_t place) {
    if (ByteAt(text, place) < 0xE0 || ByteAt(text, place) > 0xEF) return 0;
    text.remove_prefix(place);
    return LengthOfFirst(text) == 3 ? Decode(text, 3) : 0;
}

char32_t Join(char32_t high, char32_t low) { return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00); }

void Append(std::string& text, char32_t character) {
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80) return put(character);
    if (character < 0x800) {
        put(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            put(0xE0 | character >> 12);
        } else {
            put(0xF0 | character >> 18);
            put(0x80 | (character >> 12 & 0x3F));
        }
        put(0x80 | (character >> 6 & 0x3F));
    }
    put(0x80 | (character & 0x3F));
}

/// As Tcl holds it.
void AppendForTcl(std::string& text, char32_t character) {
    if (character == 0) {
        text += nulForTcl;
    } else if (character < 0x10000) {
        Append(text, character);
    } else {
        Append(text, 0xD800 + ((character - 0x10000) >> 10));
        Append(text, 0xDC00 + (character & 0x3FF));
    }
}

/// How many bytes from the start hold nothing but ASCII, without NUL: whole words of eight of them.
std::size_t PlainWords(std::string_view text) {
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t highs = 0x8080808080808080;
    std::size_t place = 0;
    for (std::uint64_t word = 0; place + sizeof word <= text.size(); place += sizeof word) {
        std::memcpy(&word, text.data() + place, sizeof word);
        if (((word - ones) | word) & highs) break; // a NUL, or a byte beyond ASCII
    }
    return place;
}

// ---- To the database ----

/// How many bytes from the start are the same in both forms.
std::size_t SameFromTcl(std::string_view text) {
    std::size_t place = PlainWords(text);
    for (; place < text.size(); ++place) {
        const unsigned char byte = ByteAt(text, place);
        if (byte == 0xC0 && ByteAt(text, place + 1) == 0x80) break;
        if (byte == 0xED && ByteAt(text, place + 1) >= 0xA0) break;
    }
    return place;
}

/// Takes what the text begins with to the database. @return how many bytes that was
std::size_t TakeFromTcl(std::string_view text, std::string& out) {
    if (text.substr(0, nulForTcl.size()) == nulForTcl) {
        out += '\0';
        return nulForTcl.size();
    }
    const char32_t first = ThreeBytesAt(text, 0);
    const char32_t second = IsHigh(first) ? ThreeBytesAt(text, 3) : 0;
    if (IsLow(second)) {
        Append(out, Join(first, second));
        return 6;
    }
    if (IsByte(first)) {
        out += static_cast<char>(first & 0xFF);
        return 3;
    }
    out += text.front();
    return 1;
}

// ---- From the database ----

std::size_t SameToTcl(std::string_view text) {
    std::size_t place = PlainWords(text);
    while (place < text.size()) {
        const unsigned char byte = ByteAt(text, place);
        const std::size_t length = LengthOfFirst(text.substr(place));
        const bool isSurrogate = byte == 0xED && ByteAt(text, place + 1) >= 0xA0;
        if (byte == 0 || length == 0 || length == 4 || isSurrogate) break;
        place += length;
    }
    return place;
}

void AppendBytes(std::string& out, std::string_view bytes) {
    for (const char byte : bytes) Append(out, 0xDC00 + static_cast<unsigned char>(byte));
}

/// First surrogates without a second one that the text ends with must not find one in what follows: their
/// bytes are given one by one instead.
void SplitHighs(std::string& out) {
    std::size_t start = out.size();
    while (start >= 3 && IsHigh(ThreeBytesAt(out, start - 3))) start -= 3;
    if (start == out.size()) return;
    const std::string highs = out.substr(start);
    out.resize(start);
    AppendBytes(out, highs);
}

std::size_t TakeToTcl(std::string_view text, std::string& out) {
    const std::size_t length = LengthOfFirst(text);
    const char32_t character = Decode(text, length);
    const bool belongs = length > 0 && !IsByte(character);
    if (!belongs || IsLow(character)) SplitHighs(out);
    if (belongs) {
        AppendForTcl(out, character);
        return length;
    }
    AppendBytes(out, text.substr(0, 1));
    return 1;
}

template <class Take>
std::string_view Convert(std::string_view text, std::size_t same, std::string& storage, Take take) {
    if (same == text.size()) return text;
    std::string converted(text.substr(0, same)); // the text may lie in the storage
    converted.reserve(text.size());
    while (same < text.size()) same += take(text.substr(same), converted);
    storage = std::move(converted);
    return storage;
}

} // namespace

std::string_view FromTcl(std::string_view text, std::string& storage) {
    return Convert(text, SameFromTcl(text), storage, TakeFromTcl);
}

std::string_view ToTcl(std::string_view text, std::string& storage) {
    return Convert(text, SameToTcl(text), storage, TakeToTcl);
}

std::string FromTcl(std::string_view text) {
    std::string storage;
    return std::string(FromTcl(text, storage));
}

std::string ToTcl(std::string_view text) {
    std::string storage;
    return std::string(ToTcl(text, storage));
}

// ---- Texts in Tcl's form ----

char32_t TakeCharacter(std::string_view& text) {
    std::size_t length = LengthOfFirst(text);
    char32_t character = length ? Decode(text, length) : ByteAt(text, 0);
    if (text.substr(0, nulForTcl.size()) == nulForTcl) {
        character = 0;
        length = nulForTcl.size();
    } else if (IsHigh(character) && IsLow(ThreeBytesAt(text, 3))) {
        character = Join(character, ThreeBytesAt(text, 3));
        length = 6;
    }
    text.remove_prefix(length ? length : 1);
    return character;
}

char32_t LastCharacter(std::string_view text) {
    std::size_t start = text.size() - 1;
    while (start > 0 && text.size() - start < 4 && Continues(ByteAt(text, start))) --start;
    text.remove_prefix(start);
    return TakeCharacter(text);
}

char32_t Folded(char32_t character) {
    if (character < 0x80) return character >= 'A' && character <= 'Z' ? character + ('a' - 'A') : character;
    return character < 0x10000 ? Tcl_UniCharToLower(static_cast<int>(character)) : character;
}

const std::string& Fold(std::string_view text, std::string& folded) {
    folded.resize(text.size());
    std::size_t place = 0;
    for (; place < text.size() && ByteAt(text, place) < 0x80; ++place)
        folded[place] = static_cast<char>(Folded(ByteAt(text, place)));
    folded.resize(place);
    text.remove_prefix(place);
    while (!text.empty()) AppendForTcl(folded, Folded(TakeCharacter(text)));
    return folded;
}

std::string Fold(std::string_view text) {
    std::string folded;
    Fold(text, folded);
    return folded;
}

/// Before each number stands how many digits it has, without zeros in front; numbers of equal value are told
/// apart by these zeros, which stand behind it all.
std::string NaturalKey(std::string_view text) {
    constexpr std::size_t longest = 0xFF;
    const auto isDigit = [&text](std::size_t place) {
        return ByteAt(text, place) >= '0' && ByteAt(text, place) <= '9';
    };
    std::string key;
    std::string zeros;
    for (std::size_t place = 0; place < text.size();) {
        if (!isDigit(place)) {
            key += text[place++];
            continue;
        }
        const std::size_t start = place;
        while (text[place] == '0' && isDigit(place + 1)) ++place;
        const std::size_t first = place;
        while (place < text.size() && isDigit(place)) ++place;
        // A sign that is ordered as digits are among other characters.
        key += '0';
        for (std::size_t length = place - first; length >= longest; length -= longest) key += '\xFF';
        key += static_cast<char>((place - first) % longest);
        key += text.substr(first, place - first);
        zeros += static_cast<char>(std::min<std::size_t>(first - start, longest));
    }
    return key + '\0' + zeros;
}

bool BeginsWithFolded(std::string_view text, std::string_view beginning) {
    while (!beginning.empty()) {
        if (text.empty() || Folded(TakeCharacter(text)) != Folded(TakeCharacter(beginning))) return false;
    }
    return true;
}

std::string_view Beginning(std::string_view text, std::size_t most) {
    if (text.size() <= most) return text;
    for (int i = 0; i < 3 && most > 0 && Continues(ByteAt(text, most)); ++i) --most;
    // The halves of one character for Tcl.
    if (most >= 3 && IsHigh(ThreeBytesAt(text, most - 3))) most -= 3;
    return text.substr(0, most);
}

std::string Cut(std::string_view text, std::size_t most) {
    return std::string(Beginning(text, most)) + (text.size() > most ? "…" : "");
}

} // namespace znhost

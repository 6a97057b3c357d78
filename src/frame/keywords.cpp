#include "znBrowserTclKeywords.h"

#include "frame/ascii.h"
#include "frame/keyword_table.h"

#include <array>
#include <cstdint>
#include <iterator>

using namespace znlayer;

namespace {

using keyword_table::rows;

constexpr std::uint64_t Byte(char character, std::size_t position) {
    return std::uint64_t{static_cast<unsigned char>(character)} << (8 * position);
}

/// Four bytes of a text, or eight, as a number; written so that the compiler makes one load of them.
constexpr std::uint64_t Load4(const char* text) {
    return Byte(text[0], 0) | Byte(text[1], 1) | Byte(text[2], 2) | Byte(text[3], 3);
}
constexpr std::uint64_t Load8(const char* text) {
    return Load4(text) | Byte(text[4], 4) | Byte(text[5], 5) | Byte(text[6], 6) | Byte(text[7], 7);
}

/// Less than eight bytes, by loads that may overlap: no loop, and nothing read beyond the end.
constexpr std::uint64_t LoadShort(const char* text, std::size_t size) {
    if (size >= 4) return Load4(text) | Load4(text + size - 4) << (8 * (size - 4));
    if (size == 0) return 0;
    return Byte(text[0], 0) | Byte(text[size / 2], size / 2) | Byte(text[size - 1], size - 1);
}

/// The bits that tell small letters from capitals, in eight bytes.
constexpr std::uint64_t caseBits = 0x2020202020202020;

/// A word without its letter case: its first eight bytes, its last eight, its size. Up to sixteen bytes that
/// is the whole word. Setting the bit that tells small letters from capitals is all the folding there is: no
/// byte but the two forms of a letter becomes that letter, and the table has words of letters only.
struct Key {
    std::uint64_t head = 0;
    std::uint64_t tail = 0;
    std::uint32_t size = 0;

    constexpr Key() = default;
    constexpr explicit Key(std::string_view word) : size(static_cast<std::uint32_t>(word.size())) {
        const char* const text = word.data();
        head = (word.size() < 8 ? LoadShort(text, word.size()) : Load8(text)) | caseBits;
        tail = word.size() <= 8 ? head : Load8(text + word.size() - 8) | caseBits;
    }

    constexpr bool operator==(const Key& other) const {
        return head == other.head && tail == other.tail && size == other.size;
    }
    constexpr std::size_t Hash() const {
        return static_cast<std::size_t>(((head ^ (tail << 1)) * 0x9E3779B97F4A7C15) >> 53);
    }
};

/// The table as an open-addressing hash, by key. No two different words of the table have one key.
struct KeywordHash {
    struct Slot {
        Key key;
        std::uint16_t number = 0; ///< the row, counted from 1; 0 in a free slot
        bool debugOnly = false;
        Keyword keyword = Keyword::Unknown;
    };
    static constexpr std::size_t slotCount = 2048;
    std::array<Slot, slotCount> slots{};

    constexpr KeywordHash() {
        std::uint16_t number = 0;
        for (const KeywordRow& row : rows) {
            ++number;
            const Key key(row.spelling);
            const std::size_t position = Find(key);
            if (slots[position].number) continue; // an earlier row has taken this word
            slots[position] = {key, number, row.IsDebugOnly(), row.keyword};
        }
    }

    /// The position of the slot with this key, or of the free one that ends the search for it.
    constexpr std::size_t Find(const Key& key) const {
        std::size_t position = key.Hash();
        while (slots[position].number && !(slots[position].key == key)) position = (position + 1) % slotCount;
        return position;
    }
};

constexpr bool OnlyLetters() {
    for (const KeywordRow& row : rows) {
        for (const char character : row.spelling) {
            if (FoldAscii(character) < 'a' || FoldAscii(character) > 'z') return false;
        }
    }
    return true;
}
static_assert(OnlyLetters(), "Key folds nothing but letters");

constexpr KeywordHash keywordHash;

/// The keyword of a slot whose key a word of more than sixteen bytes has, if the word fits between the
/// key's ends too. Kept out of line: few words are that long, and inlined it would slow down all others.
[[gnu::noinline]] Keyword CheckMiddle(const KeywordHash::Slot& slot, std::string_view word) {
    if (!slot.number) return Keyword::Unknown;
    const char* const spelling = rows[slot.number - 1].spelling.data();
    for (std::size_t i = 8; i + 8 < word.size(); i += 8) {
        if ((Load8(word.data() + i) ^ Load8(spelling + i)) & ~caseBits) return Keyword::Unknown;
    }
    return slot.keyword;
}

constexpr std::size_t KeywordCount() {
    std::size_t count = 0;
    for (const KeywordRow& row : rows) {
        if (count <= static_cast<std::size_t>(row.keyword)) count = static_cast<std::size_t>(row.keyword) + 1;
    }
    return count;
}

constexpr std::array<const char*, KeywordCount()> PlainWords() {
    std::array<const char*, KeywordCount()> words{};
    for (const KeywordRow& row : rows) {
        if (row.IsPlainWord()) words[static_cast<std::size_t>(row.keyword)] = row.spelling.data();
    }
    return words;
}

constexpr std::array<const char*, KeywordCount()> plainWords = PlainWords();

constexpr bool EachHasOnePlainWord() {
    for (const KeywordRow& row : rows) {
        std::size_t count = 0;
        for (const KeywordRow& other : rows) count += other.keyword == row.keyword && other.IsPlainWord();
        if (count != 1) return false;
    }
    return true;
}
static_assert(EachHasOnePlainWord(), "help and completion show the one word of a keyword that is no alias");

/// Words of a small enumeration; the position is the value, and 0 is "unknown".
constexpr const char* criterionWords[] = {
    znBrowserTclKeywords::KEYWORD_UNKNOWN, znBrowserTclKeywords::KEYWORD_MORE_THAN,
    znBrowserTclKeywords::KEYWORD_LESS_THAN, znBrowserTclKeywords::KEYWORD_EQUAL_TO};
constexpr const char* findRequestWords[] = {
    znBrowserTclKeywords::KEYWORD_UNKNOWN, znBrowserTclKeywords::KEYWORD_ALL,
    znBrowserTclKeywords::KEYWORD_NEXT, znBrowserTclKeywords::KEYWORD_PREVIOUS};

template <class Enum, std::size_t count>
Enum ValueOf(const char* const (&words)[count], const znString& word) {
    for (std::size_t value = 1; value < count; ++value) {
        if (word.View() == words[value]) return static_cast<Enum>(value);
    }
    return static_cast<Enum>(0);
}

template <std::size_t count>
const char* WordOf(const char* const (&words)[count], int value) {
    const auto position = static_cast<std::size_t>(value);
    return position < count ? words[position] : words[0];
}

} // namespace

ZNBROWSER_TCLAPI_KEYWORD znBrowserTclKeywords::GetZnBrowserTclApiEnum(const char* word) const {
    return word ? GetZnBrowserTclApiEnum(std::string_view(word)) : Keyword::Unknown;
}

ZNBROWSER_TCLAPI_KEYWORD znBrowserTclKeywords::GetZnBrowserTclApiEnum(std::string_view text) const {
    const KeywordHash::Slot& slot = keywordHash.slots[keywordHash.Find(Key(text))];
    if (slot.debugOnly && !debugMode_) return Keyword::Unknown;
    return text.size() <= 16 ? slot.keyword : CheckMiddle(slot, text);
}

const char* znBrowserTclKeywords::GetSpelling(ZNBROWSER_TCLAPI_KEYWORD keyword) {
    const auto value = static_cast<std::size_t>(keyword);
    return value < plainWords.size() ? plainWords[value] : nullptr;
}

ZNBROWSER_CRITERION_TYPE znBrowserTclKeywords::GetCriterionTypeEnum(const znString& word) const {
    return ValueOf<ZNBROWSER_CRITERION_TYPE>(criterionWords, word);
}

znString znBrowserTclKeywords::GetCriterionTypeString(ZNBROWSER_CRITERION_TYPE type) const {
    return WordOf(criterionWords, type);
}

ZNBROWSER_FIND_REQUEST_TYPE znBrowserTclKeywords::GetFindRequestTypeEnum(const znString& word) const {
    return ValueOf<ZNBROWSER_FIND_REQUEST_TYPE>(findRequestWords, word);
}

znString znBrowserTclKeywords::GetFindRequestTypeString(ZNBROWSER_FIND_REQUEST_TYPE type) const {
    return WordOf(findRequestWords, type);
}

#include "model/column_filter.h"

#include <algorithm>
#include <iterator>

namespace znhost {

namespace {

struct KindRow {
    const char* word;
    ColumnFilter::Kind kind;
    std::size_t values;
};

constexpr KindRow kinds[] = {
    {"none", ColumnFilter::Kind::None, 0},         {"null", ColumnFilter::Kind::Null, 0},
    {"contains", ColumnFilter::Kind::Contains, 1}, {"equals", ColumnFilter::Kind::Equals, 1},
    {"between", ColumnFilter::Kind::Between, 2},
};

} // namespace

std::vector<std::string> WordsOf(const ColumnFilter& filter) {
    const auto row = std::find_if(std::begin(kinds), std::end(kinds), [&filter](const KindRow& candidate) {
        return candidate.kind == filter.kind;
    });
    std::vector<std::string> words{row->word, filter.value, filter.to};
    words.resize(1 + row->values);
    return words;
}

bool ReadColumnFilter(const std::vector<std::string>& words, ColumnFilter& filter) {
    const auto row = std::find_if(std::begin(kinds), std::end(kinds), [&words](const KindRow& candidate) {
        return !words.empty() && words[0] == candidate.word;
    });
    if (row == std::end(kinds) || words.size() != 1 + row->values) return false;
    filter = {row->kind, row->values > 0 ? words[1] : std::string(),
              row->values > 1 ? words[2] : std::string()};
    return true;
}

} // namespace znhost

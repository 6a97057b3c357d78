#include "store/wanted_values.h"

#include "host/znutl/znString.h"

#include <cmath>
#include <optional>

namespace znhost {

WantedValues::WantedValues(const std::vector<znString>& values, bool numbers) : isNumeric_(numbers) {
    for (const znString& value : values) {
        texts_.insert(value.Str());
        const std::optional<double> number = NumberOfText(value.View());
        if (!number || std::isnan(*number)) continue;
        numbers_.insert(*number);
        isInfinite_ = isInfinite_ || std::isinf(*number);
    }
}

bool WantedValues::Has(std::string_view text) const {
    if (texts_.count(text)) return true;
    const std::optional<double> number = isNumeric_ ? NumberOfText(text) : std::nullopt;
    return number && !std::isnan(*number) && numbers_.count(*number);
}

std::vector<std::vector<Value>> WantedValues::Texts() const {
    std::vector<std::vector<Value>> runs;
    for (const std::string& text : texts_) runs.push_back({text});
    return runs;
}

// A real number is written with fifteen digits, so that many numbers have one text. The ranges are somewhat
// wider than that.
std::vector<std::vector<Value>> WantedValues::Ranges() const {
    std::vector<std::vector<Value>> runs;
    for (const double number : numbers_) {
        const double margin = std::abs(number) * 1e-13;
        runs.push_back({number - margin, number + margin});
    }
    return runs;
}

// A value is a text, a number or a blob. Blobs read as the texts that their bytes are; an index keeps them
// together behind all other values, and hardly a column with an index has any: all are looked at.
std::vector<WantedValues::Lookup> WantedValues::LookupsIn(const TableColumn& column) const {
    if (!column.indexed || isInfinite_ || (isNumeric_ && !column.numeric)) return {};
    const std::string name = Database::Quoted(column.name);
    std::vector<Lookup> lookups{{name + " = ?", Texts()}, {"unlikely(" + name + " >= x'')", {{}}}};
    if (!column.text) lookups.push_back({name + " BETWEEN ? AND ?", Ranges()});
    return lookups;
}

} // namespace znhost

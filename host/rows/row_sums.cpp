#include "rows/row_sums.h"

#include <utility>

namespace znhost {

namespace {

std::size_t LowestBit(std::size_t number) { return number & (~number + 1); }

} // namespace

void RowSums::Assign(std::vector<std::int64_t> sizes) {
    tree_ = std::move(sizes);
    for (std::size_t i = 1; i <= tree_.size(); ++i) {
        const std::size_t next = i + LowestBit(i);
        if (next <= tree_.size()) tree_[next - 1] += tree_[i - 1];
    }
}

void RowSums::AssignOnes(std::size_t count) {
    tree_.resize(count);
    for (std::size_t i = 1; i <= count; ++i) tree_[i - 1] = static_cast<std::int64_t>(LowestBit(i));
}

void RowSums::Clear() {
    tree_.clear();
    tree_.shrink_to_fit();
}

void RowSums::Append(std::int64_t size) {
    const std::size_t i = tree_.size() + 1;
    tree_.push_back(Before(i - 1) - Before(i - LowestBit(i)) + size);
}

void RowSums::Add(std::size_t place, std::int64_t delta) {
    for (std::size_t i = place + 1; i <= tree_.size(); i += LowestBit(i)) tree_[i - 1] += delta;
}

std::int64_t RowSums::Before(std::size_t place) const {
    std::int64_t sum = 0;
    for (std::size_t i = place; i; i -= LowestBit(i)) sum += tree_[i - 1];
    return sum;
}

std::size_t RowSums::Find(std::int64_t distance) const {
    std::size_t step = 1;
    while (step * 2 <= tree_.size()) step *= 2;
    std::size_t place = 0;
    for (; step; step /= 2) {
        if (place + step <= tree_.size() && tree_[place + step - 1] <= distance) {
            place += step;
            distance -= tree_[place - 1];
        }
    }
    return place;
}

} // namespace znhost

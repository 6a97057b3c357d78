#include "base/shared_rows.h"

#include "base/row_set.h"

namespace znhost {

SharedRows::SharedRows(std::unique_ptr<RowPages> pages, std::size_t size, Rows first)
    : list_(std::make_shared<List>()) {
    first.resize(size, RowPages::nowhere);
    list_->rows = std::move(first);
    list_->pages = std::move(pages);
    list_->isRead.resize((size + pageSize - 1) / pageSize, false);
    list_->isRead.front() = true;
}

RowPages::Page SharedRows::List::PageAt(std::size_t page) const {
    RowPages::Page wanted;
    wanted.first = page * pageSize;
    wanted.count = std::min(pageSize, rows.size() - wanted.first);
    wanted.size = rows.size();
    const std::size_t end = wanted.first + wanted.count;
    if (wanted.first > 0 && rows[wanted.first - 1] != RowPages::nowhere)
        wanted.before = rows[wanted.first - 1];
    if (end < rows.size() && rows[end] != RowPages::nowhere) wanted.behind = rows[end];
    return wanted;
}

void SharedRows::List::ReadPage(std::size_t page) {
    isRead[page] = true; // what cannot be read is not asked for again and again
    const RowPages::Page wanted = PageAt(page);
    Rows read = pages->Read(wanted);
    read.resize(wanted.count, RowPages::nowhere);
    std::copy(read.begin(), read.end(), rows.begin() + static_cast<std::ptrdiff_t>(wanted.first));
}

/// The list keeps its length, which others go by; it is read anew when it has another one by now.
void SharedRows::List::ReadAll() {
    Rows all = pages->ReadAll();
    all.resize(rows.size(), RowPages::nowhere);
    rows = std::move(all);
    pages.reset();
}

void SharedRows::List::Take(const std::vector<RowPages::Run>& runs) {
    for (const RowPages::Run& run : runs) {
        const std::size_t first = std::min(run.first, rows.size());
        const std::size_t count = std::min(run.rows.size(), rows.size() - first);
        for (std::size_t i = 0; i < count; ++i) {
            if (rows[first + i] == RowPages::nowhere) rows[first + i] = run.rows[i];
        }
    }
}

bool SharedRows::Continues(const SharedRows& other) const {
    const auto isSame = [](std::int64_t now, std::int64_t then) {
        return now == then || then == RowPages::nowhere;
    };
    const Rows& then = other.Known();
    return std::equal(Known().begin(), Known().end(), then.begin(), then.end(), isSame);
}

void SharedRows::Follow(const SharedRows& other) const {
    if (!IsPaged()) return;
    std::vector<RowPages::Run> runs;
    bool goesOn = false;
    for (const std::int64_t row : other.Known()) {
        if (row != RowPages::nowhere && !goesOn) runs.emplace_back();
        goesOn = row != RowPages::nowhere;
        if (goesOn) runs.back().rows.push_back(row);
    }
    if (!runs.empty()) list_->Take(list_->pages->Find(runs));
}

void SharedRows::Look(const Rows& rows) const {
    constexpr std::size_t many = 1000; // each is looked for by itself
    if (!IsPaged() || rows.empty()) return;
    if (rows.size() > many) return list_->ReadAll();
    RowSet wanted;
    wanted.Add(rows);
    for (const std::int64_t row : Known())
        if (row != RowPages::nowhere) wanted.Remove(row);
    std::vector<RowPages::Run> runs;
    if (!wanted.IsEmpty()) {
        for (const std::int64_t row : list_->pages->InOrder(wanted.ToVector())) runs.push_back({0, {row}});
    }
    if (!runs.empty()) list_->Take(list_->pages->Find(runs));
}

} // namespace znhost

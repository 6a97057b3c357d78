#include "base/shared_rows.h"

namespace znhost {

SharedRows::SharedRows(std::unique_ptr<RowPages> pages, std::size_t size, Rows first)
    : list_(std::make_shared<List>()) {
    first.resize(size, RowPages::nowhere);
    list_->rows = std::move(first);
    list_->pages = std::move(pages);
    list_->isRead.resize((size + pageSize - 1) / pageSize, false);
    list_->isRead.front() = true;
}

void SharedRows::List::ReadPage(std::size_t page) {
    isRead[page] = true; // what cannot be read is not asked for again and again
    RowPages::Page wanted;
    wanted.first = page * pageSize;
    wanted.count = std::min(pageSize, rows.size() - wanted.first);
    wanted.size = rows.size();
    const std::size_t end = wanted.first + wanted.count;
    if (wanted.first > 0 && rows[wanted.first - 1] != RowPages::nowhere)
        wanted.before = rows[wanted.first - 1];
    if (end < rows.size() && rows[end] != RowPages::nowhere) wanted.behind = rows[end];
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

bool SharedRows::Continues(const SharedRows& other) const {
    if (size() != other.size()) return false;
    if (!other.IsPaged()) return Get() == other.Get();
    for (std::size_t first = 0; first < size(); first += pageSize) {
        if (!other.list_->isRead[first / pageSize]) continue;
        for (std::size_t place = first; place < std::min(first + pageSize, size()); ++place) {
            if ((*this)[place] != other.Known()[place]) return false;
        }
    }
    return true;
}

} // namespace znhost

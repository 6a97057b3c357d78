// The selection sets, against plain ones.
#include "host/model/selection.h"
#include "host/znBrowserDataItems.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace znhost {
namespace {

using Rows = std::vector<std::int64_t>;

Rows RowsOf(const RowSet& set) {
    Rows rows;
    set.ForEach([&](std::int64_t row) { rows.push_back(row); });
    return rows;
}

TEST(RowSet, BehavesLikeAPlainSet) {
    std::mt19937_64 random(42);
    for (const std::int64_t spread : {100LL, 5000LL, 1LL << 62}) {
        RowSet set;
        std::set<std::int64_t> plain;
        const auto anyRow = [&] {
            return static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(spread)) - spread / 2;
        };
        for (int step = 0; step < 2000; ++step) {
            const std::size_t before = plain.size();
            const bool add = random() % 2 == 0;
            Rows rows(random() % 4 == 0 ? 30 : 1);
            for (std::int64_t& row : rows) row = plain.empty() || random() % 2 ? anyRow() : *plain.begin();
            for (const std::int64_t row : rows) add ? void(plain.insert(row)) : void(plain.erase(row));
            const bool changed = rows.size() == 1 ? (add ? set.Add(rows[0]) : set.Remove(rows[0]))
                                                  : (add ? set.Add(rows) : set.Remove(rows));
            ASSERT_EQ(changed, plain.size() != before);
            ASSERT_EQ(set.Size(), plain.size());
            ASSERT_EQ(set.Has(rows[0]), plain.count(rows[0]) == 1);
        }
        EXPECT_EQ(RowsOf(set), Rows(plain.begin(), plain.end()));
    }
}

TEST(RowSet, HoldsTheOutermostRowNumbers) {
    RowSet set;
    const Rows rows{INT64_MIN, -1, 0, INT64_MAX};
    EXPECT_TRUE(set.Add(Rows(rows.rbegin(), rows.rend())));
    EXPECT_EQ(RowsOf(set), rows);
}

TEST(Selection, AnnouncesEachChangeOnceAndNothingElse) {
    int announced = 0;
    Selection selection([&] { ++announced; });
    auto* const one = reinterpret_cast<znIBrowserDataSourceSimple*>(0x10);
    auto* const two = reinterpret_cast<znIBrowserDataSourceSimple*>(0x20);
    znBrowserDataItems items;
    for (const std::int64_t row : {5, 3, 4}) items.Append(one, row);
    items.Append(two, 3);
    items.Append(one, 9);
    EXPECT_TRUE(selection.Select(items));
    EXPECT_FALSE(selection.Select(one, 3));
    EXPECT_FALSE(selection.Select(nullptr, 3));
    EXPECT_FALSE(selection.Deselect(two, Rows{4}));
    EXPECT_EQ(announced, 1);

    znBrowserDataItems selected;
    selection.AppendTo(selected);
    EXPECT_EQ(selected.rows, (Rows{3, 4, 5, 9, 3}));
    ASSERT_EQ(selected.runs.size(), 2U);
    EXPECT_EQ(selected.runs[1].source, two);

    EXPECT_TRUE(selection.Clear(one));
    EXPECT_FALSE(selection.IsSelected({one, 4}));
    EXPECT_TRUE(selection.IsSelected({two, 3}));
    EXPECT_TRUE(selection.Replace(items));
    EXPECT_EQ(selection.Size(), 5U);
    EXPECT_TRUE(selection.Clear());
    EXPECT_FALSE(selection.Clear());
    EXPECT_EQ(announced, 4);
}

} // namespace
} // namespace znhost

// The row structure under random changes: positions, indices and the order of rows must agree at all times.
#include "rows/row_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

namespace znhost {
namespace {

RowContent Items() {
    RowContent content;
    content.kind = RowKind::Item;
    return content;
}

/// What the tree should show, by a plain walk over its parts.
void Walk(RowNode& node, std::uint32_t depth, std::vector<std::pair<Row, std::uint32_t>>& rows) {
    for (const TreePart& part : node.parts) {
        if (part.node) {
            rows.push_back({RowTree::RowOf(*part.node), depth});
            Walk(*part.node, depth + 1, rows);
            continue;
        }
        for (std::uint32_t i = 0; i < part.block->rows.size(); ++i) {
            rows.push_back({RowTree::ItemAt(*part.block, i), depth});
            if (rows.back().first.node) Walk(*rows.back().first.node, depth + 1, rows);
        }
    }
}

void Check(RowTree& tree) {
    std::vector<std::pair<Row, std::uint32_t>> expected;
    Walk(tree.Root(), 0, expected);
    ASSERT_EQ(tree.Count(), static_cast<std::int64_t>(expected.size()));
    Row next = tree.First();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& [row, depth] = expected[i];
        const auto position = static_cast<std::int64_t>(i);
        for (const Row& found : {tree.At(position), tree.Find(row.Index()), next}) {
            ASSERT_TRUE(found.node == row.node && found.block == row.block && found.position == row.position)
                << i;
        }
        ASSERT_EQ(tree.PositionOf(row), position);
        ASSERT_EQ(row.Depth(), depth);
        next = tree.Next(next);
    }
    ASSERT_FALSE(next);
}

class RandomChanges : public ::testing::TestWithParam<unsigned> {
protected:
    std::size_t Below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }

    std::vector<std::int64_t> Rows() {
        std::vector<std::int64_t> rows;
        for (std::int64_t row = 0; row < 12; ++row) {
            if (Below(2)) rows.push_back(row * (GetParam() % 2 ? 1000 : 1)); // far apart, or close together
        }
        std::shuffle(rows.begin(), rows.end(), random_);
        return rows;
    }

    void Fill(RowNode& node) {
        std::vector<TreePart> parts;
        for (std::size_t i = Below(4); i; --i) {
            parts.push_back(Below(2) ? RowTree::MakeNode({}) : RowTree::MakeBlock(Items(), Rows()));
        }
        tree_.SetParts(node, std::move(parts));
    }

    /// Keeps some of the parts, in another order, between new ones.
    void Refill(RowNode& node) {
        std::vector<TreePart> parts;
        for (TreePart& part : node.parts) {
            if (Below(3)) parts.push_back(std::move(part));
        }
        if (Below(2)) parts.push_back(RowTree::MakeBlock(Items(), Rows()));
        std::shuffle(parts.begin(), parts.end(), random_);
        tree_.SetParts(node, std::move(parts));
    }

    /// The rows that stay keep their indices, and those that went have none.
    void ChangeRows(RowBlock& block) {
        std::map<std::int64_t, std::uint32_t> before;
        for (std::uint32_t i = 0; i < block.rows.size(); ++i) before[block.rows[i]] = block.IndexAt(i);
        const std::size_t way = Below(4);
        const auto place = static_cast<std::uint32_t>(Below(block.rows.size()));
        if (way == 0 && block.rows.size() > 1) {
            tree_.RemoveRow(block, place);
        } else if (way == 1 && !before.count(77)) {
            tree_.InsertRow(block, Below(2) ? place : static_cast<std::uint32_t>(block.rows.size()), 77);
        } else {
            tree_.SetRows(block, Rows());
        }
        for (std::uint32_t i = 0; i < block.rows.size(); ++i) {
            const auto known = before.find(block.rows[i]);
            if (known == before.end()) continue;
            EXPECT_EQ(block.IndexAt(i), known->second);
            before.erase(known);
        }
        for (const auto& gone : before) EXPECT_FALSE(tree_.Find(gone.second));
    }

    void ChangeSomething() {
        if (!tree_.Count()) return Fill(tree_.Root());
        const Row row = tree_.At(static_cast<std::int64_t>(Below(static_cast<std::size_t>(tree_.Count()))));
        if (row.IsItem() && Below(4) == 0) return ChangeRows(*row.block);
        if (!row.IsExpanded()) return Fill(row.IsItem() ? tree_.NodeOf(row) : *row.node);
        if (Below(3)) return Refill(*row.node);
        const std::uint32_t index = row.Index();
        tree_.Collapse(*row.node);
        EXPECT_FALSE(tree_.Find(index).IsExpanded());
    }

    /// Rows that went are found by no index any more.
    void CheckIndices() {
        std::int64_t found = 0;
        for (std::uint32_t index = 1; index < 100'000; ++index) found += bool(tree_.Find(index));
        EXPECT_EQ(found, tree_.Count());
    }

    std::mt19937 random_{GetParam()};
    RowTree tree_;
};

TEST_P(RandomChanges, LeaveThePlacesOfAllRowsRight) {
    Fill(tree_.Root());
    for (int i = 0; i < 300; ++i) {
        ASSERT_NO_FATAL_FAILURE(ChangeSomething());
        ASSERT_NO_FATAL_FAILURE(Check(tree_));
        if (tree_.Count() > 400) tree_.Collapse(tree_.Root());
    }
    CheckIndices();
}

TEST_P(RandomChanges, CanBeCountedAtTheEnd) {
    Fill(tree_.Root());
    for (int i = 0; i < 100; ++i) {
        const Row row = tree_.First();
        {
            const RowTree::ManyChanges many(tree_, tree_.Root());
            if (!row) {
                Refill(tree_.Root());
            } else if (!row.IsExpanded()) {
                Fill(row.IsItem() ? tree_.NodeOf(row) : *row.node);
            } else {
                tree_.Collapse(*row.node);
            }
            if (row && Below(3) == 0) Refill(tree_.Root());
        }
        ASSERT_NO_FATAL_FAILURE(Check(tree_));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomChanges, ::testing::Range(1u, 13u));

TEST(RowTree, TakesAChainOfAnyDepthApart) {
    RowTree tree;
    RowNode* node = &tree.Root();
    {
        const RowTree::ManyChanges many(tree, tree.Root());
        for (int depth = 0; depth < 200000; ++depth) {
            std::vector<TreePart> parts;
            parts.push_back(RowTree::MakeBlock(Items(), std::vector<std::int64_t>{depth}));
            tree.SetParts(*node, std::move(parts));
            node = &tree.NodeOf(RowTree::ItemAt(*node->parts[0].block, 0));
        }
    }
    EXPECT_EQ(tree.Count(), 200000);
    EXPECT_EQ(tree.At(199999).Depth(), 199999U);
    tree.Collapse(tree.Root());
    EXPECT_EQ(tree.Count(), 0);
}

TEST(TkIndices, AreFoundAgainAndReusedLast) {
    TkIndices indices;
    RowNode node;
    constexpr std::uint32_t most = 0xFFFFFF00;
    const std::uint32_t first = indices.Take(10, {&node, nullptr, 100});
    const std::uint32_t second = indices.Take(5, {&node, nullptr, 0});
    EXPECT_EQ(indices.Find(first + 9).slot, 109U);
    EXPECT_EQ(indices.Find(second).slot, 0U);
    indices.Release(first);
    EXPECT_FALSE(indices.Find(first).node);
    EXPECT_NE(indices.Take(10, {&node, nullptr, 0}), first);
    EXPECT_EQ(indices.Take(most, {&node, nullptr, 0}) != 0, true);
    EXPECT_EQ(indices.Take(10, {&node, nullptr, 0}) != 0, true);
    EXPECT_EQ(indices.Take(most, {&node, nullptr, 0}), 0U);
    EXPECT_EQ(indices.Take(300, {&node, nullptr, 0}), 0U);
    EXPECT_FALSE(indices.Find(0).node);
}

} // namespace
} // namespace znhost

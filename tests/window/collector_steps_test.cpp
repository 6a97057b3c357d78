// Steps of the collector: whatever was done, taking it back gives what was before, row by row.
#include "tests/window/collector_model.h"

#include <functional>
#include <random>

namespace {

using Lines = std::vector<std::string>;

/// Someone at work with two windows, the collector and the database.
class Worker {
public:
    explicit Worker(unsigned seed) : random_(seed) {}

    /// Does something, and keeps how all looked before each step.
    void Act() {
        const std::size_t steps = model_.Steps();
        const Lines look = model_.Look();
        const unsigned choice = Any(20);
        if (choice < 4) {
            ActInWindow(model_.Window(Any(2) == 0));
        } else if (choice < 6) {
            EditData();
        } else if (choice < 8 && steps > 0) {
            TakeBack();
            return;
        } else if (choice < 9) {
            model_.Collector().Restore(&model_.View());
        } else if (choice < 14) {
            Collect();
        } else {
            model_.Collector().ChangeDisplay(&model_.View(), ZNBROWSER_COLLECTOR_DISPLAY(Any(7)));
        }
        if (model_.Steps() > steps) before_.push_back(look);
        ASSERT_EQ(before_.size(), model_.Steps());
    }
    /// Takes the last step back and compares all with what was before it.
    void TakeBack() {
        ASSERT_TRUE(model_.Collector().Undo(&model_.View()));
        ASSERT_EQ(model_.Look(changed_), Without(before_.back()));
        before_.pop_back();
    }
    bool HasSteps() const { return !before_.empty(); }

private:
    unsigned Any(unsigned count) { return static_cast<unsigned>(random_() % count); }
    znIBrowserDataSourceSimple* AnyKind() {
        const auto sources = model_.View().ShowableSources();
        return Any(2) ? nullptr : sources[Any(static_cast<unsigned>(sources.size()))];
    }
    void ActInWindow(znhost::Window& window) {
        const std::int64_t count = window.Rows().Count();
        std::vector<std::uint32_t> rows;
        for (unsigned i = Any(3); i < 3 && count > 0; ++i)
            rows.push_back(window.Rows().IndicesFrom(Any(static_cast<unsigned>(count)), 1)[0]);
        const unsigned choice = Any(4);
        if (choice == 0) window.SelectionUpdate(rows);
        if (choice == 1) window.SetStatePos(static_cast<int>(Any(9)));
        for (const std::uint32_t row : rows) {
            if (choice == 2) window.Rows().Collapse(row);
            if (choice == 3) window.Rows().Expand(row);
        }
    }
    /// A part comes, or one that is neither the first nor the last of its assembly goes; and with it,
    /// perhaps, the list of parts.
    void EditData() {
        const std::string number = std::to_string(Any(6) * 3 + 2);
        if (Any(2)) {
            model_.Eval("zn app sql model {delete from part where id = " + number + "}");
            changed_.insert("p" + number);
        } else {
            model_.Eval("zn app sql model {insert into part (owner, name) values (" +
                        std::to_string(Any(6) + 1) + ", 'new')}");
            changed_.insert("new");
        }
        changed_.insert({"parts", "part"});
    }
    void Collect() {
        const auto change = ZNBROWSER_COLLECT(Any(4));
        const auto from = ZNBROWSER_COLLECT_FROM(Any(3));
        switch (Any(5)) {
        case 0:
            model_.Collector().CollectByValues(
                &model_.View(), Any(2) ? ZNBROWSER_COLLECT_SET : ZNBROWSER_COLLECT_ADD,
                model_.View().Properties().First(),
                {znString(std::to_string(Any(18))), znString(std::to_string(Any(18)))}, AnyKind());
            break;
        case 1: model_.Collector().ClearCollection(&model_.View()); break;
        default: model_.Collector().Collect(&model_.View(), change, from, AnyKind());
        }
    }
    /// What was before, without the rows that have gone since.
    Lines Without(const Lines& lines) const {
        Lines left;
        for (const std::string& line : lines) {
            const std::size_t first = line.find_first_not_of(' ');
            if (!changed_.count(line.substr(first, line.find(' ', first) - first))) left.push_back(line);
        }
        return left;
    }

    CollectorModel model_;
    std::mt19937 random_;
    std::vector<Lines> before_; ///< of each step
    std::set<std::string> changed_;
};

TEST(CollectorSteps, AnythingDoneIsTakenBackExactly) {
    constexpr unsigned sequences = 10000;
    constexpr unsigned perModel = 100; ///< sequences go on where the ones before them were taken back to
    unsigned done = 0;
    for (unsigned seed = 0; done < sequences && !testing::Test::HasFatalFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Worker worker(seed);
        for (unsigned i = 0; i < perModel && !testing::Test::HasFatalFailure(); ++i, ++done) {
            std::mt19937 random(seed * perModel + i);
            for (unsigned long left = random() % 9; left > 0; --left) worker.Act();
            while (worker.HasSteps() && !testing::Test::HasFatalFailure()) worker.TakeBack();
        }
    }
}

TEST(CollectorSteps, WindowsScrollToTheFirstCollectedRowWhenTheyAreTold) {
    for (const bool autofit : {false, true}) {
        CollectorModel model;
        model.Collector().SetAutofit(autofit);
        model.Eval("zn collector selection set byprop number 17 18; zn collector showhide show\n"
                   "zn collector showonly");
        const int position = model.Window(true).ScrollPosition();
        EXPECT_EQ(model.Window(true).Rows().Read(position, 1).at(0).text, autofit ? "p17" : "structure");
        model.Collector().Undo(&model.View());
        EXPECT_EQ(model.Window(true).ScrollPosition() > position, autofit)
            << "the first action did nothing, but scroll; above the row more are shown again";
    }
}

} // namespace

// Memory runs out at the n-th allocation of our own code, library and host: nothing crashes, nothing is lost,
// the interpreter goes on. This file replaces the program's operator new; it fails only while a sweep has
// armed it.
#include "tests/faults/sweep.h"
#include "tests/frame/fake_application.h"

#include <cstdlib>
#include <iostream>
#include <new>
#include <tuple>

namespace {

/// What operator new does. No other thread allocates while a sweep runs.
struct Allocations {
    bool armed = false;
    bool andFollowing = false;
    std::size_t left = 0; ///< allocations before the one that fails
    bool failed = false;
    long living = 0; ///< allocated and not freed

    bool Fails() {
        if (!armed || (left > 0 && left-- > 0) || (failed && !andFollowing)) return false;
        failed = true;
        return true;
    }
} allocations;

} // namespace

// Not inlined: g++ would take new and free for a pair that does not match.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocations.Fails()) throw std::bad_alloc();
    void* const memory = std::malloc(size ? size : 1);
    if (!memory) throw std::bad_alloc();
    ++allocations.living;
    return memory;
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
    if (memory) --allocations.living;
    std::free(memory);
}

// The other forms come to the same two: a sanitizer would bring its own, which do not go with these.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept { return operator new(size, tag); }
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { operator delete(memory); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { operator delete(memory); }

namespace {

/// A section of the script, "opening" for what stands before each; and whether what follows fails, too.
using SweptSection = std::tuple<std::string, bool>;

class AllocationSweep : public testing::TestWithParam<SweptSection> {
protected:
    /// Runs the section and lets its n-th allocation fail; 0: none.
    /// @return false when there were fewer
    bool FailAllocation(std::size_t n) {
        SCOPED_TRACE("allocation " + std::to_string(n));
        const auto& [section, andFollowing] = GetParam();
        const bool isOpening = section == "opening";
        const std::string script = isOpening ? "run $opening" : "run [dict get $sections " + section + "]";
        const long before = allocations.living;
        {
            SweepRun run(script_);
            if (!isOpening) run.Open();
            allocations = {n > 0, andFollowing, n - 1, false, allocations.living};
            const int code = Tcl_EvalEx(script_.Interp(), script.c_str(), -1, TCL_EVAL_GLOBAL);
            allocations.armed = false;
            EXPECT_EQ(code, TCL_OK) << Tcl_GetStringResult(script_.Interp());
            run.Check();
        }
        // The run without a failure makes what is kept for good.
        EXPECT_TRUE(n == 0 || allocations.living == before)
            << allocations.living - before << " allocations were lost";
        return allocations.failed;
    }

    SweepScript script_;
};

// With "from then on", every third allocation is enough: what follows it fails anyway.
TEST_P(AllocationSweep, AllocationsFailAndTheCommandGoesOn) {
    const std::size_t step = std::get<bool>(GetParam()) ? 3 : 1;
    std::size_t failed = 0;
    FailAllocation(0);
    for (std::size_t n = 1; FailAllocation(n); n += step) ++failed;
    std::cout << failed << " allocations failed, each in a run of its own\n";
    EXPECT_GT(failed, 100u / step) << "the script no longer allocates";
}

std::vector<std::string> OpeningAndSections() {
    std::vector<std::string> names = SweepScript().Sections();
    names.emplace_back("opening");
    return names;
}

INSTANTIATE_TEST_SUITE_P(, AllocationSweep,
                         testing::Combine(testing::ValuesIn(OpeningAndSections()), testing::Bool()),
                         [](const auto& each) {
                             return std::get<0>(each.param) +
                                    (std::get<1>(each.param) ? "FromThenOn" : "Once");
                         });

TEST(AllocationFault, AManagerThatIsNotFinishedLeavesNoCommand) {
    bool finished = false;
    for (std::size_t n = 0; !finished; ++n) {
        FakeApplication application;
        allocations = {true, false, n, false, allocations.living};
        try {
            znBrowserManagerTcl manager(&application);
            finished = true;
            allocations.armed = false;
            manager.DeleteBrowserManagerCollectorTcl();
        } catch (const std::bad_alloc&) {
            allocations.armed = false;
            EXPECT_EQ(application.Eval("info commands znbrowsermanager"), "") << "allocation " << n;
        }
    }
}

} // namespace

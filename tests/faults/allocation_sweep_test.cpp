// Memory runs out at the n-th allocation of our own code, library and host: nothing crashes, nothing is lost,
// the interpreter goes on. This file replaces the program's operator new; it fails only while a sweep has
// armed it.
#include "tests/faults/allocations.h"
#include "tests/faults/sweep.h"
#include "tests/frame/fake_application.h"

#include <cstdlib>
#include <iostream>
#include <new>

Allocations allocations;

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

/// What one sweep lets fail.
struct Swept {
    std::string section;       ///< of the script; "opening" for what stands before each
    bool andFollowing = false; ///< what follows it fails, too
    std::size_t first = 1;     ///< the first allocation to fail
    std::size_t step = 1;      ///< how many later the next one, in a run of its own
    std::string part;          ///< its name, when the sweep is one of several over the section
};

class AllocationSweep : public testing::TestWithParam<Swept> {
protected:
    /// Runs the section and lets its n-th allocation fail; 0: none.
    /// @return false when there were fewer
    bool FailAllocation(std::size_t n) {
        SCOPED_TRACE("allocation " + std::to_string(n));
        const bool isOpening = GetParam().section == "opening", isShown = GetParam().section == "display";
        const std::string script = isOpening ? "run $opening"
                                   : isShown ? "show $display"
                                             : "run [dict get $sections " + GetParam().section + "]";
        const long before = allocations.living;
        {
            SweepRun run(script_);
            if (isShown) run.ShowWindows();
            if (!isOpening) run.Open();
            allocations = {n > 0, GetParam().andFollowing, n - 1, false, allocations.living};
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

TEST_P(AllocationSweep, AllocationsFailAndTheCommandGoesOn) {
    std::size_t failed = 0;
    FailAllocation(0);
    for (std::size_t n = GetParam().first; FailAllocation(n); n += GetParam().step) ++failed;
    std::cout << failed << " allocations failed, each in a run of its own\n";
    EXPECT_GT(failed, 100u / GetParam().step) << "the script no longer allocates";
}

/// Each allocation fails once where the program is as it is shipped. With the sanitizers, which take seven
/// times as long, every third does.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t everyWhich = 3;
#else
constexpr std::size_t everyWhich = 1;
#endif

/// With "from then on", every third allocation is enough: what follows it fails anyway. The rows allocate by
/// far the most: their sweep comes in parts, which can run side by side.
std::vector<Swept> OpeningAndSections() {
    std::vector<std::string> names = SweepScript().Sections();
    names.emplace_back("opening");
    std::vector<Swept> sweeps;
    for (const std::string& name : names) {
        sweeps.push_back({name, true, 1, 3, ""});
        const std::size_t parts = name == "rows" ? 6 : 1;
        for (std::size_t part = 1; part <= parts; ++part)
            sweeps.push_back({name, false, part, parts * everyWhich, parts > 1 ? std::to_string(part) : ""});
    }
    return sweeps;
}

std::string NameOfSweep(const testing::TestParamInfo<Swept>& sweep) {
    return sweep.param.section + (sweep.param.andFollowing ? "FromThenOn" : "Once") + sweep.param.part;
}

INSTANTIATE_TEST_SUITE_P(, AllocationSweep, testing::ValuesIn(OpeningAndSections()), NameOfSweep);

// Opening a window takes its time, so only some of the allocations fail. Tk itself does not take part: its
// memory is not operator new's.
INSTANTIATE_TEST_SUITE_P(OnDisplay, AllocationSweep,
                         testing::Values(Swept{"display", false, 1, 499, ""},
                                         Swept{"display", true, 1, 997, ""}),
                         NameOfSweep);

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

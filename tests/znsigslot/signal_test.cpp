#include "host/znsigslot/znSignal.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using Signal = znSignal<single_threaded, const std::string&>;
using Listener = znListener<single_threaded>;

/// A listener that notes its name and what it is told.
struct Noter : Listener {
    std::string* notes = nullptr;
    void Note(const std::string& text) { *notes += text; }
};

class SignalTest : public testing::Test {
protected:
    std::string notes;
    std::unique_ptr<Signal> signal = std::make_unique<Signal>();
    Listener listener;

    Signal::Function Note(const char* text) {
        return [this, text](const std::string&) { notes += text; };
    }
    std::string Emitted() {
        notes.clear();
        signal->Emit("x");
        return notes;
    }
};

TEST_F(SignalTest, CallsSlotsInTheOrderOfConnection) {
    Listener other;
    Noter noter;
    noter.notes = &notes;
    EXPECT_EQ(Emitted(), "");
    signal->Connect(listener, Note("a"));
    signal->Connect(noter, &Noter::Note);
    signal->Connect(other, Note("b"));
    signal->Connect(listener, Note("c"));
    signal->Connect(listener, Signal::Function());
    EXPECT_EQ(Emitted(), "axbc");
    signal->Disconnect(listener);
    EXPECT_FALSE(signal->IsConnected(listener));
    EXPECT_EQ(Emitted(), "xb");
}

TEST_F(SignalTest, IgnoresEmissionsWhileBlockedOrEmitting) {
    signal->Connect(listener, [this](const std::string& text) {
        EXPECT_TRUE(signal->IsEmitting());
        notes += text;
        (*signal)("again");
    });
    EXPECT_EQ(Emitted(), "x");
    signal->Block();
    EXPECT_EQ(Emitted(), "");
    signal->Block(false);
    EXPECT_EQ(Emitted(), "x");
    EXPECT_FALSE(signal->IsEmitting());
}

TEST_F(SignalTest, ConnectingDuringAnEmissionCountsFromTheNext) {
    signal->Connect(listener, [this](const std::string&) {
        notes += "a";
        signal->Connect(listener, Note("b"));
    });
    EXPECT_EQ(Emitted(), "a");
    EXPECT_EQ(Emitted(), "ab");
    EXPECT_EQ(Emitted(), "abb");
}

TEST_F(SignalTest, DisconnectingDuringAnEmissionCountsAtOnceAndReleasesAfterIt) {
    Listener other;
    const auto held = std::make_shared<int>(1);
    signal->Connect(listener, [this, held, &other](const std::string&) {
        notes += "a";
        signal->Disconnect(listener);
        signal->Disconnect(other);
        EXPECT_EQ(held.use_count(), 2);
    });
    signal->Connect(other, Note("b"));
    EXPECT_EQ(Emitted(), "a");
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_EQ(Emitted(), "");
}

TEST_F(SignalTest, ListenersMayDieBeforeDuringAndAfterAnEmission) {
    auto first = std::make_unique<Listener>();
    auto second = std::make_unique<Listener>();
    signal->Connect(*first, [&](const std::string&) {
        notes += "a";
        first.reset();
        second.reset();
    });
    signal->Connect(*second, Note("b"));
    signal->Connect(listener, Note("c"));
    EXPECT_EQ(Emitted(), "ac");
    EXPECT_EQ(Emitted(), "c");
    {
        Listener shortLived;
        signal->Connect(shortLived, Note("d"));
    }
    EXPECT_EQ(Emitted(), "c");
}

TEST_F(SignalTest, MayBeDestroyedByASlotAndItsListenersForgetIt) {
    signal->Connect(listener, [this](const std::string&) {
        notes += "a";
        signal.reset();
        notes += "b";
    });
    signal->Connect(listener, Note("c"));
    EXPECT_EQ(Emitted(), "ab");
    listener.DisconnectAll(); // must not reach for the signal that is gone
}

TEST_F(SignalTest, AnExceptionEndsOneEmissionOnly) {
    signal->Connect(listener, Note("a"));
    signal->Connect(listener, [this](const std::string&) {
        if (notes == "a") throw std::runtime_error("slot");
    });
    signal->Connect(listener, Note("b"));
    EXPECT_THROW(Emitted(), std::runtime_error);
    EXPECT_FALSE(signal->IsEmitting());
    signal->Emit("x");
    EXPECT_EQ(notes, "aab");
}

TEST_F(SignalTest, AListenerLeavesAllItsSignalsAndItsCopiesHaveNone) {
    Signal other;
    auto leaving = std::make_unique<Listener>();
    signal->Connect(*leaving, Note("a"));
    other.Connect(*leaving, Note("b"));
    const Listener copy(*leaving);
    EXPECT_FALSE(signal->IsConnected(copy));
    leaving.reset();
    other.Emit("x");
    EXPECT_EQ(Emitted(), "");
}

TEST_F(SignalTest, ASlotMayOwnAnotherListenerOfTheSameSignal) {
    auto owned = std::make_shared<Listener>();
    signal->Connect(*owned, Note("b"));
    signal->Connect(listener, [owned](const std::string&) {});
    owned.reset();
    EXPECT_EQ(Emitted(), "b");
    signal->Disconnect(listener); // destroys the slot, and with it the other listener
    EXPECT_EQ(Emitted(), "");
}

} // namespace

#include "quillgrid/base/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace quillgrid {
namespace {

TEST(Event, CallsInOrderAndPassesReferences) {
    Event<int&> event;
    event.Listen([](int& number) { number += 1; });
    event.Listen([](int& number) { number *= 10; });
    int number = 1;
    event.Raise(number);
    EXPECT_EQ(number, 20);
}

TEST(Event, ListenersMayComeAndGoWhileItIsRaised) {
    Event<> event;
    std::string calls;
    Connection second;
    Connection late;
    Connection first = event.Connect([&] {
        calls += "1";
        first.Disconnect();
        second.Disconnect();
        late = event.Connect([&] { calls += "late"; });
    });
    second = event.Connect([&] { calls += "2"; });
    event.Listen([&] { calls += "3"; });
    event.Raise();
    EXPECT_EQ(calls, "13") << "a disconnected listener is not called, a new one not yet";
    event.Raise();
    EXPECT_EQ(calls, "133late");
}

TEST(Event, SurvivesTheEndOfItsOwnerAndOfItsConnections) {
    auto event = std::make_unique<Event<>>();
    int after = 0;
    Connection held = event->Connect([&] { event.reset(); });
    event->Listen([&] { ++after; });
    event->Raise();
    EXPECT_EQ(event, nullptr);
    EXPECT_EQ(after, 0) << "what it refers to may be gone with the event";
    held.Disconnect();

    Event<> living;
    {
        const Connection scoped = living.Connect([&] { ++after; });
        living.Raise();
    }
    living.Raise();
    EXPECT_EQ(after, 1);
    EXPECT_FALSE(living.HasListeners());
}

TEST(Event, AListenerMayHoldTheLastReferenceToTheOwner) {
    struct Owner {
        Event<> Changed;
    };
    auto owner = std::make_shared<Owner>();
    const std::weak_ptr<Owner> watch = owner;
    Connection only = owner->Changed.Connect([owner] { EXPECT_GT(owner.use_count(), 0); });
    Owner* const raw = owner.get();
    owner.reset();
    raw->Changed.Raise();
    only.Disconnect(); // ends the listener, the owner in it and with it the list being changed
    EXPECT_TRUE(watch.expired());
}

TEST(Event, RaisesInsideARaise) {
    Event<int> event;
    std::string calls;
    Connection first = event.Connect([&](int depth) {
        calls += "a";
        if (depth < 2) event.Raise(depth + 1);
        first.Disconnect();
    });
    event.Listen([&](int depth) { calls += std::to_string(depth); });
    event.Raise(0);
    EXPECT_EQ(calls, "aaa210");
    event.Raise(5);
    EXPECT_EQ(calls, "aaa2105");
}

TEST(Event, ExceptionsReachTheCallerAndLeaveTheEventUsable) {
    Event<> event;
    int calls = 0;
    Connection thrower = event.Connect([] { throw std::runtime_error("host"); });
    event.Listen([&] { ++calls; });
    EXPECT_THROW(event.Raise(), std::runtime_error);
    thrower.Disconnect();
    event.Raise();
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace quillgrid

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
    EXPECT_EQ(after, 1);
    held.Disconnect();

    Event<> living;
    {
        const Connection scoped = living.Connect([&] { ++after; });
    }
    living.Raise();
    EXPECT_EQ(after, 1);
    EXPECT_FALSE(living.HasListeners());
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

#include <korvane/runtime/Event.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace Korvane;

TEST(Event, CallsItsListenersInOrderUntilTheirHandlesDie) {
    Event<int> event;
    std::string calls;
    EventHandle first = event.connect([&](int n) { calls += "a" + std::to_string(n); });
    {
        EventHandle second = event.connect([&](int n) { calls += "b" + std::to_string(n); });
        event.raise(1);
    }
    event.raise(2);
    first.disconnect();
    event.raise(3);
    EXPECT_EQ(calls, "a1b1a2");
}

TEST(Event, ListenersMayConnectAndDisconnectWhileTheyAreCalled) {
    Event<> event;
    std::string calls;
    EventHandle late, self, doomed;
    self = event.connect([&] {
        calls += "s";
        late = event.connect([&] { calls += "l"; });
        doomed.disconnect();
        self.disconnect();
        calls += "."; // what the listener holds is still there
    });
    doomed = event.connect([&] { calls += "d"; });
    event.raise();
    event.raise();
    EXPECT_EQ(calls, "s.l");
}

TEST(Event, AHandleOutlivesItsEventAndAThrowEndsTheRound) {
    EventHandle handle, behind;
    bool reached = false;
    {
        Event<> event;
        handle = event.connect([] { throw std::runtime_error("no"); });
        behind = event.connect([&] { reached = true; });
        EXPECT_THROW(event.raise(), std::runtime_error);
    }
    handle.disconnect();
    EXPECT_FALSE(reached);
}

#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace Korvane {

/// Keeps a listener connected for as long as it lives; dropping it disconnects. An empty handle does nothing.
/// It may outlive the event it belongs to.
class EventHandle {
  public:
    EventHandle() = default;
    /// As `Event::connect` makes it.
    explicit EventHandle(std::shared_ptr<void> link) : mLink(std::move(link)) {}
    /// At once, also while the listener is being called.
    void disconnect() { mLink.reset(); }

  private:
    std::shared_ptr<void> mLink;
};

/// Something that others may be told of.
///
///     Event<std::int32_t> Saved;
///     EventHandle h = Saved.connect([](std::int32_t id) { ... });
///     Saved.raise(12);
///
/// Listeners are called in the order in which they connected, on the raiser's thread. A listener may connect
/// or disconnect (also itself) while it is called: one connected meanwhile is called from the next time on.
/// What a listener throws goes to the raiser, and the listeners behind it are not called.
template <typename... Args>
class Event {
  public:
    /// What is called when the event is raised.
    using Listener = std::function<void(Args...)>;

    /// The listener is there as long as the handle: without one it is never called.
    [[nodiscard]] EventHandle connect(Listener listener) {
        auto link = std::make_shared<Listener>(std::move(listener));
        std::erase_if(mListeners, [](const auto& l) { return l.expired(); });
        mListeners.push_back(link);
        return EventHandle(std::move(link));
    }

    /// Calls the listeners; with none it does nothing.
    void raise(Args... args) const {
        const auto listeners = mListeners;
        for (const auto& weak : listeners) {
            if (const auto listener = weak.lock()) (*listener)(args...);
        }
    }

  private:
    std::vector<std::weak_ptr<Listener>> mListeners;
};

} // namespace Korvane

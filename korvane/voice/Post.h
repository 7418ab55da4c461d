#pragma once

#include <functional>

namespace Korvane::voice {

/// Hands a piece of work to the user-interface thread, where it runs soon, after whatever runs there now, in
/// the order in which it was handed over. It may be called on any thread and does not wait. An engine gives
/// its events this way, so that nobody who listens has to know of threads.
///
///     voice::Post post = [](std::function<void()> work) {
///         QMetaObject::invokeMethod(qApp, std::move(work), Qt::QueuedConnection);
///     };
///
/// Work that was handed over before an engine or one of its controls is destroyed may run after it: it then
/// does nothing.
using Post = std::function<void(std::function<void()>)>;

} // namespace Korvane::voice

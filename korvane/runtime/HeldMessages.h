#pragma once

#include <memory>

namespace Korvane {

/// Keeps messages back for as long as it lives, so that nothing waits for the user while a transaction holds
/// the database; at the end they are shown in their order. Declare it before the transaction.
///
///     const HeldMessages messages;
///     ado::Transaction work(connection);
///     ...                                      // a box raised here is answered Ok at once
///     work.commit();
///
/// A box that asks something (more than an OK button, or an input box) is shown at once. Nests: what an inner
/// one held is held by the outer one. Raises nothing when it ends; a box that cannot be shown is dropped.
class HeldMessages {
  public:
    HeldMessages();
    ~HeldMessages();
    HeldMessages(const HeldMessages&) = delete;
    HeldMessages& operator=(const HeldMessages&) = delete;

  private:
    class Keeper;
    std::shared_ptr<Keeper> mKeeper;
};

} // namespace Korvane

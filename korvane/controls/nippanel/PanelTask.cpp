#include <korvane/controls/nippanel/PanelMembers.h>

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/HeldMessages.h>
#include <korvane/runtime/Interaction.h>

#include <QPointer>

namespace Korvane {

namespace {

/// Marks the panel as busy while it lives; the panel may be gone when it ends.
class Occupied {
  public:
    Occupied(ucNIPPanel& panel, bool& busy) : mPanel(&panel), mBusy(busy) { mBusy = true; }
    ~Occupied() {
        if (mPanel) mBusy = false;
    }
    Occupied(const Occupied&) = delete;
    Occupied& operator=(const Occupied&) = delete;

  private:
    QPointer<ucNIPPanel> mPanel;
    bool& mBusy;
};

} // namespace

/// A box runs an event loop and a slot runs the host's code: behind either the panel may be gone.
bool ucNIPPanel::Members::alone(const std::function<bool()>& task, const std::function<void()>& raise) {
    if (busy) return false;
    const QPointer<ucNIPPanel> alive(&panel);
    bool done = false;
    {
        const Occupied occupied(panel, busy);
        const HeldMessages messages;
        done = task();
    }
    if (!alive) return false;
    if (done && raise) raise();
    if (alive) tellModified();
    return done;
}

void ucNIPPanel::Members::tell(const QString& message, int style) {
    Interaction::current().MsgBox(utf8(message), style, "");
}

void ucNIPPanel::Members::tellModified() {
    if (toldChanged == changed) return;
    toldChanged = changed;
    emit panel.modifiedChanged(changed);
}

} // namespace Korvane

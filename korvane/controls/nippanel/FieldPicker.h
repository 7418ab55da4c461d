#pragma once

#include <QObject>

class QEvent;
class QWidget;

namespace Korvane {

/// Makes the entry controls of a form stand for their fields while it is customized: a click on a label or an
/// entry, or Enter or the space bar on an entry, picks the field. The entries are not changed by anything the
/// user does meanwhile; the keys that go from one to the next, and those that mean something to the panel,
/// work.
class FieldPicker : public QObject {
    Q_OBJECT

  public:
    /// Watches what stands inside `form`.
    explicit FieldPicker(QWidget* form);

    void setActive(bool on);

  signals:
    /// Raised from the event loop.
    void picked(int group, int field);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool pressed(QEvent& event, int group, int field);

    QWidget* mForm;
    bool mActive = false;
};

} // namespace Korvane

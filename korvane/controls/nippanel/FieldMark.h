#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace Korvane {

/// The frame around one field of a form, label and entry, that says: this is the one. It follows them when
/// they are moved, goes with them, and lets every click through.
class FieldMark : public QObject {
    Q_OBJECT

  public:
    using QObject::QObject;

    /// Frames them, which stand in the same widget, and scrolls to them; null: frames nothing.
    void frame(QWidget* label, QWidget* entry);

    QWidget* entry() const { return mEntry; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void clear();
    void place();

    QPointer<QWidget> mLabel;
    QPointer<QWidget> mEntry;
    QPointer<QWidget> mFrame;
};

} // namespace Korvane

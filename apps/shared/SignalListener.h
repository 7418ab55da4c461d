#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

namespace Apps {

/// Hears every signal that an object's class declares, and its bases below a certain one, without knowing
/// them.
///
///     using Text = const QString&;
///     new SignalListener(*panel, QWidget::staticMetaObject, [](Text name, Text arguments) {
///         qInfo() << name << arguments;           // "RenamedNip" "12, \"Visit\", 11/16/2026 9:30 AM"
///     });
///
/// It belongs to the object. What it calls hears a signal at once, in the order in which the slots were
/// connected.
class SignalListener : public QObject {
  public:
    using Heard = std::function<void(const QString& name, const QString& arguments)>;

    SignalListener(QObject& source, const QMetaObject& below, Heard heard);

    /// The slots are no functions: one number each, behind those of a `QObject`.
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

  private:
    Heard mHeard;
    std::vector<QMetaMethod> mSignals;
};

} // namespace Apps

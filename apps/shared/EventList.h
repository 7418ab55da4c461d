#pragma once

#include <QGroupBox>
#include <QStringList>

class QTableWidget;

namespace Apps {

/// The events of a control as they are raised, the latest one last, and a button that clears them. A
/// control that does not let the focus go does not hold up that button.
class EventList : public QGroupBox {
    Q_OBJECT

  public:
    explicit EventList(QWidget* parent = nullptr);

    void hear(const QString& event, const QString& text);

    /// A line for each event: "OnIndexChange 1".
    QStringList heard() const;

  private:
    QTableWidget* mEvents;
};

} // namespace Apps

#pragma once

#include <QFont>
#include <QObject>

namespace Clinic {

/// The size of all text in the application, in percent of the usual one; kept for the next start.
class TextSize : public QObject {
    Q_OBJECT

  public:
    /// Takes the application's font as it stands for 100 %, and sets the size that was kept.
    explicit TextSize(QObject* parent = nullptr);

    int percent() const { return mPercent; }
    /// Kept within 70 to 300.
    void setPercent(int percent);

    void larger();
    void smaller();
    void usual();

  signals:
    void changed(int percent);

  private:
    void apply();

    QFont mUsual;
    int mPercent = 100;
};

} // namespace Clinic

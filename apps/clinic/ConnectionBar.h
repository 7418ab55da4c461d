#pragma once

#include <korvane/ado/Connection.h>

#include <QFrame>
#include <QPointer>
#include <QTimer>

#include <memory>

class QLabel;
class QPushButton;

namespace Clinic {

/// Stands above everything else while the database cannot be reached: says so, and connects again with its
/// button. Hidden as long as all is well. It never takes the focus by itself: somebody may be typing.
///
///     auto* bar = new ConnectionBar(connection, window);
///     connect(bar, &ConnectionBar::back, window, &Window::reload);
///     ...
///     if (bar->reconnect()) panel->SaveNipInfo();
class ConnectionBar : public QFrame {
    Q_OBJECT

  public:
    ConnectionBar(std::shared_ptr<Korvane::ado::Connection> connection, QWidget* parent);

    /// Whether the connection is lost, as far as is known: a lost one is noticed when it is used.
    bool isLost() const;

    /// Connects again when the connection is lost; waits as long as the connection may take. False, with the
    /// reason in the bar, when that fails.
    bool reconnect();

  signals:
    /// The connection is open again. What was read before may have changed meanwhile.
    void back();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void build();
    void fitIcon();
    void look();
    void tell(const QString& what);
    void leave();

    std::shared_ptr<Korvane::ado::Connection> mConnection;
    QLabel* mIcon;
    QLabel* mText;
    QPushButton* mButton;
    QPointer<QWidget> mFocusBefore; ///< what had the focus before the button got it
    QTimer mWatch;
};

} // namespace Clinic

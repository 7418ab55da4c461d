#include "clinic/ConnectionBar.h"

#include <korvane/controls/container/Busy.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace Clinic {

ConnectionBar::ConnectionBar(std::shared_ptr<Korvane::ado::Connection> connection, QWidget* parent)
    : QFrame(parent), mConnection(std::move(connection)), mIcon(new QLabel(this)), mText(new QLabel(this)),
      mButton(new QPushButton(tr("&Reconnect"), this)) {
    build();
    connect(mButton, &QPushButton::clicked, this, &ConnectionBar::reconnect);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, const QWidget* now) {
        if (now == mButton && old) mFocusBefore = old;
    });
    // Asking for the state costs nothing: it is what the last statement found out.
    constexpr int milliseconds = 250;
    mWatch.setInterval(milliseconds);
    connect(&mWatch, &QTimer::timeout, this, &ConnectionBar::look);
    mWatch.start();
    hide();
}

void ConnectionBar::build() {
    setObjectName(QStringLiteral("connectionBar"));
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    mText->setObjectName(QStringLiteral("connectionText"));
    mText->setForegroundRole(QPalette::ToolTipText);
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    mText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mButton->setObjectName(QStringLiteral("reconnect"));
    mButton->setToolTip(tr("Connects to the database again; nothing that was entered is lost"));
    // A click leaves the focus where the user was typing.
    mButton->setFocusPolicy(Qt::TabFocus);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(mIcon);
    layout->addWidget(mText, 1);
    layout->addWidget(mButton);
    fitIcon();
}

void ConnectionBar::fitIcon() {
    mIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(fontMetrics().height() * 2));
}

void ConnectionBar::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitIcon();
}

bool ConnectionBar::isLost() const {
    return mConnection->State() == 0;
}

void ConnectionBar::look() {
    if (isLost() && isHidden())
        tell(
            tr("The connection to the database is lost. What you entered is still here: reconnect, then save "
               "it."));
    else if (!isLost() && !isHidden())
        reconnect();
}

void ConnectionBar::tell(const QString& what) {
    mText->setText(what);
    mButton->setAccessibleDescription(what);
    show();
    QAccessibleEvent event(mText, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

bool ConnectionBar::reconnect() {
    const bool wasLost = isLost() || !isHidden();
    if (isLost()) {
        const Korvane::Hourglass hourglass;
        try {
            mConnection->Reset();
        } catch (const Korvane::RuntimeError& error) {
            tell(tr("There is still no connection to the database. What you entered is still here.\n%1")
                     .arg(Korvane::qt(error.Description())));
            return false;
        }
    }
    if (!wasLost) return true;
    leave();
    emit back();
    return true;
}

void ConnectionBar::leave() {
    if (mButton->hasFocus() && mFocusBefore) mFocusBefore->setFocus(Qt::OtherFocusReason);
    hide();
}

} // namespace Clinic

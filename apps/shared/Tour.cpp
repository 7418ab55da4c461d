#include "shared/Tour.h"

#include "shared/Failure.h"

#include <korvane/runtime/Clock.h>
#include <korvane/runtime/RuntimeError.h>

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QTimer>

#include <cstdlib>

namespace Apps {

namespace {

QByteArray program() {
    return QCoreApplication::applicationName().toUtf8();
}

void settleLooks() {
    Korvane::Clock::set([] { return Korvane::Date::of(2026, 11, 16, 9, 30); });
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    QApplication::setCursorFlashTime(0);
    for (const Qt::UIEffect effect :
         {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo, Qt::UI_AnimateTooltip})
        QApplication::setEffectEnabled(effect, false);
}

/// A tour that hangs is a tour that failed.
void limitTime() {
    constexpr int limit = 120000;
    QTimer::singleShot(limit, [] {
        std::fprintf(stderr, "%s: the tour took too long.\n", program().constData());
        std::_Exit(1);
    });
}

} // namespace

int runTour(const QString& directory, const std::function<void(const QDir&, const char*&)>& drive) {
    const char* title = "begin";
    try {
        const QDir place(directory);
        require(place.mkpath(QStringLiteral(".")),
                QStringLiteral("%1 cannot be made.").arg(place.absolutePath()));
        settleLooks();
        limitTime();
        drive(place, title);
        return 0;
    } catch (...) {
        std::fprintf(stderr, "%s: the tour failed at \"%s\": %s\n", program().constData(), title,
                     Korvane::currentError().Description().c_str());
        return 1;
    }
}

void showActive(QWidget& window) {
    window.show();
    window.activateWindow();
    require(QTest::qWaitForWindowActive(&window), QStringLiteral("The window did not become active."));
}

} // namespace Apps

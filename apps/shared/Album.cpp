#include "shared/Album.h"

#include "shared/ClippedTexts.h"
#include "shared/DoubledShortcuts.h"
#include "shared/Failure.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>

#include <cstdio>
#include <utility>

namespace Apps {

namespace {

/// A box with the frame and title bar that a desktop would give it.
void paintAbove(QPainter& painter, QWidget& box, QPoint where) {
    const bool framed = box.isModal();
    const QRect inner(where, box.size());
    const int bar = framed ? box.fontMetrics().height() * 3 / 2 : 0;
    if (framed) {
        painter.fillRect(inner.adjusted(-1, -bar, 1, 0), box.palette().color(QPalette::Highlight));
        painter.setPen(box.palette().color(QPalette::HighlightedText));
        painter.drawText(QRect(inner.left() + bar / 3, inner.top() - bar, inner.width(), bar),
                         Qt::AlignVCenter, box.windowTitle());
    }
    painter.drawPixmap(inner.topLeft(), box.grab());
    painter.setPen(box.palette().color(QPalette::Shadow));
    painter.drawRect(inner.adjusted(-1, -bar - 1, 0, 0));
}

} // namespace

Album::Album(QWidget& window, const QString& directory) : mWindow(window), mDirectory(directory) {
    static const QRegularExpression numbered(QStringLiteral("^\\d\\d-.*\\.png$"));
    for (const QString& name : mDirectory.entryList({QStringLiteral("*.png")}, QDir::Files)) {
        if (numbered.match(name).hasMatch()) mDirectory.remove(name);
    }
}

void Album::add(const QString& title) {
    ++mCount;
    static const QRegularExpression gaps(QStringLiteral("[^a-z0-9]+"));
    const QString name = QStringLiteral("%1-%2.png")
                             .arg(mCount, 2, 10, QLatin1Char('0'))
                             .arg(title.toLower().replace(gaps, QStringLiteral("-")));
    require(pictureAtRest().save(mDirectory.filePath(name)),
            QStringLiteral("The picture %1 cannot be written.").arg(mDirectory.filePath(name)));
    requireUsable();
}

void Album::printCount() const {
    std::printf("\n%d pictures in %s\n", mCount, qUtf8Printable(mDirectory.absolutePath()));
}

void Album::requireUsable() const {
    for (const QWidget* shown : QApplication::topLevelWidgets()) {
        if (!shown->isVisible() || shown->windowType() == Qt::ToolTip) continue;
        const QStringList clipped = clippedTexts(*shown), doubled = doubledShortcuts(*shown);
        const QString separator = QStringLiteral("; ");
        require(clipped.isEmpty(), QStringLiteral("These texts do not fit: ") + clipped.join(separator));
        require(doubled.isEmpty(), QStringLiteral("These shortcuts are doubled: ") + doubled.join(separator));
    }
}

// Until what fades in, such as the button in a search box, is there.
QImage Album::pictureAtRest() const {
    constexpr int lull = 50, patience = 60;
    QImage before;
    QImage now = picture();
    for (int i = 0; now != before; ++i) {
        require(i < patience, QStringLiteral("The window does not come to rest."));
        QTest::qWait(lull);
        before = std::exchange(now, picture());
    }
    return now;
}

QImage Album::picture() const {
    QPixmap picture = mWindow.grab();
    QPainter painter(&picture);
    painter.setFont(mWindow.font());
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other == &mWindow || !other->isVisible() || other->windowType() == Qt::ToolTip) continue;
        if (other->isModal()) painter.fillRect(picture.rect(), QColor(0, 0, 0, 70));
        paintAbove(painter, *other, other->pos() - mWindow.pos());
    }
    painter.end();
    return picture.toImage();
}

} // namespace Apps

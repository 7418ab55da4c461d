#include <korvane/controls/buttons/WholeCaption.h>

#include <korvane/controls/container/Text.h>

#include <QHelpEvent>
#include <QRegularExpression>
#include <QToolTip>

namespace Korvane {

void showWholeCaption(const QHelpEvent& asked, const QString& caption, QWidget& part) {
    static const QRegularExpression mark(QStringLiteral("&(.?)"));
    const QString text = QString(caption).replace(mark, QStringLiteral("\\1"));
    QToolTip::showText(asked.globalPos(), toolTipOf(text), &part);
}

} // namespace Korvane

#include <korvane/controls/buttons/WholeCaption.h>

#include <korvane/controls/container/Text.h>

#include <QHelpEvent>
#include <QToolTip>

namespace Korvane {

namespace {

QString withoutMark(QString caption) {
    for (qsizetype at = 0; (at = caption.indexOf(u'&', at)) >= 0; ++at)
        caption.remove(at, 1);
    return caption;
}

} // namespace

void showWholeCaption(const QHelpEvent& asked, const QString& caption, QWidget& part) {
    QToolTip::showText(asked.globalPos(), toolTipOf(withoutMark(caption)), &part);
}

} // namespace Korvane

#include "clinic/Fold.h"

#include <QHash>

namespace Clinic {

namespace {

/// Letters that no decomposition takes apart.
const QHash<QChar, QString>& plainForms() {
    static const QHash<QChar, QString> forms{
        {u'ø', QStringLiteral("o")},  {u'ł', QStringLiteral("l")},  {u'đ', QStringLiteral("d")},
        {u'æ', QStringLiteral("ae")}, {u'œ', QStringLiteral("oe")}, {u'ß', QStringLiteral("ss")},
        {u'ı', QStringLiteral("i")},  {u'ð', QStringLiteral("d")},  {u'þ', QStringLiteral("th")}};
    return forms;
}

} // namespace

QString fold(const QString& text) {
    QString folded;
    for (const QChar c : text.toCaseFolded().normalized(QString::NormalizationForm_KD)) {
        if (c.category() == QChar::Mark_NonSpacing) continue;
        folded += plainForms().value(c, QString(c));
    }
    return folded;
}

} // namespace Clinic

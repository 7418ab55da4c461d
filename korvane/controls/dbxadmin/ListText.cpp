#include <korvane/controls/dbxadmin/ListText.h>

namespace Korvane {

QStringList listItems(const QString& text) {
    QStringList items = text.split(listSeparator);
    if (items.back().isEmpty()) items.removeLast();
    return items;
}

QString listText(const QStringList& items) {
    QString text;
    for (const QString& item : items)
        text += item + listSeparator;
    return text;
}

bool canBeListItem(const QString& text) {
    return !text.contains(listSeparator);
}

} // namespace Korvane

#include <korvane/controls/nippanel/ListEntryText.h>

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Interaction.h>

#include <QCoreApplication>

namespace Korvane {

QString listEntryFault(const QString& text) {
    if (!text.contains(QLatin1Char('|'))) return {};
    return QCoreApplication::translate(
        "Korvane::ListEntryText",
        "An entry of a list cannot contain the character \"|\", which separates the "
        "entries: it would come back as two entries.");
}

void showListEntryFault(const QString& fault) {
    Interaction::current().MsgBox(
        utf8(fault), MsgBoxStyle::OkOnly | MsgBoxStyle::Information,
        utf8(QCoreApplication::translate("Korvane::ListEntryText", "List Entry Validation")));
}

bool canBeListEntry(const QString& text) {
    const QString fault = listEntryFault(text);
    if (!fault.isEmpty()) showListEntryFault(fault);
    return fault.isEmpty();
}

} // namespace Korvane

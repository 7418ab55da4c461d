#include "clinic/tour/Journey.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

namespace Clinic {

using Apps::require;
using Korvane::qt;

namespace {

QWidget& panelOf(QWidget& window) {
    auto* panel = window.findChild<QWidget*>(QStringLiteral("nipPanel"));
    require(panel, QStringLiteral("The window has no Nip panel."));
    return *panel;
}

void requireSame(const QString& what, const QString& is, const QString& shouldBe) {
    require(is == shouldBe, QStringLiteral("%1 is \"%2\" and should be \"%3\".").arg(what, is, shouldBe));
}

} // namespace

Journey::Journey(QWidget& clinicWindow, const QString& database, const QString& directory)
    : Apps::Journey(clinicWindow, directory), window(clinicWindow), ledger(database),
      form(panelOf(clinicWindow), hand, ledger) {}

void Journey::answer(const std::function<void()>& deed, const char* question,
                     QMessageBox::StandardButton button, const QString& picture) {
    hand.answering(deed, [&](QWidget& box) {
        const auto* message = qobject_cast<QMessageBox*>(&box);
        require(message, QStringLiteral("The box that came up is no question."));
        requireSame(QStringLiteral("The question"), message->text(), Korvane::ucNIPPanel::tr(question));
        if (!picture.isEmpty()) album.add(picture);
        QAbstractButton* const pressed = message->button(button);
        require(pressed, QStringLiteral("The box has no such button."));
        hand.click(*pressed);
    });
}

bool Journey::isNipOpen() const {
    return panelOf(window).isVisible();
}

void Journey::requireNipOpen(bool open) const {
    require(isNipOpen() == open,
            open ? QStringLiteral("No Nip is open.") : QStringLiteral("A Nip is still open."));
}

void Journey::requirePatient(const QString& name, const QString& id) {
    const QString header = part<QLabel>("patientHeader").accessibleName();
    require(header.contains(name) && header.contains(id),
            QStringLiteral("The header names \"%1\" and not %2, %3.").arg(header, name, id));
    requireSame(QStringLiteral("The patient of the list"), chosenCell("patients", 2), id);
}

void Journey::choosePatient(const QString& search) {
    hand.press(Qt::Key_F, Qt::ControlModifier);
    hand.type(search);
    hand.press(Qt::Key_Down);
}

QString Journey::chosenCell(const char* list, int column) {
    const auto& table = part<QTableView>(list);
    const QModelIndex row = table.currentIndex();
    require(row.isValid() && table.selectionModel()->isSelected(row),
            QStringLiteral("Nothing is chosen in the list \"%1\".").arg(QLatin1String(list)));
    return row.siblingAtColumn(column).data().toString();
}

void Journey::openChosenEncounter() {
    part("encounters").setFocus();
    hand.press(Qt::Key_Return);
    requireNipOpen(true);
}

void Journey::requireShown() {
    requireSame(QStringLiteral("The description"), part<QLineEdit>("txtEncounterInfo").text(),
                visit.description);
    for (const Visit::Entry& entry : visit.entries)
        requireSame(qt(entry.name.field) + QStringLiteral(" in the panel"), form.shown(entry.name),
                    entry.value);
}

void Journey::requireStored(const Visit& entered) {
    requireSame(QStringLiteral("The stored description"),
                qt(ledger.encounterRow(entered.encounter).at("Description")), entered.description);
    for (const Visit::Entry& entry : entered.entries)
        requireSame(qt(entry.name.field) + QStringLiteral(" in the database"),
                    qt(ledger.groupRow(entered.encounter, entry.name.group).at(entry.name.field)),
                    entry.value);
}

} // namespace Clinic

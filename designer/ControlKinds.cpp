#include "designer/ControlKinds.h"

#include "designer/ControlIcon.h"

#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QCoreApplication>

#include <array>

namespace Designer {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Designer::ControlKinds", text);
}

template <typename Control>
Korvane::UserControl* make(QWidget* parent) {
    return new Control(parent);
}

const std::array kinds{
    ControlKind{
        "ucNIPPanel",
        "korvane/controls/nippanel/ucNIPPanel.h",
        [] { return tr("Nip panel: a data-entry form that the clinic shapes itself"); },
        [] {
            return tr(
                "Shows, enters and customizes the Nip of one patient. The program gives it its database "
                "with Initialize, and a patient with CreateNip or LoadNipInfo.");
        },
        make<Korvane::ucNIPPanel>,
        {90, 26}},
    ControlKind{
        "axDate",
        "korvane/controls/axdate/axDate.h",
        [] { return tr("Date control: one date in three boxes"); },
        [] {
            return tr(
                "Takes a date as month, day and year, by keys or by voice. What cannot be right is told by "
                "Exception, a change by OnChange.");
        },
        make<Korvane::axDate>,
        {}},
    ControlKind{"funcPanel",
                "korvane/controls/buttons/funcPanel.h",
                [] { return tr("Function buttons: one to five in a frame"); },
                [] { return tr("Tells with btnClick which of its buttons was clicked, counted from 0."); },
                make<Korvane::funcPanel>,
                {}},
    ControlKind{"movebtn",
                "korvane/controls/buttons/movebtn.h",
                [] { return tr("Record-move buttons: first, previous, next, last"); },
                [] { return tr("Tells with btnClick where to move: 0 first, 1 previous, 2 next, 3 last."); },
                make<Korvane::movebtn>,
                {}},
    ControlKind{"dbxadmin",
                "korvane/controls/dbxadmin/dbxadmin.h",
                [] { return tr("Field administration: the definition of one field of a database"); },
                [] {
                    return tr("Edits the names, the kind of entry and the values of one field. It tells with "
                              "RecordMove and "
                              "UpdateClick what the user wants; the program does it.");
                },
                make<Korvane::dbxadmin>,
                {}}};

} // namespace

QIcon ControlKind::icon() const {
    return controlIcon(name);
}

std::span<const ControlKind> controlKinds() {
    return kinds;
}

} // namespace Designer

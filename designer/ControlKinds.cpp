#include "designer/ControlKinds.h"

#include "designer/ControlIcon.h"

#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <array>

namespace Designer {

namespace {

template <typename Control>
Korvane::UserControl* make(QWidget* parent) {
    return new Control(parent);
}

const std::array kinds{
    ControlKind{"ucNIPPanel",
                "korvane/controls/nippanel/ucNIPPanel.h",
                QT_TRANSLATE_NOOP("Designer::ControlKind",
                                  "Nip panel: a data-entry form that the clinic shapes itself"),
                QT_TRANSLATE_NOOP(
                    "Designer::ControlKind",
                    "Shows, enters and customizes the Nip of one patient. The program gives it its database "
                    "with Initialize, and a patient with CreateNip or LoadNipInfo."),
                make<Korvane::ucNIPPanel>,
                {90, 26}},
    ControlKind{
        "axDate",
        "korvane/controls/axdate/axDate.h",
        QT_TRANSLATE_NOOP("Designer::ControlKind", "Date control: one date in three boxes"),
        QT_TRANSLATE_NOOP(
            "Designer::ControlKind",
            "Takes a date as month, day and year, by keys or by voice. What cannot be right is told by "
            "Exception, a change by OnChange."),
        make<Korvane::axDate>,
        {}},
    ControlKind{"funcPanel",
                "korvane/controls/buttons/funcPanel.h",
                QT_TRANSLATE_NOOP("Designer::ControlKind", "Function buttons: one to five in a frame"),
                QT_TRANSLATE_NOOP("Designer::ControlKind",
                                  "Tells with btnClick which of its buttons was clicked, counted from 0."),
                make<Korvane::funcPanel>,
                {}},
    ControlKind{
        "movebtn",
        "korvane/controls/buttons/movebtn.h",
        QT_TRANSLATE_NOOP("Designer::ControlKind", "Record-move buttons: first, previous, next, last"),
        QT_TRANSLATE_NOOP("Designer::ControlKind",
                          "Tells with btnClick where to move: 0 first, 1 previous, 2 next, 3 last."),
        make<Korvane::movebtn>,
        {}},
    ControlKind{
        "dbxadmin",
        "korvane/controls/dbxadmin/dbxadmin.h",
        QT_TRANSLATE_NOOP("Designer::ControlKind",
                          "Field administration: the definition of one field of a database"),
        QT_TRANSLATE_NOOP("Designer::ControlKind",
                          "Edits the names, the kind of entry and the values of one field. It tells with "
                          "RecordMove and UpdateClick what the user wants; the program does it."),
        make<Korvane::dbxadmin>,
        {}}};

} // namespace

QString ControlKind::toolTip() const {
    return tr(summary);
}

QString ControlKind::whatsThis() const {
    return tr(explanation);
}

QIcon ControlKind::icon() const {
    return controlIcon(name);
}

std::span<const ControlKind> controlKinds() {
    return kinds;
}

} // namespace Designer

#include "gallery/Exhibits.h"

#include "clinic/sample/SampleClinic.h"

#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/data/SQLData.h>

#include <QCoreApplication>

namespace Gallery {

namespace {

struct Exhibits {
    Q_DECLARE_TR_FUNCTIONS(Gallery::Exhibits)
};

QString told(bool done) {
    return done ? QStringLiteral("True") : QStringLiteral("False");
}

/// What a method without a result does.
std::function<QString()> quiet(std::function<void()> work) {
    return [work = std::move(work)] {
        work();
        return QString();
    };
}

template <typename Control>
std::unique_ptr<Control> made(const char* name) {
    auto control = std::make_unique<Control>();
    control->setObjectName(QLatin1String(name));
    control->InitProperties();
    return control;
}

Exhibit nipPanel() {
    auto panel = made<Korvane::ucNIPPanel>("ucNIPPanel");
    auto* p = panel.get();
    const auto connection = Korvane::ado::open("sqlite::memory:");
    Clinic::installSample(*connection);
    Korvane::SQLData latest;
    latest.SQL(connection, "Select Top 1 EncounterID, PatientID From Encounter Order By EncounterID Desc",
               false, Korvane::AccessMode::Read);
    const QString patient = Korvane::qt(latest.Data("PatientID").textOrEmpty());
    const std::int32_t encounter = latest.Data("EncounterID").toInt32();
    p->Initialize(connection);
    p->LoadNipInfo(encounter, patient);
    return {
        std::move(panel),
        Exhibits::tr("A data-entry form that the clinic shapes itself, here over a sample clinic in memory."),
        true,
        {{QStringLiteral("CreateNip(\"%1\")").arg(patient), [=] { return told(p->CreateNip(patient)); }},
         {QStringLiteral("LoadNipInfo(%1, \"%2\")").arg(encounter).arg(patient),
          [=] { return told(p->LoadNipInfo(encounter, patient)); }},
         {QStringLiteral("SaveNipInfo"), quiet([p] { p->SaveNipInfo(); })},
         {QStringLiteral("CustomizeNip"), quiet([p] { p->CustomizeNip(); })}}};
}

Exhibit dateControl() {
    auto date = made<Korvane::axDate>("axDate");
    auto* d = date.get();
    return {std::move(date),
            Exhibits::tr("One date in three boxes: month, day and year."),
            false,
            {{QStringLiteral("ValidateMinMax"), [d] { return QString::number(d->ValidateMinMax()); }},
             {QStringLiteral("SetElementFocus(1)"), quiet([d] { d->SetElementFocus(1); })}}};
}

Exhibit functionButtons() {
    auto panel = made<Korvane::funcPanel>("funcPanel");
    auto* p = panel.get();
    return {std::move(panel),
            Exhibits::tr("A frame around one to five buttons that tell the host which one was clicked."),
            false,
            {{QStringLiteral("btnDisable(0)"), quiet([p] { p->btnDisable(0); })},
             {QStringLiteral("btnEnable(0)"), quiet([p] { p->btnEnable(0); })},
             {QStringLiteral("btnFontBold(1, True)"), quiet([p] { p->btnFontBold(1, true); })},
             {QStringLiteral("Focus(1)"), quiet([p] { p->Focus(1); })}}};
}

Exhibit moveButtons() {
    auto move = made<Korvane::movebtn>("movebtn");
    auto* m = move.get();
    return {std::move(move),
            Exhibits::tr("Four buttons to move to the first, the previous, the next and the last record."),
            false,
            {{QStringLiteral("Focus(0)"), quiet([m] { m->Focus(0); })}}};
}

Exhibit fieldAdministration() {
    auto admin = made<Korvane::dbxadmin>("dbxadmin");
    auto* a = admin.get();
    return {
        std::move(admin),
        Exhibits::tr(
            "The definition of one field of a database: its names, how it is entered, its list of values."),
        true,
        {{QStringLiteral("ClearList"), quiet([a] { a->ClearList(); })},
         {QStringLiteral("EnableAddToList"), quiet([a] { a->EnableAddToList(); })},
         {QStringLiteral("disableAddToList"), quiet([a] { a->disableAddToList(); })}}};
}

} // namespace

std::vector<Exhibit> makeExhibits() {
    std::vector<Exhibit> exhibits;
    exhibits.push_back(nipPanel());
    exhibits.push_back(dateControl());
    exhibits.push_back(functionButtons());
    exhibits.push_back(moveButtons());
    exhibits.push_back(fieldAdministration());
    return exhibits;
}

} // namespace Gallery

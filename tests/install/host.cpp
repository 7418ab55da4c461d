// A whole host in fifty lines: a date, the encounters, and the panel that shows one.
#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/data/SQLData.h>
#include <korvane/data/Tables.h>
#include <korvane/nip/cNIP.h>

#include <QApplication>
#include <QListWidget>
#include <QSplitter>
#include <QTimer>

#include <iostream>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const auto db = Korvane::ado::open("sqlite::memory:");
    Korvane::installTables(*db);
    Korvane::SQLData query;
    query.SQL(db, "Insert Into Provider (ProviderID, LastName) Values (1, 'Ito')", true,
              Korvane::AccessMode::Read);
    Korvane::cNIP form; // what the clinic would do by mouse
    if (!form.LoadStructure(db) || !form.CreateGroup("Vital signs") || !form.LoadStructure(db)) return 2;
    if (!form.CreateField(1, {.fieldName = "Pulse", .maxLength = 5}) || !form.SaveStructure()) return 2;

    QSplitter window;
    Korvane::axDate due(&window);
    due.wholeDate("11/15/2026");
    QListWidget list(&window);
    Korvane::ucNIPPanel panel(&window);
    QObject::connect(&panel, &Korvane::ucNIPPanel::CreatedNip, &list, [&](qint16 id) {
        list.addItem(QString("Encounter %1, due %2").arg(id).arg(due.wholeDate()));
    });
    QObject::connect(&panel, &Korvane::ucNIPPanel::CloseNipPanel, &window, &QWidget::close);
    panel.Initialize(db);
    panel.CreateNip("P-0042");
    window.show();
    if (QApplication::arguments().contains("--unattended"))
        QTimer::singleShot(0, &panel, [&] {
            const auto part = [&](const char* name) { return panel.findChild<QWidget*>(name); };
            part("pvcEncounterInfo")->setProperty("currentIndex", 0);
            part("txtNip(0)")->setProperty("text", "72");
            QMetaObject::invokeMethod(part("cmdNipButton(0)"), "click"); // Save
        });
    QApplication::exec();

    query.SQL(db, "Select Pulse From NIP_Custom1", false, Korvane::AccessMode::Read);
    for (int i = 0; i < list.count(); ++i)
        std::cout << qUtf8Printable(list.item(i)->text()) << ", pulse " << query.Data("Pulse").text() << '\n';
    return list.count() == 1 ? 0 : 1;
}

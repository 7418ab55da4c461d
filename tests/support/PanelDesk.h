#pragma once

#include "support/NipDatabase.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <string>
#include <vector>

namespace Korvane::Testing {

/// A clinic with one group "Vitals" (the text field Pulse), two providers and the encounter 7 of the patient
/// P1, and the Nip panel on it, worked by clicks and keys. `heard` holds the events it raised.
class PanelDesk : public NipDatabase {
  public:
    PanelDesk() {
        group(2, "Vitals", "NIP_Custom1");
        field(2, "NIP_Custom1", "Pulse");
        provider(1, "Dr.", "Ann", "Hale", "MD");
        provider(2, "Nurse", "Bo", "Lee", "");
        encounter(7, "P1", "1/2/2026 3:04:05 PM");
        db->quietly("Insert Into NIP_Custom1 (EncounterID,Pulse) values (7,'72')");
        listen();
        panel.Initialize(db);
        panel.resize(900, 500);
        panel.show();
    }

    void provider(std::int32_t id, std::string_view type, std::string_view first, std::string_view last,
                  std::string_view suffix) {
        insert("Provider", {{"ProviderID", id},
                            {"ProviderType", type},
                            {"FirstName", first},
                            {"LastName", last},
                            {"Suffix", suffix}});
    }

    template <typename T>
    T& part(const char* name) {
        T* found = panel.findChild<T*>(name);
        if (!found) throw std::runtime_error(std::string("no such part: ") + name);
        return *found;
    }
    QLineEdit& description() { return part<QLineEdit>("txtEncounterInfo"); }
    QDateTimeEdit& date() { return part<QDateTimeEdit>("pvdateEncounter"); }
    QComboBox& providers() { return part<QComboBox>("pvcEncounterInfo"); }
    QLineEdit& pulse() { return part<QLineEdit>("txtNip(0)"); }
    std::string state() { return utf8(part<QLabel>("lblNipState").text()); }

    void click(const char* button) {
        QCoreApplication::processEvents(); // what was just shown has its place then
        QTest::mouseClick(&part<QAbstractButton>(button), Qt::LeftButton);
    }
    void save() { click("cmdNipButton(0)"); }
    void cancel() { click("cmdNipButton(1)"); }

    /// Replaces what stands in a box, key by key.
    static void type(QLineEdit& box, const QString& text) {
        box.selectAll();
        QTest::keyClicks(&box, text);
    }

    /// A new Nip of P2 with everything filled in that it needs.
    void enterNewNip() {
        panel.CreateNip("P2");
        type(description(), "First visit");
        type(pulse(), "80");
        QTest::keyClick(&providers(), Qt::Key_Down);
    }

    ucNIPPanel panel;
    std::vector<std::string> heard;

  private:
    void listen() {
        QObject::connect(&panel, &ucNIPPanel::CloseNipPanel, &panel, [this] { heard.push_back("closed"); });
        QObject::connect(&panel, &ucNIPPanel::CreatedNip, &panel,
                         [this](qint16 id) { heard.push_back("created " + std::to_string(id)); });
        QObject::connect(&panel, &ucNIPPanel::RenamedNip, &panel,
                         [this](qint16 id, const QString& text, const QDateTime& date) {
                             heard.push_back("renamed " + std::to_string(id) + " " + utf8(text) + " " +
                                             fromQt(date).text());
                         });
    }
};

} // namespace Korvane::Testing

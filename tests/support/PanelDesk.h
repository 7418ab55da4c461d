#pragma once

#include "support/NipDatabase.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/nip/cNIP.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// A box with this in its text.
inline auto says(const std::string& text) {
    return testing::Field("text", &ShownBox::text, testing::HasSubstr(text));
}

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
    virtual ~PanelDesk() { delete owned; }
    PanelDesk(const PanelDesk&) = delete;
    PanelDesk& operator=(const PanelDesk&) = delete;

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
    /// "Saved Nip: Visit|72": the state, the description and the pulse.
    std::string shown() { return state() + ": " + utf8(description().text() + "|" + pulse().text()); }

    void click(const char* button) {
        QCoreApplication::processEvents(); // what was just shown has its place then
        QTest::mouseClick(&part<QAbstractButton>(button), Qt::LeftButton);
    }
    static void settle() { QCoreApplication::processEvents(); }
    void save() { click("cmdNipButton(0)"); }
    void cancel() { click("cmdNipButton(1)"); }
    bool load() { return panel.LoadNipInfo(7, "P1"); }

    /// Replaces what stands in a box, key by key.
    static void type(QLineEdit& box, const QString& text) {
        box.selectAll();
        text.isEmpty() ? QTest::keyClick(&box, Qt::Key_Delete) : QTest::keyClicks(&box, text);
    }

    /// What a user does, step by step: "Load; pulse=80; Save" shows the Nip 7, types over a box and clicks.
    void does(const QString& steps) {
        for (const QString& step : steps.split("; ")) {
            const qsizetype behind = step.indexOf('=');
            if (behind < 0)
                doesStep(step);
            else
                enters(step.left(behind), step.mid(behind + 1));
            QCoreApplication::processEvents();
        }
    }

    /// A new Nip of P2 with everything filled in that it needs.
    void enterNewNip() {
        panel.CreateNip("P2");
        type(description(), "First visit");
        type(pulse(), "80");
        QTest::keyClick(&providers(), Qt::Key_Down);
    }

    /// The boxes since this was last asked.
    std::vector<ShownBox> told() { return std::exchange(user->boxes, {}); }

    /// Everything that is stored: "7|P1|Visit" of each encounter, then "7|72" of each row of values.
    std::string stored() const {
        return rows("Select EncounterID,PatientID,Description From Encounter Order By EncounterID") + ", " +
               rows("Select EncounterID,Pulse From NIP_Custom1 Order By EncounterID");
    }

    /// Another desk customizes the form.
    void elsewhere(const std::function<bool(cNIP&)>& change) const {
        cNIP other;
        ASSERT_TRUE(other.LoadStructure(ado::open(address())));
        ASSERT_TRUE(change(other) && other.SaveStructure()) << errorLog();
    }

    /// The names of the parts that Tab goes through, from behind one up to another.
    std::vector<std::string> tabOrder(const QWidget& from, const QWidget& to) const {
        std::vector<std::string> order;
        for (const QWidget* w = from.nextInFocusChain(); w != &to; w = w->nextInFocusChain())
            if (w->focusPolicy() & Qt::TabFocus && w->isVisible() && w->isEnabled() &&
                !w->objectName().startsWith("qt_"))
                order.push_back(utf8(w->objectName()));
        return order;
    }

    const QPointer<ucNIPPanel> owned = new ucNIPPanel; ///< a test may delete it
    ucNIPPanel& panel = *owned;
    std::vector<std::string> heard;

  protected:
    virtual void doesStep(const QString& step) {
        static const std::map<QString, const char*> buttons{{"Save", "cmdNipButton(0)"},
                                                            {"Cancel", "cmdNipButton(1)"},
                                                            {"Customize", "cmdNipButton(2)"},
                                                            {"Back", "cmdBackToNip"},
                                                            {"Close pane", "cmdCloseNipCustomize"},
                                                            {"New field", "cmdNipCustomizeButton(0)"},
                                                            {"Delete field", "cmdNipCustomizeButton(1)"},
                                                            {"Cancel field", "cmdNipCustomizeButton(2)"},
                                                            {"Save field", "cmdNipCustomizeButton(3)"}};
        step == "Load" ? static_cast<void>(load()) : click(buttons.at(step));
    }
    virtual void enters(const QString& box, const QString& text) {
        static const std::map<QString, const char*> boxes{{"description", "txtEncounterInfo"},
                                                          {"pulse", "txtNip(0)"},
                                                          {"second", "txtNip(1)"},
                                                          {"name", "txtCustNip(0)"},
                                                          {"caption", "txtCustNip(1)"},
                                                          {"width", "txtCustNip(2)"},
                                                          {"row", "txtCustNip(3)"}};
        type(part<QLineEdit>(boxes.at(box)), text);
    }

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

#pragma once

#include "support/InFront.h"
#include "support/NipDatabase.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/NipTabs.h>

#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace Korvane::Testing {

/// The entry controls of a scratch Nip in a window, over one stored encounter, used as a user would.
///
///     NipForm form;
///     form.group(2, "Vitals", "T1");
///     form.field(2, "T1", "Pulse");
///     form.store("T1", {{"Pulse", "72"}});
///     form.open();
///     QTest::keyClicks(form.control<QLineEdit>("txtNip(0)"), "!");
///     EXPECT_EQ(form.saved("Pulse", "T1"), "72!");
class NipForm : public NipDatabase {
  public:
    static constexpr std::int32_t encounterID = 7;

    QWidget window;
    QPushButton before{"Before", &window};
    NipTabs tabs{&window};
    QPushButton after{"After", &window};
    cNIP nip;
    int edits = 0;

    NipForm() {
        auto* layout = new QVBoxLayout(&window);
        for (QWidget* widget :
             {static_cast<QWidget*>(&before), static_cast<QWidget*>(&tabs), static_cast<QWidget*>(&after)})
            layout->addWidget(widget);
        QObject::connect(&tabs, &NipTabs::edited, [this] { ++edits; });
        encounter(encounterID, "P1", "1/2/2026");
    }

    /// One field in a group of its own, stored with a value; `allowed` values are A, B, C.
    void oneField(const FieldGiven& given, std::string_view value) {
        group(2, "Group", "T");
        field(2, "T", "Field", given);
        for (const char* choice : {"A", "B", "C"})
            allowed(2, "Field", choice, static_cast<float>(++mChoices));
        store("T", {{"Field", value}});
        open();
    }

    void store(std::string_view table, std::initializer_list<std::pair<std::string_view, Variant>> values) {
        std::vector<std::pair<std::string_view, Variant>> row{{"EncounterID", encounterID}};
        row.insert(row.end(), values.begin(), values.end());
        SQLData lists;
        for (const auto& [column, value] : row)
            lists.InsertListAdd(column, value);
        db->quietly("Insert Into " + std::string(table) + " " + lists.InsertListGet());
    }

    /// Builds the controls and shows the encounter.
    void open(QSize size = {900, 700}) {
        ASSERT_TRUE(nip.LoadStructure(db));
        tabs.CreateNipControls(nip);
        reload();
        window.resize(size);
        Testing::bringToFront(window);
    }

    /// Shows what is stored.
    void reload() {
        ASSERT_TRUE(nip.Load(encounterID, "P1", false));
        tabs.fill();
    }

    /// Takes on the structure and the encounter as they are stored now, without showing another encounter.
    void rebuild() {
        ASSERT_TRUE(nip.LoadStructure(db));
        ASSERT_TRUE(nip.Load(encounterID, "P1", false));
        tabs.CreateNipControls(nip);
    }

    /// Saves and reads one column as it is stored.
    std::string saved(std::string_view column = "Field", std::string_view table = "T") {
        tabs.collect();
        EXPECT_TRUE(nip.Save());
        return rows("Select " + std::string(column) + " From " + std::string(table));
    }

    template <typename Widget>
    Widget* control(const char* name) const {
        auto* found = tabs.findChild<Widget*>(QLatin1String(name));
        if (!found) throw std::runtime_error(std::string("there is no ") + name);
        return found;
    }

    void click(QListView* list, int row) const {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(row, 0)).center());
    }
    void click(const char* button) const { QTest::mouseClick(control<QPushButton>(button), Qt::LeftButton); }

  private:
    int mChoices = 0;
};

/// A list's rows, those that are checked in brackets: "A [B] C".
inline std::string shownRows(const QListView* list) {
    QStringList shown;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        const QModelIndex index = list->model()->index(row, 0);
        const QString text = index.data().toString();
        shown << (index.data(Qt::CheckStateRole) == Qt::Checked ? "[" + text + "]" : text);
    }
    return utf8(shown.join(' '));
}

} // namespace Korvane::Testing

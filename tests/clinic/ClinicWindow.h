#pragma once

#include "clinic/Database.h"
#include "clinic/MainWindow.h"
#include "support/RecordingInteraction.h"
#include "support/ScratchDatabase.h"
#include "support/ScratchDir.h"
#include "support/StoppedClock.h"

#include <korvane/ado/Recordset.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace Korvane::Testing {

/// The clinic's window on a sample database of its own, with settings of its own and a user who is recorded.
class ClinicWindow {
  public:
    ClinicWindow() : ClinicWindow(std::string()) {}
    /// On an empty database of the test's own choice.
    explicit ClinicWindow(const std::string& address) : own(address) {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(dir.file("settings")));
        open();
    }

    /// Opens the window, again after the first time.
    void open() {
        window.reset();
        window = std::make_unique<Clinic::MainWindow>(db, QStringLiteral("clinic.db"));
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <typename Widget>
    Widget& part(const char* name) const {
        auto* widget = window->findChild<Widget*>(QLatin1String(name));
        if (!widget) throw std::runtime_error(std::string("no ") + name);
        return *widget;
    }

    /// Keys take the way of real ones, so that shortcuts work.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
        QTest::keyClick(window->windowHandle(), key, modifiers);
        QTest::qWait(1);
    }
    void ctrl(Qt::Key key) const { press(key, Qt::ControlModifier); }
    void type(const char* text) const {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        QTest::qWait(1);
    }

    void click(const char* list, const QString& text) const {
        auto& table = part<QTableView>(list);
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            for (int column = 0; column < table.model()->columnCount(); ++column) {
                const QModelIndex index = table.model()->index(row, column);
                if (index.data().toString() != text) continue;
                table.scrollTo(index);
                QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(index).center());
                QTest::qWait(1);
                return;
            }
        }
        ADD_FAILURE() << "no \"" << text.toStdString() << "\" in " << list;
    }

    /// Opens the newest encounter of a patient.
    void openNewest(const char* patientID) const {
        click("patients", QLatin1String(patientID));
        part<QTableView>("encounters").setFocus();
        part<QTableView>("encounters").selectRow(0);
        press(Qt::Key_Return);
    }

    void write(const char* box, const char* text) const {
        part<QLineEdit>(box).setFocus();
        part<QLineEdit>(box).selectAll();
        type(text);
    }

    void click(const char* button) const {
        QTest::mouseClick(&part<QAbstractButton>(button), Qt::LeftButton);
    }
    void pressSave() const { click("cmdNipButton(0)"); }

    bool isNipOpen() const { return part<QWidget>("nipPanel").isVisible(); }
    std::string focus() const { return QApplication::focusWidget()->objectName().toStdString(); }
    int encounters() const { return part<QTableView>("encounters").model()->rowCount(); }

    /// The text of a column of the chosen row; "nothing" where no row is chosen.
    std::string chosen(const char* list, int column) const {
        const QModelIndexList rows = part<QTableView>(list).selectionModel()->selectedRows(column);
        return rows.isEmpty() ? "nothing" : rows.first().data().toString().toStdString();
    }
    std::string header() const { return part<QLabel>("patientHeader").accessibleName().toStdString(); }

    std::int32_t number(const std::string& query) const {
        const auto rows = ado::Recordset::create();
        rows->Open(query, db);
        return rows->Value(0).toInt32();
    }
    /// How many encounters have this description.
    std::int32_t stored(const std::string& description) const {
        return number("Select Count(*) From Encounter Where Description='" + description + "'");
    }
    void expectToFitAtTwiceTheTextSize() const {
        for (int i = 0; i < 5; ++i)
            ctrl(Qt::Key_Plus);
        QTest::qWait(10);
        EXPECT_LE(window->minimumSizeHint().width(), 1280);
        EXPECT_LE(window->minimumSizeHint().height(), 800);
        ctrl(Qt::Key_0);
    }

    StoppedClock clock{Date::of(2026, 11, 16, 9, 30)};
    ScratchDir dir{ScratchDir::AsAppPath};
    RecordedInteraction user;
    std::string own;
    ScratchDatabase database{dir.file("clinic.db")};
    std::shared_ptr<ado::Connection> db =
        Clinic::openDatabase(QString::fromStdString(own.empty() ? database.address() : own));
    std::unique_ptr<Clinic::MainWindow> window;
};

} // namespace Korvane::Testing

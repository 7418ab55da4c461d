#pragma once

#include "support/InFront.h"
#include "support/RecordingInteraction.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/dbxadmin/dbxadmin.h>

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// A dialog in front with a field administration control for a list of a, b and c, an OK button that is its
/// default, and a note of what was heard: "move 2", "update", "ok", and each property marked changed.
class AdminDesk {
  public:
    RecordedInteraction user;
    QDialog form;
    dbxadmin* admin = new dbxadmin;
    QPushButton* ok = new QPushButton("OK");

    AdminDesk() {
        auto* rows = new QVBoxLayout(&form);
        rows->addWidget(admin);
        rows->addWidget(ok);
        ok->setDefault(true);
        admin->displayType(dbxadmin::ListBox);
        admin->ListData("a/b/c");
        QObject::connect(ok, &QPushButton::clicked, [this] { hear("ok"); });
        QObject::connect(admin, &dbxadmin::PropertyChanged,
                         [this](const QString& name) { hear(utf8(name)); });
        QObject::connect(admin, &dbxadmin::UpdateClick, [this] { hear("update"); });
        QObject::connect(admin, &dbxadmin::RecordMove,
                         [this](qint16& index) { hear("move " + std::to_string(index)); });
        Testing::bringToFront(form);
        admin->setFocus();
    }

    template <typename Part = QWidget>
    Part& part(const char* name) const {
        auto* found = admin->findChild<Part*>(name);
        EXPECT_TRUE(found) << name;
        return *found;
    }
    QPushButton& button(const char* name = "cmdAddtoList") const { return part<QPushButton>(name); }
    QLineEdit& entry() const { return part<QLineEdit>("txtAddtoList"); }
    QListWidget& list() const { return part<QListWidget>("lstAddtoList"); }

    std::string items() const {
        std::string all;
        for (int i = 0; i < list().count(); ++i)
            all += '[' + utf8(list().item(i)->text()) + ']';
        return all;
    }

    /// What the button says, with a minus before it while it is disabled.
    std::string says() const { return (button().isEnabled() ? "" : "-") + utf8(button().text()); }

    void click(QWidget& part) const { QTest::mouseClick(&part, Qt::LeftButton); }
    void clickItem(int row) const {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().item(row)).center());
    }
    void press(Qt::Key key) const { QTest::keyClick(QApplication::focusWidget(), key); }
    void type(const char* text) const { QTest::keyClicks(QApplication::focusWidget(), text); }
    std::string focus() const { return utf8(QApplication::focusWidget()->objectName()); }

    /// What was heard since this was last asked.
    std::vector<std::string> heard() { return std::exchange(mHeard, {}); }

  private:
    void hear(std::string event) { mHeard.push_back(std::move(event)); }
    std::vector<std::string> mHeard;
};

} // namespace Korvane::Testing

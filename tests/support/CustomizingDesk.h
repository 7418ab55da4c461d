#pragma once

#include "support/PanelDesk.h"

#include <QAction>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

#include <QPushButton>

namespace Korvane::Testing {

/// A desk with a second field, a list, and a second group, whose Nip is being customized by clicks and keys.
class CustomizingDesk : public PanelDesk {
  public:
    explicit CustomizingDesk(bool opensNip = true) {
        field(2, "NIP_Custom1", "Mood", {.displayType = "LIST"});
        allowed(2, "Mood", "Good", 1, true);
        allowed(2, "Mood", "Poor", 2);
        group(3, "History", "NIP_Custom2");
        field(3, "NIP_Custom2", "Smoker");
        panel.NumbersGroups(true);
        panel.Initialize(db);
        if (opensNip) panel.LoadNipInfo(7, "P1");
        panel.activateWindow();
        click("cmdNipButton(2)");
        settle();
    }

    static void settle() { QCoreApplication::processEvents(); }

    QLineEdit& name() { return part<QLineEdit>("txtCustNip(0)"); }
    QLineEdit& caption() { return part<QLineEdit>("txtCustNip(1)"); }
    QLineEdit& width() { return part<QLineEdit>("txtCustNip(2)"); }
    QLineEdit& row() { return part<QLineEdit>("txtCustNip(3)"); }
    QComboBox& displayType() { return part<QComboBox>("cboCustNip(0)"); }
    QTreeWidget& list() { return part<QTreeWidget>("gridNipFields"); }
    QTabWidget& tabs() { return part<QTabWidget>("atNips"); }
    std::string heading() { return utf8(part<QLabel>("lblCustEditing").text()); }
    bool offers(const char* button) { return part<QWidget>(button).isEnabled(); }

    void newField() { click("cmdNipCustomizeButton(0)"); }
    void deleteField() { click("cmdNipCustomizeButton(1)"); }
    void cancelField() { click("cmdNipCustomizeButton(2)"); }
    void saveField() {
        click("cmdNipCustomizeButton(3)");
        settle();
    }

    void tool(const char* id) {
        settle();
        auto& bar = part<QToolBar>("ToolBars1");
        QTest::mouseClick(bar.widgetForAction(&part<QAction>(id)), Qt::LeftButton);
        settle();
    }
    void chooseListed(int listed) {
        settle();
        QTreeWidgetItem* item = list().topLevelItem(listed);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, list().visualItemRect(item).center());
        settle();
    }
    void clickInForm(const char* widget) {
        settle();
        QTest::mouseClick(&part<QWidget>(widget), Qt::LeftButton);
        settle();
    }
    void chooseTab(int index) {
        settle();
        QTest::mouseClick(tabs().tabBar(), Qt::LeftButton, {}, tabs().tabBar()->tabRect(index).center());
        settle();
    }

    /// The names of the fields listed.
    std::string listed() {
        QStringList names;
        for (int i = 0; i < list().topLevelItemCount(); ++i)
            names << list().topLevelItem(i)->text(0);
        return utf8(names.join(' '));
    }
    std::string fields() {
        return rows("Select FieldName,FieldCaption,DisplayType,MaxLength From DBFields Order By ID");
    }
    ShownBox lastBox() { return user->boxes.empty() ? ShownBox{} : user->boxes.back(); }
};

} // namespace Korvane::Testing

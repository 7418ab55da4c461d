#pragma once

#include "support/PanelDesk.h"

#include <QAction>
#include <QToolBar>
#include <QTreeWidget>

namespace Korvane::Testing {

/// A desk with a second field, a list, and a second group, whose Nip is being customized by clicks and keys.
/// Beside what a panel knows, "field 1" clicks the second field in the list, "tab 1" a tab, "ID_..." a tool,
/// another word a widget of that name, and "display=LIST" chooses a display type.
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
        if (opensNip) load();
        panel.activateWindow();
        does("Customize");
    }

    QLineEdit& name() { return part<QLineEdit>("txtCustNip(0)"); }
    QLineEdit& row() { return part<QLineEdit>("txtCustNip(3)"); }
    QComboBox& displayType() { return part<QComboBox>("cboCustNip(0)"); }
    QTreeWidget& list() { return part<QTreeWidget>("gridNipFields"); }
    QTabWidget& tabs() { return part<QTabWidget>("atNips"); }
    bool offers(const char* button) { return part<QWidget>(button).isEnabled(); }
    /// "Editing field [Pulse] of group [Vitals]".
    std::string heading() { return says("lblCustEditing"); }
    std::string says(const char* label) { return utf8(part<QLabel>(label).text()); }
    std::string caption() { return utf8(part<QLineEdit>("txtCustNip(1)").text()); }

    /// The heading, the list and, where there are any, the boxes: "Editing field [Pulse] of group [Vitals]:
    /// Pulse Mood, Pulse|The Pulse|50|1".
    std::string pane() {
        const QString boxes = ", " + name().text() + '|' + part<QLineEdit>("txtCustNip(1)").text() + '|' +
                              part<QLineEdit>("txtCustNip(2)").text() + '|' + row().text();
        return heading() + ": " + listed() + (name().isVisible() ? utf8(boxes) : "");
    }
    std::string listed() {
        QStringList names;
        for (int i = 0; i < list().topLevelItemCount(); ++i)
            names << list().topLevelItem(i)->text(0);
        return utf8(names.join(' '));
    }
    std::string fields() {
        return rows("Select FieldName,FieldCaption,DisplayType,MaxLength From DBFields Order By ID");
    }
    std::string choices() {
        return rows("Select DBFieldGroupID,FieldName,FieldValue,DefaultValue From DBFieldValues "
                    "Order By DBFieldGroupID,Ordinal");
    }

  protected:
    void doesStep(const QString& step) override {
        const auto press = [](QWidget* on, QPoint at) { QTest::mouseClick(on, Qt::LeftButton, {}, at); };
        QCoreApplication::processEvents();
        if (step.startsWith("field "))
            press(list().viewport(),
                  list().visualItemRect(list().topLevelItem(step.mid(6).toInt())).center());
        else if (step.startsWith("tab "))
            press(tabs().tabBar(), tabs().tabBar()->tabRect(step.mid(4).toInt()).center());
        else if (step.startsWith("ID_"))
            press(part<QToolBar>("ToolBars1").widgetForAction(&part<QAction>(step.toUtf8())), {});
        else if (step.contains('('))
            press(&part<QWidget>(step.toUtf8()), {});
        else
            PanelDesk::doesStep(step);
    }
    void enters(const QString& box, const QString& text) override {
        if (box != "display") return PanelDesk::enters(box, text);
        displayType().setCurrentIndex(displayType().findData(text));
    }
};

} // namespace Korvane::Testing

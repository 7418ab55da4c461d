#include "clinic/tour/Customizing.h"

#include <korvane/controls/container/Text.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QTreeWidget>

namespace Clinic {

using Apps::require;
using Korvane::qt;

void clickTool(Journey& j, const char* id) {
    auto* tool = j.window.findChild<QAction*>(QLatin1String(id));
    QWidget* button = tool ? j.part<QToolBar>("ToolBars1").widgetForAction(tool) : nullptr;
    require(button && button->isVisible(),
            QStringLiteral("There is no tool %1 in view.").arg(QLatin1String(id)));
    j.hand.click(*button);
}

// From the top to the bottom by the Tab key, as somebody does who makes one after the other.
void makeField(Journey& j, const FieldSketch& field, const QString& picture) {
    j.hand.click(j.part("cmdNipCustomizeButton(0)"));
    j.hand.type(field.name);
    j.hand.press(Qt::Key_Tab);
    j.hand.type(field.caption);
    auto& type = j.part<QComboBox>("cboCustNip(0)");
    if (type.currentData() != field.displayType)
        j.form.pick(type, type.itemText(type.findData(field.displayType)), [] {});
    for (const QString& choice : field.choices)
        j.hand.answering([&] { j.hand.click(j.part("cmdNipChoices(0)")); }, choice);
    j.album.add(picture);
    storeField(j);
}

void chooseInForm(Journey& j, const FieldName& name) {
    j.hand.click(j.form.control(name));
    requireEditing(j, name);
}

void chooseInList(Journey& j, const FieldName& name) {
    auto& list = j.part<QTreeWidget>("gridNipFields");
    const QList<QTreeWidgetItem*> found = list.findItems(qt(name.field), Qt::MatchExactly);
    require(found.size() == 1, QStringLiteral("The list of fields has no %1.").arg(qt(name.field)));
    list.scrollToItem(found.front());
    j.hand.click(*list.viewport(), list.visualItemRect(found.front()).center());
    requireEditing(j, name);
}

void requireEditing(Journey& j, const FieldName& name) {
    const QString heading = j.part<QLabel>("lblCustEditing").text();
    require(heading.contains(u'[' + qt(name.field) + u']') && heading.contains(u'[' + qt(name.group) + u']'),
            QStringLiteral("The pane says \"%1\" and not %2.").arg(heading, qt(name.field)));
}

void writeInput(Journey& j, const char* input, const QString& text) {
    j.form.write(j.part(input), text);
}

void storeField(Journey& j) {
    j.hand.click(j.part("cmdNipCustomizeButton(3)"));
    require(!j.part("cmdNipCustomizeButton(2)").isEnabled(), QStringLiteral("The field is not stored."));
    j.ledger.reload();
}

} // namespace Clinic

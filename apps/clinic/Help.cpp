#include "clinic/Help.h"

#include <QAction>
#include <QCoreApplication>
#include <QMessageBox>

namespace Clinic {

namespace {

struct Help {
    Q_DECLARE_TR_FUNCTIONS(Clinic::Help)
};

QString line(const QString& keys, const QString& what) {
    return QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(keys.toHtmlEscaped(), what.toHtmlEscaped());
}

} // namespace

void showKeys(QWidget& window) {
    QString rows;
    for (const QAction* action : window.findChildren<QAction*>(Qt::FindDirectChildrenOnly)) {
        if (!action->shortcut().isEmpty())
            rows += line(action->shortcut().toString(QKeySequence::NativeText), action->statusTip());
    }
    rows += line(Help::tr("Down"), Help::tr("From the search box into the list of patients"));
    rows +=
        line(Help::tr("Enter"), Help::tr("On a patient: to the encounters. On an encounter: opens its Nip"));
    rows += line(Help::tr("Ctrl+Tab"), Help::tr("In a Nip: to the next group"));
    rows += line(Help::tr("Ctrl+F6"), Help::tr("While customizing: between the form and the list of fields"));
    rows +=
        line(Help::tr("Enter"), Help::tr("While customizing, on an entry of the form: chooses its field"));
    rows += line(Help::tr("Alt and a letter"),
                 Help::tr("Opens the menu, or goes to the control, with that letter underlined"));
    QMessageBox box(QMessageBox::NoIcon, Help::tr("Keyboard"), QStringLiteral("<table>%1</table>").arg(rows),
                    QMessageBox::Close, &window);
    box.exec();
}

void showAbout(QWidget& window) {
    QMessageBox::about(
        &window, Help::tr("About"),
        Help::tr(
            "<h3>Korvane Clinic %1</h3><p>A small clinical application that shows the Korvane controls at "
            "work. It is a demonstration and no medical device.</p>"
            "<p>The patients are made up; the forms are published ones, with their licences in the "
            "project's folder apps/clinic/forms.</p>")
            .arg(QCoreApplication::applicationVersion()));
}

} // namespace Clinic

// A desk with the Nip panel: it fills in new Nips and presses Save until each is stored.

#include "Job.h"

#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>

using namespace Korvane;
using namespace Korvane::Testing;

namespace {

void enter(const ucNIPPanel& panel, const Job& job, int visit) {
    const QString token = QString::fromStdString(job.token(visit));
    auto* tabs = panel.findChild<QTabBar*>();
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        panel.findChild<QLineEdit*>(QString("txtNip(%1)").arg(tab))->setText(token);
    }
    panel.findChild<QLineEdit*>("txtEncounterInfo")->setText(token);
    panel.findChild<QComboBox*>("pvcEncounterInfo")->setCurrentIndex(0);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Job job(argv);
    ucNIPPanel panel;
    panel.Initialize(ado::open(job.address));
    panel.show();
    auto* save = panel.findChild<QAbstractButton*>("cmdNipButton(0)");
    int created = 0;
    QObject::connect(&panel, &ucNIPPanel::CreatedNip, &panel, [&](qint16 id) { created = id; });
    job.awaitOthers();
    for (int i = 0; i < job.visits; ++i) {
        if (!panel.CreateNip(QString::fromStdString(job.patient(i)))) return 1;
        enter(panel, job, i);
        created = 0;
        save->click();
        while (!created) {
            job.refused(i);
            save->click();
        }
        job.stored(i, created, "0");
    }
    return 0;
}

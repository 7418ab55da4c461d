#include "clinic/MainWindow.h"

#include "clinic/Actions.h"
#include "clinic/ConnectionBar.h"
#include "clinic/EncounterPane.h"
#include "clinic/Help.h"
#include "clinic/NipDesk.h"
#include "clinic/PatientPane.h"
#include "clinic/Show.h"
#include "clinic/TextSize.h"
#include "shared/PaneCycle.h"

#include <korvane/controls/container/Busy.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace Clinic {

MainWindow::MainWindow(std::shared_ptr<Korvane::ado::Connection> connection, const QString& databaseName,
                       int textSize)
    : mConnection(std::move(connection)), mTextSize(new TextSize(this)),
      mBar(new ConnectionBar(mConnection, this)), mSides(new QSplitter(Qt::Horizontal, this)),
      mLists(new QSplitter(Qt::Vertical, this)), mPatients(new PatientPane(mLists)),
      mEncounters(new EncounterPane(mLists)), mDesk(new NipDesk(mSides)),
      mPanes(new Apps::PaneCycle({mPatients, mEncounters, mDesk, mDesk->customizePane(), mBar}, this)),
      mActions(std::make_unique<Actions>(*this)) {
    const Korvane::Hourglass hourglass;
    if (textSize > 0) mTextSize->setPercent(textSize);
    build(databaseName);
    listen();
    connectActions();
    restore();
    mDesk->setConnection(mConnection);
    reload();
    refresh();
    mPatients->startSearch();
}

MainWindow::~MainWindow() = default;

void MainWindow::build(const QString& databaseName) {
    setObjectName(QStringLiteral("clinic"));
    mLists->addWidget(mPatients);
    mLists->addWidget(mEncounters);
    mSides->addWidget(mLists);
    mSides->addWidget(mDesk);
    mSides->setStretchFactor(0, 0);
    mSides->setStretchFactor(1, 1);
    mSides->setChildrenCollapsible(false);
    mLists->setChildrenCollapsible(false);
    auto* all = new QWidget(this);
    auto* layout = new QVBoxLayout(all);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(mBar);
    layout->addWidget(mSides, 1);
    setCentralWidget(all);
    const QString lastPart = databaseName.section(u'/', -1);
    auto* database = new QLabel(lastPart.isEmpty() ? databaseName : lastPart, this);
    database->setTextFormat(Qt::PlainText);
    database->setToolTip(databaseName);
    statusBar()->addPermanentWidget(database);
    fitIcons();
}

void MainWindow::listen() {
    connect(mBar, &ConnectionBar::back, this, &MainWindow::connectionIsBack);
    connect(mPatients, &PatientPane::wanted, this, &MainWindow::choosePatient);
    connect(mPatients, &PatientPane::entered, mEncounters, &EncounterPane::takeFocus);
    connect(mEncounters, &EncounterPane::openWanted, this, &MainWindow::openEncounter);
    connect(mEncounters, &EncounterPane::chosenChanged, this, &MainWindow::refresh);
    connect(mDesk, &NipDesk::newNipWanted, this, &MainWindow::newNip);
    connect(mDesk, &NipDesk::savePressed, mBar, &ConnectionBar::reconnect);
    connect(mDesk, &NipDesk::modifiedChanged, this, &MainWindow::refresh);
    connect(mDesk, &NipDesk::nipOpened, this, [this] {
        mEncounters->setOpen(mDesk->openEncounter());
        refresh();
        mDesk->takeFocus();
    });
    connect(mDesk, &NipDesk::nipClosed, this, &MainWindow::nipClosed);
    connect(mDesk, &NipDesk::nipCreated, this, [this](qint32 id) {
        readEncountersOfPatient();
        mEncounters->choose(id);
        say(tr("The new Nip is saved."));
    });
    connect(mDesk, &NipDesk::nipRenamed, this,
            [this](qint32 id, const QString& description, Korvane::Date date) {
                mEncounters->rename(id, description, date);
                say(tr("The Nip is now \"%1\" of %2.").arg(description, momentText(date)));
            });
}

void MainWindow::connectActions() {
    const Actions& a = *mActions;
    connect(a.newNip, &QAction::triggered, this, &MainWindow::newNip);
    connect(a.openNip, &QAction::triggered, this, [this] { openEncounter(mEncounters->chosen()); });
    connect(a.saveNip, &QAction::triggered, mDesk, &NipDesk::saveNip);
    connect(a.closeNip, &QAction::triggered, mDesk, &NipDesk::closeNip);
    connect(a.quit, &QAction::triggered, this, &QWidget::close);
    connect(a.findPatient, &QAction::triggered, this, [this] {
        mActions->showLists->setChecked(true);
        mPatients->startSearch();
    });
    connect(a.showLists, &QAction::toggled, this, &MainWindow::showLists);
    connect(a.reload, &QAction::triggered, this, &MainWindow::reload);
    connect(a.nextPane, &QAction::triggered, mPanes, &Apps::PaneCycle::next);
    connect(a.previousPane, &QAction::triggered, mPanes, &Apps::PaneCycle::previous);
    connect(a.largerText, &QAction::triggered, mTextSize, &TextSize::larger);
    connect(a.smallerText, &QAction::triggered, mTextSize, &TextSize::smaller);
    connect(a.usualText, &QAction::triggered, mTextSize, &TextSize::usual);
    connect(mTextSize, &TextSize::changed, this, [this](int percent) {
        fitIcons();
        say(tr("Text size %1 %").arg(percent));
    });
    connect(a.keys, &QAction::triggered, this, [this] { showKeys(*this); });
    connect(a.about, &QAction::triggered, this, [this] { showAbout(*this); });
}

void MainWindow::fitIcons() {
    const int size = QFontMetrics(QApplication::font()).height() * 3 / 2;
    setIconSize(QSize(size, size));
}

void MainWindow::reload() {
    if (mBar->isLost()) {
        mBar->reconnect(); // comes back to here
        return;
    }
    const Korvane::Hourglass hourglass;
    if (auto patients = readPatients(mConnection)) mPatients->setPatients(std::move(*patients));
    if (mDesk->hasPatient()) readEncountersOfPatient();
}

void MainWindow::choosePatient(const PatientLine& patient) {
    const QScopedValueRollback choosing(mChoosingPatient, true);
    if (!mDesk->setPatient(patient)) return;
    mPatients->choose(patient.id);
    mEncounters->clear();
    readEncountersOfPatient();
    statusBar()->clearMessage();
}

void MainWindow::readEncountersOfPatient() {
    const Korvane::Hourglass hourglass;
    const PatientLine& patient = mDesk->patient();
    mEncounters->setEncounters(patient,
                               mBar->isLost() ? std::nullopt : readEncounters(mConnection, patient.id));
}

void MainWindow::connectionIsBack() {
    reload();
    say(tr("The database is connected again."));
}

void MainWindow::openEncounter(qint32 encounterID) {
    if (encounterID < 0) return;
    const bool again = mDesk->isNipOpen() && mDesk->openEncounter() == encounterID;
    if (again && !mDesk->isModified()) return mDesk->takeFocus();
    if (!mBar->reconnect()) return;
    if (!mDesk->openNip(encounterID) && mDesk->isNipOpen()) mEncounters->choose(mDesk->openEncounter());
}

void MainWindow::newNip() {
    if (!mDesk->hasPatient() || !mBar->reconnect()) return;
    if (mDesk->createNip()) mEncounters->choose(-1);
}

void MainWindow::showLists(bool on) {
    const QWidget* focus = focusWidget();
    const bool hidesFocus = !on && focus && mLists->isAncestorOf(focus);
    mLists->setVisible(on);
    if (hidesFocus) mDesk->takeFocus();
}

// The focus goes on to the encounters, unless the user is walking through the patients.
void MainWindow::nipClosed() {
    mActions->showLists->setChecked(true);
    mEncounters->setOpen(-1);
    if (!mChoosingPatient) readEncountersOfPatient();
    refresh();
    if (!mChoosingPatient) mEncounters->takeFocus();
}

void MainWindow::refresh() {
    const bool open = mDesk->isNipOpen();
    mActions->newNip->setEnabled(mDesk->hasPatient());
    mActions->openNip->setEnabled(mEncounters->chosen() >= 0);
    mActions->saveNip->setEnabled(open);
    mActions->closeNip->setEnabled(open);
    mActions->showLists->setEnabled(open);
    setWindowTitle(mDesk->hasPatient() ? tr("%1 - Korvane Clinic[*]").arg(mDesk->patient().name())
                                       : tr("Korvane Clinic[*]"));
    setWindowModified(mDesk->isModified());
}

void MainWindow::say(const QString& message) {
    statusBar()->showMessage(message, 10000);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!mDesk->closeNip()) return event->ignore();
    keep();
    event->accept();
}

void MainWindow::restore() {
    const QSettings settings;
    if (!restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray())) resize(1280, 800);
    if (!mSides->restoreState(settings.value(QStringLiteral("window/sides")).toByteArray()))
        mSides->setSizes({width() * 2 / 5, width() * 3 / 5});
    if (!mLists->restoreState(settings.value(QStringLiteral("window/lists")).toByteArray()))
        mLists->setSizes({height() / 2, height() / 2});
}

void MainWindow::keep() const {
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/sides"), mSides->saveState());
    settings.setValue(QStringLiteral("window/lists"), mLists->saveState());
}

} // namespace Clinic

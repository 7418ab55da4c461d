#include "clinic/NipDesk.h"

#include "clinic/Show.h"

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/ucNIPPanel.h>
#include <korvane/runtime/Clock.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Clinic {

using Korvane::ucNIPPanel;

namespace {

QString factsOf(const PatientLine& patient) {
    if (patient.birthDate == Korvane::Date()) return NipDesk::tr("ID %1").arg(patient.id);
    const int age = yearsBetween(patient.birthDate, Korvane::Clock::now());
    return NipDesk::tr("ID %1  ·  born %2, age %3")
        .arg(patient.id, dayText(patient.birthDate), QString::number(age));
}

} // namespace

NipDesk::NipDesk(QWidget* parent)
    : QWidget(parent), mHeader(new QLabel(this)), mStack(new QStackedWidget(this)),
      mPanel(new ucNIPPanel(this)) {
    mHeader->setObjectName(QStringLiteral("patientHeader"));
    mHeader->setTextFormat(Qt::RichText);
    mHeader->setWordWrap(true);
    mHeader->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mPanel->setObjectName(QStringLiteral("nipPanel"));
    mPanel->setAccessibleName(tr("Nip"));
    mPanel->NumbersGroups(true);
    mStack->addWidget(makeHint());
    mStack->addWidget(mPanel);
    auto* layout = new QVBoxLayout(this);
    // The panel has margins of its own: header and panel are to stand under each other.
    const QMargins margins = layout->contentsMargins();
    layout->setContentsMargins(0, margins.top(), 0, 0);
    mHeader->setContentsMargins(margins.left(), 0, margins.right(), 0);
    layout->addWidget(mHeader);
    layout->addWidget(mStack, 1);
    listen();
    showPatient();
}

QWidget* NipDesk::makeHint() {
    auto* page = new QWidget(this);
    mHint = new QLabel(page);
    mHint->setAlignment(Qt::AlignCenter);
    mHint->setWordWrap(true);
    mNew = new QPushButton(tr("New Nip"), page);
    mNew->setObjectName(QStringLiteral("newNip"));
    connect(mNew, &QPushButton::clicked, this, &NipDesk::newNipWanted);
    auto* layout = new QVBoxLayout(page);
    layout->addStretch(2);
    layout->addWidget(mHint);
    layout->addWidget(mNew, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    return page;
}

void NipDesk::listen() {
    connect(mPanel, &ucNIPPanel::CloseNipPanel, this, &NipDesk::leave);
    connect(mPanel, &ucNIPPanel::CreatedNip, this, [this](qint16 id) {
        mEncounter = id;
        emit nipCreated(id);
    });
    connect(mPanel, &ucNIPPanel::RenamedNip, this,
            [this](qint16 id, const QString& description, const QDateTime& date) {
                emit nipRenamed(id, description, Korvane::fromQt(date));
            });
    connect(&saveButton(), &QAbstractButton::pressed, this, &NipDesk::savePressed);
    connect(mPanel, &ucNIPPanel::modifiedChanged, this, &NipDesk::modifiedChanged);
}

void NipDesk::setConnection(const std::shared_ptr<Korvane::ado::Connection>& connection) {
    mPanel->Initialize(connection);
}

bool NipDesk::setPatient(const PatientLine& patient) {
    if (!closeNip()) return false;
    mPatient = patient;
    showPatient();
    return true;
}

void NipDesk::showPatient() {
    mNew->setVisible(hasPatient());
    if (!hasPatient()) {
        mHeader->setText(tr("No patient is chosen"));
        mHeader->setAccessibleName(tr("No patient is chosen"));
        mHint->setText(tr("Choose a patient: Ctrl+F, then type part of a name or an ID."));
        return;
    }
    const QString facts = factsOf(mPatient);
    mHeader->setText(QStringLiteral("<span style='font-size:x-large; font-weight:600'>%1</span><br>%2")
                         .arg(mPatient.name().toHtmlEscaped(), facts.toHtmlEscaped()));
    mHeader->setAccessibleName(tr("%1, %2").arg(mPatient.name(), facts));
    mHint->setText(tr("No Nip is open. Open an encounter of the list with Enter or a double click, "
                      "or start a new Nip with Ctrl+N."));
}

bool NipDesk::createNip() {
    return show(mPanel->CreateNip(mPatient.id), -1);
}

bool NipDesk::openNip(qint32 encounterID) {
    return show(mPanel->LoadNipInfo(encounterID, mPatient.id), encounterID);
}

bool NipDesk::show(bool done, qint32 encounterID) {
    if (done) {
        mEncounter = encounterID;
        mStack->setCurrentWidget(mPanel);
        emit nipOpened();
    } else if (isNipOpen() && !mPanel->isModified()) {
        leave();
    }
    return done;
}

// Also when a Nip could not be shown: the panel then shows none, and has told the user why.
void NipDesk::leave() {
    mEncounter = -1;
    mStack->setCurrentIndex(0);
    emit nipClosed();
}

QAbstractButton& NipDesk::saveButton() const {
    return *mPanel->findChild<QAbstractButton*>(QStringLiteral("cmdNipButton(0)"));
}

// A field that is being customized comes first: its pane names the same key.
void NipDesk::saveNip() const {
    if (!isNipOpen()) return;
    const auto* leavesField = mPanel->findChild<QAbstractButton*>(QStringLiteral("cmdNipCustomizeButton(2)"));
    const bool holdsField = leavesField->isVisible() && leavesField->isEnabled();
    auto* storesField = mPanel->findChild<QAbstractButton*>(QStringLiteral("cmdNipCustomizeButton(3)"));
    (holdsField ? *storesField : saveButton()).click();
}

bool NipDesk::closeNip() {
    return !isNipOpen() || mPanel->requestClose();
}

bool NipDesk::isNipOpen() const {
    return mStack->currentWidget() == mPanel;
}

bool NipDesk::isModified() const {
    return isNipOpen() && mPanel->isModified();
}

QWidget* NipDesk::customizePane() const {
    return mPanel->findChild<QWidget*>(QStringLiteral("paneCustomize"));
}

void NipDesk::takeFocus() {
    if (!isNipOpen()) return mNew->setFocus(Qt::OtherFocusReason);
    for (QWidget* w = mPanel->nextInFocusChain(); mPanel->isAncestorOf(w); w = w->nextInFocusChain()) {
        if (w->isVisible() && w->isEnabled() && w->focusPolicy() & Qt::TabFocus)
            return w->setFocus(Qt::TabFocusReason);
    }
}

} // namespace Clinic

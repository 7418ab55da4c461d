#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <korvane/controls/nippanel/ButtonRow.h>
#include <korvane/controls/nippanel/EncounterPane.h>
#include <korvane/controls/nippanel/NipTabs.h>
#include <korvane/controls/nippanel/PanelForm.h>
#include <korvane/controls/nippanel/PanelMembers.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace Korvane {

namespace {

/// They search by any key that is typed, also by those that mean something to the panel.
bool swallowsKeys(const QObject* watched) {
    return qobject_cast<const QComboBox*>(watched) || qobject_cast<const QAbstractItemView*>(watched);
}

} // namespace

ucNIPPanel::ucNIPPanel(QWidget* parent) : UserControl(parent), m(std::make_unique<Members>(*this)) {
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m->form);
    setFocusProxy(m->form);
    connect(m->form, &PanelForm::closeClicked, this, [this] { m->click(ButtonRow::Cancel); });
    connect(&m->form->buttons(), &ButtonRow::clicked, this, [this](int button) { m->click(button); });
    connect(&m->form->tabs(), &NipTabs::edited, this, [this] { m->edited(); });
    connect(&m->form->encounterPane(), &EncounterPane::edited, this, [this] { m->edited(); });
    qApp->installEventFilter(this);
    m->arrange();
}

ucNIPPanel::~ucNIPPanel() = default;

QString ucNIPPanel::PatientID() const {
    return m->patientID;
}

bool ucNIPPanel::CustomizeOnly() const {
    return m->customizeOnly;
}

void ucNIPPanel::CustomizeOnly(bool on) {
    const bool leaves = m->customizeOnly && !on;
    m->customizeOnly = on;
    const QPointer<ucNIPPanel> alive(this);
    if (leaves) m->leaveCustomizing(); // which may ask, and let the host delete the panel meanwhile
    if (!alive) return;
    m->arrange();
    emit PropertyChanged("CustomizeOnly");
}

bool ucNIPPanel::AllowClosePanel() const {
    return m->allowClosePanel;
}

void ucNIPPanel::AllowClosePanel(bool on) {
    m->allowClosePanel = on;
    m->arrange();
    emit PropertyChanged("AllowClosePanel");
}

bool ucNIPPanel::NumbersGroups() const {
    return m->numbersGroups;
}

void ucNIPPanel::NumbersGroups(bool on) {
    m->numbersGroups = on;
    if (m->nip) m->nip->numbersGroups(on);
    emit PropertyChanged("NumbersGroups");
}

void ucNIPPanel::ReadProperties(const PropertyBag& bag) {
    CustomizeOnly(bag.ReadProperty("CustomizeOnly", false).toBool());
    AllowClosePanel(bag.ReadProperty("AllowClosePanel", true).toBool());
}

void ucNIPPanel::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("CustomizeOnly", CustomizeOnly(), false);
    bag.WriteProperty("AllowClosePanel", AllowClosePanel(), true);
}

void ucNIPPanel::SaveNipInfo() {
    m->saveNipInfo();
}

void ucNIPPanel::Initialize(const std::shared_ptr<ado::Connection>& connection) {
    m->initialize(connection);
}

void ucNIPPanel::CustomizeNip() {
    m->customize();
}

void ucNIPPanel::mEncounter_SavedNewEncounter() {
    if (m->nip && m->mEncounter) m->nip->EncounterID(m->mEncounter->EncounterID());
}

bool ucNIPPanel::CreateNip(const QString& patientID) {
    return m->createNip(patientID);
}

bool ucNIPPanel::LoadNipInfo(qint32 encounterID, const QString& patientID) {
    return m->loadNip(encounterID, patientID);
}

bool ucNIPPanel::isModified() const {
    return m->changed;
}

bool ucNIPPanel::requestClose() {
    return m->close();
}

void ucNIPPanel::showEvent(QShowEvent* event) {
    UserControl::showEvent(event);
    m->arrange();
}

void ucNIPPanel::keyPressEvent(QKeyEvent* event) {
    if (!pressed(*event)) UserControl::keyPressEvent(event);
}

bool ucNIPPanel::eventFilter(QObject* watched, QEvent* event) {
    return event->type() == QEvent::KeyPress && swallowsKeys(watched) &&
           isAncestorOf(static_cast<QWidget*>(watched)) && pressed(*static_cast<QKeyEvent*>(event));
}

/// Here rather than as shortcuts, so that a host's own keys come first.
bool ucNIPPanel::pressed(const QKeyEvent& key) {
    if (m->pressedWhileCustomizing(key)) return true;
    const bool save = key.matches(QKeySequence::Save);
    QPushButton& button = m->form->buttons().button(save ? ButtonRow::Save : ButtonRow::Cancel);
    if ((!save && !key.matches(QKeySequence::Cancel)) || !button.isVisible() || !button.isEnabled())
        return false;
    if (!key.isAutoRepeat()) button.click();
    return true;
}

} // namespace Korvane

#include <korvane/controls/nippanel/EncounterPane.h>

#include <korvane/controls/container/Text.h>
#include <korvane/data/SQLData.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace Korvane {

namespace {

QDateTimeEdit* makeDateEdit(QWidget* parent) {
    auto* edit = new QDateTimeEdit(parent);
    edit->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    edit->setDisplayFormat("M/d/yyyy h:mm AP");
    edit->setDateTimeRange(QDateTime(QDate(100, 1, 1), QTime(0, 0)),
                           QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59)));
    edit->setSpecialValueText(" "); // at the minimum, which stands for no date
    edit->setCalendarPopup(true);
    edit->setFocusPolicy(Qt::StrongFocus);
    return edit;
}

QComboBox* makeProviderCombo(QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setPlaceholderText("Choose a provider");
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(20);
    combo->setIconSize(QSize(0, 0)); // none are shown, but room for them would be kept
    combo->setFocusPolicy(Qt::StrongFocus);
    return combo;
}

QLabel* makeLabel(const QString& text, QWidget& buddy, const QString& objectName) {
    auto* label = new QLabel(text, buddy.parentWidget());
    label->setBuddy(&buddy);
    buddy.setObjectName(objectName);
    buddy.setAccessibleName(QString(text).remove('&').remove(':'));
    return label;
}

std::vector<std::pair<QString, std::int32_t>>
readProviders(const std::shared_ptr<ado::Connection>& connection) {
    std::vector<std::pair<QString, std::int32_t>> providers;
    SQLData query;
    if (!query.SQL(connection, "Select FirstName,LastName,ProviderID,ProviderType,Suffix From Provider",
                   false, AccessMode::Read))
        return providers;
    for (; !query.Eof(); query.NextRow()) {
        const QStringList words{qt(query.Data("ProviderType").text()), qt(query.Data("FirstName").text()),
                                qt(query.Data("LastName").text()), qt(query.Data("Suffix").text())};
        providers.emplace_back(words.join(' '), query.Data("ProviderID").toInt32());
    }
    return providers;
}

} // namespace

EncounterPane::EncounterPane(QWidget* parent)
    : QWidget(parent), mDescription(new QLineEdit(this)), mDate(makeDateEdit(this)),
      mProvider(makeProviderCombo(this)) {
    setObjectName("paneEncounter");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    mLabels[0] = makeLabel("&Description:", *mDescription, "txtEncounterInfo");
    mLabels[1] = makeLabel("Da&te:", *mDate, "pvdateEncounter");
    mLabels[2] = makeLabel("&Provider:", *mProvider, "pvcEncounterInfo");
    setTabOrder(mDescription, mDate);
    setTabOrder(mDate, mProvider);
    setFocusProxy(mDescription);
    arrange();

    connect(mDescription, &QLineEdit::textChanged, this, &EncounterPane::edited);
    connect(mDate, &QDateTimeEdit::dateTimeChanged, this, &EncounterPane::edited);
    connect(mProvider, &QComboBox::currentIndexChanged, this, &EncounterPane::edited);
    mDate->installEventFilter(this);
    mProvider->installEventFilter(this);
}

void EncounterPane::fill(const Encounter& encounter, const std::shared_ptr<ado::Connection>& connection) {
    const QSignalBlocker quiet(this);
    offer(readProviders(connection));
    mDescription->setText(qt(encounter.Description()));
    mDescription->home(false);
    mDate->setDateTime(qt(encounter.EncounterDate()));
    mProvider->setCurrentIndex(mProvider->findData(encounter.ProviderID()));
    settle(encounter);
}

void EncounterPane::clear() {
    const QSignalBlocker quiet(this);
    mDescription->clear();
    mProvider->setCurrentIndex(-1);
    mDate->setDateTime(mDate->minimumDateTime());
    settle(Encounter());
}

void EncounterPane::settle(const Encounter& encounter) {
    mOriginalDescription = encounter.Description();
    mOriginalDate = encounter.EncounterDate();
    mShownDescription = mDescription->text();
    mShownDate = mDate->dateTime();
    mShownProvider = mProvider->currentIndex();
}

std::string EncounterPane::Description() const {
    const QString text = mDescription->text();
    return text == mShownDescription ? mOriginalDescription : utf8(text);
}

Date EncounterPane::EncounterDate() const {
    const QDateTime date = mDate->dateTime();
    return date == mShownDate ? mOriginalDate : fromQt(date);
}

bool EncounterPane::renames(const Encounter& encounter) const {
    return Description() != encounter.Description() || EncounterDate() != encounter.EncounterDate();
}

void EncounterPane::copyInto(Encounter& encounter) const {
    encounter.Description(Description());
    encounter.EncounterDate(EncounterDate());
    if (mProvider->currentIndex() >= 0) encounter.ProviderID(mProvider->currentData().toInt());
}

bool EncounterPane::isEdited() const {
    return mDescription->text() != mShownDescription || mDate->dateTime() != mShownDate ||
           mProvider->currentIndex() != mShownProvider;
}

void EncounterPane::focusDescription() {
    mDescription->setFocus(Qt::OtherFocusReason);
}

void EncounterPane::focusProvider() {
    mProvider->setFocus(Qt::OtherFocusReason);
}

/// Most fills find the same providers again: the combo is then left as it is.
void EncounterPane::offer(std::vector<Provider> providers) {
    if (providers == mProviders) return;
    mProviders = std::move(providers);
    mProvider->clear();
    for (const auto& [name, id] : mProviders)
        mProvider->addItem(name, id);
    mProvider->view()->setMinimumWidth(mProvider->view()->sizeHintForColumn(0) +
                                       mProvider->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

/// A wheel that passes over the pane while the user scrolls must not change what is recorded.
bool EncounterPane::eventFilter(QObject* watched, QEvent* event) {
    const auto* control = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Wheel || !control || control->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace Korvane

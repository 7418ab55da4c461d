#include <korvane/controls/nippanel/EncounterPane.h>

#include <korvane/controls/container/PageCombo.h>
#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/EncounterDateEdit.h>
#include <korvane/data/SQLData.h>

#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <limits>
#include <optional>

namespace Korvane {

namespace {

QLineEdit* makeDescription(QWidget* parent) {
    auto* edit = new QLineEdit(parent);
    edit->setMaxLength(std::numeric_limits<int>::max());
    return edit;
}

PageCombo* makeProviderCombo(QWidget* parent) {
    auto* combo = new PageCombo(parent);
    combo->setPlaceholderText(EncounterPane::tr("Choose a provider"));
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(20);
    combo->setIconSize(QSize(0, 0)); // none are shown, but room for them would be kept
    return combo;
}

QLabel* makeLabel(const QString& text, QWidget& buddy, const QString& objectName) {
    auto* label = new QLabel(text, buddy.parentWidget());
    label->setBuddy(&buddy);
    buddy.setObjectName(objectName);
    buddy.setAccessibleName(QString(text).remove('&').remove(':'));
    return label;
}

/// Nothing when they cannot be read.
std::optional<std::vector<std::pair<QString, std::int32_t>>>
readProviders(const std::shared_ptr<ado::Connection>& connection) {
    std::vector<std::pair<QString, std::int32_t>> providers;
    SQLData query;
    if (!query.SQL(connection, "Select FirstName,LastName,ProviderID,ProviderType,Suffix From Provider",
                   false, AccessMode::Read))
        return std::nullopt;
    for (; !query.Eof(); query.NextRow()) {
        const QStringList words{qt(query.Data("ProviderType").text()), qt(query.Data("FirstName").text()),
                                qt(query.Data("LastName").text()), qt(query.Data("Suffix").text())};
        providers.emplace_back(words.join(' '), query.Data("ProviderID").toInt32());
    }
    if (query.LastError()) return std::nullopt;
    return providers;
}

} // namespace

EncounterPane::EncounterPane(QWidget* parent)
    : QWidget(parent), mDescription(makeDescription(this)), mDate(new EncounterDateEdit(this)),
      mProvider(makeProviderCombo(this)) {
    setObjectName("paneEncounter");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    mLabels[0] = makeLabel(tr("De&scription:"), *mDescription, "txtEncounterInfo");
    mLabels[1] = makeLabel(tr("Da&te:"), *mDate, "pvdateEncounter");
    mLabels[2] = makeLabel(tr("&Provider:"), *mProvider, "pvcEncounterInfo");
    setTabOrder(mDescription, mDate);
    setTabOrder(mDate, mProvider);
    setFocusProxy(mDescription);
    arrange();

    connect(mDescription, &QLineEdit::textChanged, this, &EncounterPane::edited);
    connect(mDate, &QDateTimeEdit::dateTimeChanged, this, &EncounterPane::edited);
    connect(mDate, &EncounterDateEdit::typed, this, &EncounterPane::edited);
    connect(mProvider, &QComboBox::currentIndexChanged, this, &EncounterPane::edited);
}

bool EncounterPane::fill(const Encounter& encounter, const std::shared_ptr<ado::Connection>& connection) {
    auto providers = readProviders(connection);
    if (!providers) return false;
    const QSignalBlocker quiet(this);
    offer(std::move(*providers));
    mDescription->setText(qt(encounter.Description()));
    mDescription->home(false);
    mDate->setDateTime(qt(encounter.EncounterDate()));
    mProvider->setCurrentIndex(mProvider->findData(encounter.ProviderID()));
    settle(encounter);
    return true;
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
    mShownDateText = mDate->text();
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
    if (hasProvider()) encounter.ProviderID(mProvider->currentData().toInt());
}

bool EncounterPane::isEdited() const {
    return mDescription->text() != mShownDescription || mDate->dateTime() != mShownDate ||
           mDate->text() != mShownDateText || mProvider->currentIndex() != mShownProvider;
}

bool EncounterPane::takeDate() {
    return mDate->take();
}

bool EncounterPane::hasProvider() const {
    return mProvider->currentIndex() >= 0;
}

void EncounterPane::focusDate() {
    mDate->setFocus(Qt::OtherFocusReason);
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
}

} // namespace Korvane

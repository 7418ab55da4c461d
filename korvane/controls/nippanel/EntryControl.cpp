#include <korvane/controls/nippanel/EntryControl.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Twips.h>

#include <QVariant>
#include <QWidget>

namespace Korvane {

QString EntrySite::caption() const {
    return qt(nip.Caption(group, field));
}

QString EntrySite::storedText() const {
    return qt(nip.value(group, field).textOrEmpty());
}

void EntrySite::store(const QString& text) const {
    nip.value(group, field, utf8(text));
}

QStringList EntrySite::storedEntries() const {
    const int count = nip.ChoiceListCount(group, field);
    QStringList entries;
    for (int i = 0; i < count; ++i)
        entries << qt(nip.ChoiceList(group, field).array().at(i).textOrEmpty());
    return entries;
}

QStringList EntrySite::allowedValues() const {
    QStringList values;
    const int count = nip.ValueListCount(group, field);
    for (int i = 1; i <= count; ++i)
        values << qt(nip.ValueList(group, field).array().at(i).textOrEmpty());
    return values;
}

QString EntrySite::tag() const {
    return QString::number(group) + QLatin1String("::") + QString::number(field);
}

QString EntrySite::elementName(const char* controlArray, int element) {
    return QLatin1String(controlArray) + QLatin1Char('(') + QString::number(element) + QLatin1Char(')');
}

void EntryControl::fill() {
    showValue();
    mShown = content();
    mKnown = known();
}

void EntryControl::collect() {
    QStringList now = content();
    if (now == mShown) return;
    store(now);
    mShown = std::move(now);
    mKnown = known();
}

void EntryControl::moveTo(const EntryPlace& place) {
    static_cast<EntryPlace&>(mSite) = place;
    identify();
}

// What was typed over a value that is still there is an entry of this encounter's; it outlives a list of
// allowed values.
void EntryControl::refresh() {
    const Known now = known();
    if (now == mKnown) return;
    if (now.hasValueOf(mKnown)) collect();
    fill();
}

EntryControl::Known EntryControl::known() const {
    return {mSite.storedText(), mSite.storedEntries(), mSite.allowedValues(),
            mSite.nip.maxLength(mSite.group, mSite.field)};
}

void EntryControl::store(const QStringList& content) {
    mSite.store(content.value(0));
}

int EntryControl::height(const Twips& twips, int) const {
    return twips.px(Twips::oneLine);
}

void EntryControl::place(const QRect& area, const Twips&) {
    widget()->setGeometry(area);
}

void EntryControl::identify() {
    QWidget& own = *widget();
    own.setObjectName(EntrySite::elementName(mSite.array, mSite.index));
    own.setProperty("Tag", mSite.tag());
    own.setAccessibleName(mSite.caption());
}

} // namespace Korvane

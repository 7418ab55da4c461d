#include <korvane/controls/container/PropertyBag.h>

#include <korvane/runtime/RuntimeError.h>

#include <QJsonDocument>
#include <QSettings>

namespace Korvane {

namespace {

class Group {
  public:
    Group(QSettings& settings, const QString& name) : mSettings(settings) {
        if (name.isEmpty()) throw RuntimeError(RuntimeError::InvalidProcedureCall);
        mSettings.beginGroup(name);
    }
    ~Group() { mSettings.endGroup(); }
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

  private:
    QSettings& mSettings;
};

} // namespace

QJsonObject PropertyBag::toJson() const {
    return QJsonObject::fromVariantMap(mValues);
}

PropertyBag PropertyBag::fromJson(const QJsonObject& object) {
    PropertyBag bag;
    bag.mValues = object.toVariantMap();
    return bag;
}

QByteArray PropertyBag::Contents() const {
    return QJsonDocument(toJson()).toJson();
}

void PropertyBag::Contents(const QByteArray& bytes) {
    QJsonParseError error{};
    const auto document = QJsonDocument::fromJson(bytes, &error);
    *this = fromJson(document.object());
    if (document.isObject()) return;
    const QString why = document.isNull() ? error.errorString() : QStringLiteral("no names");
    mProblems[QString()] =
        QStringLiteral("These are no properties: %1 at character %2").arg(why).arg(error.offset);
}

void PropertyBag::save(QSettings& settings, const QString& group) const {
    const Group inside(settings, group);
    settings.remove(QString());
    for (auto each = mValues.begin(); each != mValues.end(); ++each)
        settings.setValue(each.key(), each.value());
}

PropertyBag PropertyBag::load(QSettings& settings, const QString& group) {
    const Group inside(settings, group);
    PropertyBag bag;
    for (const QString& name : settings.childKeys())
        bag.mValues.insert(name, settings.value(name));
    return bag;
}

} // namespace Korvane

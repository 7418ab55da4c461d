#include <korvane/controls/container/PropertyBag.h>

#include <korvane/runtime/RuntimeError.h>

#include <QJsonArray>
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

QString nameOf(const QByteArray& written) {
    return QJsonDocument::fromJson("[\"" + written + "\"]").array().at(0).toString();
}

/// The names that an object has more than once. Qt's parser takes the last of their values and says nothing.
QSet<QString> repeatedNames(const QByteArray& json) {
    QSet<QString> seen, repeated;
    QByteArray text;
    int depth = 0;
    for (qsizetype i = 0; i < json.size(); ++i) {
        const char c = json[i];
        if (c == '"') {
            const qsizetype from = ++i;
            while (json[i] != '"')
                i += json[i] == '\\' ? 2 : 1;
            text = json.mid(from, i - from);
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            --depth;
        } else if (c == ':' && depth == 1) {
            const QString name = nameOf(text);
            (seen.contains(name) ? repeated : seen).insert(name);
        }
    }
    return repeated;
}

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
    if (document.isObject()) {
        for (const QString& name : repeatedNames(bytes))
            mProblems[name] = tr("%1 stands there more than once: the last is used").arg(name);
        return;
    }
    const QString why = document.isNull() ? error.errorString() : tr("no names");
    mProblems[QString()] = tr("These are no properties: %1 at character %2").arg(why).arg(error.offset);
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
    for (const QString& name : settings.childGroups())
        bag.mProblems[name] = tr("%1 is a group, and no property that is kept").arg(name);
    if (settings.status() == QSettings::FormatError)
        bag.mProblems[QString()] = tr("The settings hold lines that cannot be read: what they "
                                      "were meant for is taken at its default");
    return bag;
}

} // namespace Korvane

#include <korvane/controls/container/PropertyValue.h>

#include <korvane/controls/container/PropertyBag.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonValue>

#include <cmath>
#include <optional>

namespace Korvane {

namespace {

bool isText(const QVariant& value) {
    return value.typeId() == QMetaType::QString;
}

bool isBoolean(const QVariant& value) {
    return value.typeId() == QMetaType::Bool;
}

bool isWholeType(QMetaType type) {
    switch (type.id()) {
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return type.flags() & QMetaType::IsEnumeration;
    }
}

bool isNumberType(QMetaType type) {
    return isWholeType(type) || type.id() == QMetaType::Double || type.id() == QMetaType::Float;
}

std::optional<double> numberOf(const QVariant& value) {
    if (!isText(value) && !isNumberType(value.metaType())) return std::nullopt;
    bool ok = false;
    const double number = value.toDouble(&ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

QString textOfBoolean(bool value) {
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QVariant textOf(const QVariant& value) {
    if (isBoolean(value)) return textOfBoolean(value.toBool());
    const bool simple = isText(value) || isNumberType(value.metaType());
    return simple ? QVariant(value.toString()) : QVariant();
}

QVariant booleanOf(const QVariant& value) {
    if (isBoolean(value)) return value;
    for (const bool each : {true, false})
        if (isText(value) && value.toString().compare(textOfBoolean(each), Qt::CaseInsensitive) == 0)
            return each;
    const auto number = numberOf(value);
    return number ? QVariant(*number != 0) : QVariant();
}

/// Every whole number that a control keeps is small enough for a `double`.
QVariant wholeOf(const QVariant& value, QMetaType type) {
    const auto number = numberOf(value);
    constexpr double most = 9007199254740992.0;
    if (!number || std::trunc(*number) != *number || std::abs(*number) > most) return {};
    QVariant whole(static_cast<qlonglong>(*number));
    return whole.convert(type) && whole.toDouble() == *number ? whole : QVariant();
}

} // namespace

QVariant propertyValue(const QVariant& value, QMetaType type) {
    if (type.id() == QMetaType::QString) return textOf(value);
    if (type.id() == QMetaType::Bool) return booleanOf(value);
    if (isWholeType(type)) return wholeOf(value, type);
    QVariant converted = value;
    return converted.convert(type) ? converted : QVariant();
}

QString notOfType(QMetaType type) {
    if (type.id() == QMetaType::QString) return PropertyBag::tr("that is no text");
    if (type.id() == QMetaType::Bool) return PropertyBag::tr("that is no \"True\" or \"False\"");
    if (type.id() == QMetaType::Short) return PropertyBag::tr("that is no whole number of 16 bits");
    if (isWholeType(type)) return PropertyBag::tr("that is no whole number");
    return PropertyBag::tr("that is no %1").arg(QLatin1String(type.name()));
}

QString shownValue(const QVariant& value) {
    if (isText(value)) return u'"' + value.toString() + u'"';
    const QVariant simple = textOf(value);
    if (simple.isValid()) return simple.toString();
    const auto json = QJsonValue::fromVariant(value);
    if (json.isNull()) return PropertyBag::tr("nothing");
    const QByteArray listed = QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(listed.mid(1, listed.size() - 2));
}

} // namespace Korvane

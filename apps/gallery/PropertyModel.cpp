#include "gallery/PropertyModel.h"

#include <QColor>
#include <QFont>
#include <QMetaEnum>

namespace Gallery {

namespace {

bool isFlag(const QMetaProperty& property) {
    return property.typeId() == QMetaType::Bool;
}

bool isColour(const QMetaProperty& property) {
    return property.typeId() == QMetaType::QColor;
}

QStringList choicesOf(const QMetaProperty& property) {
    QStringList names;
    if (!property.isEnumType()) return names;
    const QMetaEnum values = property.enumerator();
    for (int i = 0; i < values.keyCount(); ++i)
        names << QString::fromLatin1(values.key(i));
    return names;
}

/// "ThreeDimensional (1)"; a number without a name alone.
QString shownCode(const QMetaProperty& property, int code) {
    const char* name = property.enumerator().valueToKey(code);
    return name ? QStringLiteral("%1 (%2)").arg(QLatin1String(name)).arg(code) : QString::number(code);
}

QString shownKept(const QMetaProperty& property) {
    if (!property.isWritable()) return PropertyModel::tr("read only");
    return property.isStored() ? PropertyModel::tr("yes") : PropertyModel::tr("no");
}

QString explanation(const QMetaProperty& property) {
    if (!property.isWritable()) return PropertyModel::tr("The control tells it; nobody sets it.");
    return property.isStored()
               ? PropertyModel::tr("The host's property bag keeps it.")
               : PropertyModel::tr("It lasts as long as the control: no property bag keeps it.");
}

QFont fontFor(const QMetaProperty& property) {
    QFont font;
    font.setItalic(!property.isStored() || !property.isWritable());
    return font;
}

} // namespace

PropertyModel::PropertyModel(Korvane::UserControl& control)
    : QAbstractTableModel(&control), mControl(control), mProperties(control.ownProperties()) {}

void PropertyModel::refresh() {
    emit dataChanged(index(0, Value), index(rowCount() - 1, Kept));
}

int PropertyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mProperties.size());
}

int PropertyModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant PropertyModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    const QStringList titles{tr("Property"), tr("Value"), tr("Kept")};
    return titles.value(section);
}

QVariant PropertyModel::data(const QModelIndex& index, int role) const {
    const QMetaProperty& property = propertyAt(index);
    if (role == Qt::ToolTipRole) return explanation(property);
    if (role == Qt::FontRole) return fontFor(property);
    if (index.column() == Value) return valueOf(property, role);
    if (role != Qt::DisplayRole) return {};
    return index.column() == Name ? QString::fromLatin1(property.name()) : shownKept(property);
}

QVariant PropertyModel::valueOf(const QMetaProperty& property, int role) const {
    const QVariant value = property.read(&mControl);
    if (role == choicesRole) return choicesOf(property);
    if (isFlag(property)) {
        if (role == Qt::CheckStateRole) return value.toBool() ? Qt::Checked : Qt::Unchecked;
        return role == Qt::DisplayRole ? QVariant(value.toBool() ? tr("True") : tr("False")) : QVariant();
    }
    if (isColour(property) && role == Qt::DecorationRole) return value;
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    if (isColour(property)) return value.value<QColor>().name();
    if (!property.isEnumType()) return value;
    if (role == Qt::DisplayRole) return shownCode(property, value.toInt());
    return QString::fromLatin1(property.enumerator().valueToKey(value.toInt()));
}

bool PropertyModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const QMetaProperty& property = propertyAt(index);
    bool taken = false;
    if (isFlag(property))
        taken = role == Qt::CheckStateRole && property.write(&mControl, value.toInt() == Qt::Checked);
    else if (isColour(property) && value.toString().isEmpty())
        taken = property.reset(&mControl);
    else if (isColour(property))
        taken = QColor::isValidColor(value.toString()) && property.write(&mControl, QColor(value.toString()));
    else
        taken = property.write(&mControl, value);
    refresh();
    if (!taken) emit refused(QString::fromLatin1(property.name()), value.toString());
    return taken;
}

Qt::ItemFlags PropertyModel::flags(const QModelIndex& index) const {
    const QMetaProperty& property = propertyAt(index);
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.column() != Value || !property.isWritable()) return flags;
    return flags | (isFlag(property) ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

const QMetaProperty& PropertyModel::propertyAt(const QModelIndex& index) const {
    return mProperties.at(static_cast<std::size_t>(index.row()));
}

} // namespace Gallery

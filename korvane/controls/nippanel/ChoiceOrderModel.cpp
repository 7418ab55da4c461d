#include <korvane/controls/nippanel/ChoiceOrderModel.h>

#include <korvane/controls/nippanel/ListEntryText.h>

#include <algorithm>

namespace Korvane {

QString ChoiceOrderModel::cleaned(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    for (QChar& c : text)
        if (c < QLatin1Char(' ') || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = QLatin1Char(' ');
    return text.trimmed();
}

QString ChoiceOrderModel::fault(const QString& text, int row) const {
    const QString choice = cleaned(text);
    if (row >= 0 && isChoice(row)) {
        const QString& now = rows()[static_cast<std::size_t>(row)].content;
        if (now == text || now == choice) return {};
    }
    if (choice.isEmpty()) return tr("A choice cannot be empty.");
    QString entry = listEntryFault(choice);
    if (!entry.isEmpty()) return entry;
    int at = 0;
    for (const ChoiceRow& other : rows())
        if (at++ != row && other.index != 0 && other.content.compare(choice, Qt::CaseInsensitive) == 0)
            return tr("The list already has the choice \"%1\". Two choices cannot be the same; "
                      "capital and small letters count as the same.")
                .arg(other.content);
    return {};
}

QStringList ChoiceOrderModel::choices() const {
    QStringList all;
    for (const ChoiceRow& row : rows())
        if (row.index != 0) all << row.content;
    return all;
}

int ChoiceOrderModel::checkedChoice() const {
    int place = 0;
    for (const ChoiceRow& row : rows()) {
        if (row.index == 0) continue;
        if (row.checked) return place;
        ++place;
    }
    return -1;
}

QVariant ChoiceOrderModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::EditRole) return ChoiceModel::data(index, Qt::DisplayRole);
    if (!index.isValid() || isChoice(index.row())) return ChoiceModel::data(index, role);
    return role == Qt::CheckStateRole ? QVariant() : ChoiceModel::data(index, role);
}

bool ChoiceOrderModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return false;
    if (role == Qt::EditRole) return rename(index.row(), value.toString());
    return isChoice(index.row()) && ChoiceModel::setData(index, value, role);
}

bool ChoiceOrderModel::rename(int row, const QString& text) {
    if (!fault(text, row).isEmpty()) return false;
    ChoiceRow& choice = at(row);
    const QString name = cleaned(text);
    if (choice.index != 0 && (name == choice.content || text == choice.content)) return true;
    choice.content = name;
    if (choice.index == 0) choice.index = rowCount();
    emit dataChanged(index(row), index(row), {Qt::DisplayRole, Qt::EditRole, IndexRole});
    return true;
}

Qt::ItemFlags ChoiceOrderModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags row = ChoiceModel::flags(index) | Qt::ItemIsEditable;
    return isChoice(index.row()) ? row | Qt::ItemIsDragEnabled : row & ~Qt::ItemIsUserCheckable;
}

} // namespace Korvane

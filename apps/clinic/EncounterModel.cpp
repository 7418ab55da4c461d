#include "clinic/EncounterModel.h"

#include "clinic/Show.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace Clinic {

namespace {

bool newerFirst(const EncounterLine& a, const EncounterLine& b) {
    return a.date != b.date ? a.date > b.date : a.id > b.id;
}

} // namespace

EncounterModel::EncounterModel(QObject* parent) : QAbstractTableModel(parent) {}

void EncounterModel::setEncounters(std::vector<EncounterLine> lines) {
    beginResetModel();
    mLines = std::move(lines);
    endResetModel();
}

void EncounterModel::rename(qint32 encounterID, const QString& description, Korvane::Date date) {
    const int from = rowOf(encounterID);
    if (from < 0) return;
    EncounterLine line = mLines[static_cast<std::size_t>(from)];
    line.description = description;
    line.date = date;
    const auto before = std::count_if(mLines.begin(), mLines.end(), [&](const EncounterLine& other) {
        return other.id != encounterID && newerFirst(other, line);
    });
    const int to = static_cast<int>(before);
    if (to != from) {
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        mLines.erase(mLines.begin() + from);
        mLines.insert(mLines.begin() + to, line);
        endMoveRows();
    } else {
        mLines[static_cast<std::size_t>(from)] = line;
    }
    emit dataChanged(index(to, 0), index(to, ColumnCount - 1));
}

void EncounterModel::setOpen(qint32 encounterID) {
    if (mOpen == encounterID) return;
    mOpen = encounterID;
    if (!mLines.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

const EncounterLine& EncounterModel::at(int row) const {
    return mLines.at(static_cast<std::size_t>(row));
}

int EncounterModel::rowOf(qint32 encounterID) const {
    const auto found =
        std::find_if(mLines.begin(), mLines.end(), [&](const auto& line) { return line.id == encounterID; });
    return found == mLines.end() ? -1 : static_cast<int>(found - mLines.begin());
}

int EncounterModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mLines.size());
}

int EncounterModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString EncounterModel::text(const EncounterLine& line, int column) const {
    switch (column) {
    case Date:
        return isAloneInItsDay(line) ? dayText(line.date) : momentText(line.date);
    case Description:
        return line.description.isEmpty() ? tr("(no description)") : line.description.simplified();
    default:
        return line.provider;
    }
}

// The time of day is shown where it tells two encounters apart.
bool EncounterModel::isAloneInItsDay(const EncounterLine& line) const {
    const auto row = static_cast<std::size_t>(&line - mLines.data());
    const auto sameDay = [&](std::size_t other) { return dayText(mLines[other].date) == dayText(line.date); };
    return !(row > 0 && sameDay(row - 1)) && !(row + 1 < mLines.size() && sameDay(row + 1));
}

QString EncounterModel::toolTip(const EncounterLine& line, int column) const {
    if (column == Date) return momentText(line.date);
    return column == Description ? line.description : text(line, column);
}

QVariant EncounterModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const EncounterLine& line = at(index.row());
    const bool open = line.id == mOpen;
    switch (role) {
    case Qt::DisplayRole:
        return text(line, index.column());
    case Qt::ToolTipRole:
        return toolTip(line, index.column());
    case Qt::AccessibleTextRole:
        return open && index.column() == Date ? tr("%1, open").arg(text(line, Date))
                                              : text(line, index.column());
    case Qt::FontRole:
        if (open) {
            QFont font; // only its weight counts, the size is the view's
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::ForegroundRole:
        if (index.column() == Description && line.description.isEmpty())
            return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
        return {};
    default:
        return {};
    }
}

QVariant EncounterModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    const QStringList names{tr("Date"), tr("Description"), tr("Provider")};
    return names.value(section);
}

} // namespace Clinic

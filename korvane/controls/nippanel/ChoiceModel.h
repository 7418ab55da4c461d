#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

namespace Korvane {

/// One row of a list grid.
struct ChoiceRow {
    bool checked = false; ///< the column "Checked"
    QString content;
    int index = 0; ///< the column "Index", from 1; 0: a row that is no choice yet
};

/// The rows of a list grid. Rows that are shown anew reset the model; only what a user does afterwards raises
/// `dataChanged`, `rowsInserted` and `rowsRemoved`.
class ChoiceModel : public QAbstractListModel {
  public:
    /// How many rows can be checked. With `None` the rows have no check box.
    enum Checking { None, One, Many };
    static constexpr int IndexRole = Qt::UserRole;

    ChoiceModel(Checking checking, QObject* parent) : QAbstractListModel(parent), mChecking(checking) {}

    void show(std::vector<ChoiceRow> rows);
    /// Adds a row at the end, its "Index" the number of rows then.
    void append(const QString& content);
    void insert(int row, ChoiceRow choice);
    /// Puts a row before another one, or with `before` the number of rows behind all.
    void move(int row, int before);
    void remove(int row);
    /// Checks or unchecks a row; where one row can be checked, checking it unchecks the others.
    void toggle(int row);

    QStringList contents() const;
    QStringList checkedContents() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QHash<int, QByteArray> roleNames() const override;

  protected:
    ChoiceRow& at(int row) { return mRows[static_cast<std::size_t>(row)]; }
    const std::vector<ChoiceRow>& rows() const { return mRows; }

  private:
    std::vector<ChoiceRow> mRows;
    Checking mChecking;
};

} // namespace Korvane

#pragma once

#include <QTableView>

#include <initializer_list>

namespace Clinic {

/// A list of whole rows: one is chosen at a time, Tab leaves it, rows are as high as the font needs, the
/// chosen row is paler while the focus is elsewhere, and an empty list says why it is empty.
class RowTable : public QTableView {
    Q_OBJECT

  public:
    explicit RowTable(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    /// Makes columns share the room that the others leave, none narrower than its heading. Once, when there
    /// is a model.
    void setStretchColumns(std::initializer_list<int> columns);

    /// What is shown in place of rows while there are none.
    void setEmptyText(const QString& text);

    /// The row that is chosen; -1 when none is.
    int chosenRow() const;
    /// Without raising `chosen`; -1 chooses none.
    void setChosenRow(int row);

  signals:
    /// The user chose another row.
    void chosen(int row);

  protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

  private:
    void fitRows();

    QString mEmptyText;
    bool mSetting = false;
};

} // namespace Clinic

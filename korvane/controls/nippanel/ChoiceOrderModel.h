#pragma once

#include <korvane/controls/nippanel/ChoiceModel.h>

namespace Korvane {

/// The choices of a field in their order, at most one of them checked: the field's default value.
///
/// A row whose `index` is 0 is no choice yet: the place behind the last choice while one is dragged, a copy
/// that has not been given a text of its own. Naming it (`setData` with `Qt::EditRole`) makes it a choice.
/// What was shown stays as it is, also a choice that could not be entered now.
class ChoiceOrderModel : public ChoiceModel {
    Q_OBJECT

  public:
    explicit ChoiceOrderModel(QObject* parent) : ChoiceModel(One, parent) {}

    /// The text of a choice as it is kept: on one line (a line break or tab is a blank, as a one-line box
    /// shows it) and without blanks at the ends.
    static QString cleaned(QString text);

    /// Why a text cannot be the choice in a row (-1: a further one), for the user; empty when it can. It has
    /// to have a character besides blanks, be an entry that a list can hold, and differ from every other
    /// choice in more than case.
    QString fault(const QString& text, int row = -1) const;

    bool isChoice(int row) const { return rows()[static_cast<std::size_t>(row)].index != 0; }
    QStringList choices() const;
    /// The place of the checked one among `choices`; -1 when there is none.
    int checkedChoice() const;

    QVariant data(const QModelIndex& index, int role) const override;
    /// Refuses a text with a fault.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    bool rename(int row, const QString& text);
};

} // namespace Korvane

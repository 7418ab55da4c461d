#pragma once

#include "clinic/tour/Ledger.h"
#include "shared/Hand.h"

#include <QStringList>

class QAbstractItemView;
class QComboBox;

namespace Clinic {

/// A field of the form, by the names that the structure gives it.
struct FieldName {
    std::string group;
    std::string field;
};

/// The form in the Nip panel, as a user fills and reads it: the tab is shown, the control found, and keys and
/// clicks do the rest.
class Form {
  public:
    Form(QWidget& panel, Apps::Hand& hand, const Ledger& ledger);

    /// The control of a field, in view. Fails when there is none.
    QWidget& control(const FieldName& name);

    /// Puts a text in place of what a text box or an editable combo box holds.
    void write(QWidget& control, const QString& text);

    /// Opens the list of a combo box, lets `look` see it, and takes the item.
    void pick(QComboBox& combo, const QString& item, const std::function<void()>& look);

    /// Turns the check box of a row.
    void check(QAbstractItemView& grid, const QString& row);

    /// A button of a list that the user edits: 1 is "Add", 2 is "Remove".
    QWidget& button(const FieldName& name, int number);

    /// What a control shows: a text, the checked rows, or, of a list that the user edits, all rows. Joined by
    /// "|", as the database holds them.
    QString shown(const FieldName& name);

  private:
    QWidget& tagged(const QString& tag);
    void showTab(int index);

    QWidget& mPanel;
    Apps::Hand& mHand;
    const Ledger& mLedger;
};

} // namespace Clinic

#pragma once

#include <korvane/controls/nippanel/EntryControl.h>

#include <QStringList>

class QComboBox;

namespace Korvane {

/// "COMBOBOX" and "COMBOBOX-RESTRICTED": a combo box with the field's values; a stored value that is no
/// longer among them stands at the end. The former takes any text, as it is typed; the latter only its items,
/// of which the first is empty, so that an answer can be taken back.
class ComboEntry : public EntryControl {
  public:
    /// What may be entered: "Combobox" and "Combobox-Restricted".
    enum Accepts { AnyText, ItemsOnly };

    ComboEntry(EntrySite entrySite, Accepts accepts);

    QWidget* widget() const override;

  private:
    void showValue() override;
    QStringList content() const override;
    QStringList itemsFor(const QString& stored) const;

    QComboBox* mCombo;
    Accepts mAccepts;
};

} // namespace Korvane

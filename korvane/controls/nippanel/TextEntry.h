#pragma once

#include <korvane/controls/nippanel/EntryControl.h>

class QLineEdit;

namespace Korvane {

/// "TEXT": a text box. It holds at most the field's `maxLength` characters (0: no limit), except that a
/// longer text that was loaded is shown whole; the user can then only shorten it. Of what does not fit, the
/// part that does is taken, never half a character.
class TextEntry : public EntryControl {
  public:
    explicit TextEntry(EntrySite entrySite);

    QWidget* widget() const override;

  private:
    void showValue() override;
    QStringList content() const override;
    void limitLength(const QString& loaded);

    QLineEdit* mBox;
};

} // namespace Korvane

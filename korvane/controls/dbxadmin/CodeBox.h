#pragma once

#include <korvane/controls/container/PageCombo.h>

namespace Korvane {

/// A choice among texts, the code of each being its place in the list. A code that has no text is kept and
/// its number shown and read out, until the user chooses another one; -1 shows nothing.
class CodeBox : public PageCombo {
    Q_OBJECT

  public:
    CodeBox(const QStringList& texts, QWidget* parent);

    qint16 code() const;
    /// Raises no signal.
    void setCode(qint16 code);

    QSize minimumSizeHint() const override;

  private:
    qint16 mCode = 0; ///< the one set last
};

} // namespace Korvane

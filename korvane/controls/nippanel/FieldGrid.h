#pragma once

#include <QTreeWidget>

#include <cstdint>

namespace Korvane {

class cNIP;

/// The fields of a group, a row for each (`gridNipFields`): name, caption, display type, width and row. The
/// current row is the field that is being edited.
class FieldGrid : public QTreeWidget {
    Q_OBJECT

  public:
    explicit FieldGrid(QWidget* parent = nullptr);

    /// Raises no `chosen`, nor does `mark`.
    void list(const cNIP* nip, std::int16_t group);
    /// Makes a field the current one; 0: none.
    void mark(std::int16_t field);

    /// A few rows, whatever the font.
    QSize minimumSizeHint() const override;

  signals:
    /// The user went to another field. Raised from the event loop: whoever hears of it may ask something.
    void chosen(int field);

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    void tell();

    std::int16_t mMarked = 0;
};

} // namespace Korvane

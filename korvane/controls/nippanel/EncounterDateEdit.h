#pragma once

#include <QDateTimeEdit>

namespace Korvane {

/// The date editor of the encounter pane (`pvdateEncounter`). It takes what is typed as plain text, so that a
/// whole date comes out as it was typed, and keeps a text that is no date for the user to mend:
///
///     if (!edit->take()) ...      // before the date is used
///
/// Up and Down step the part where the cursor stands; Tab leaves the editor; the wheel is the page's. The
/// minimum stands for no date and is shown as a blank.
class EncounterDateEdit : public QDateTimeEdit {
    Q_OBJECT

  public:
    explicit EncounterDateEdit(QWidget* parent = nullptr);

    /// Makes what was typed the date. False, with the text left as it is, when it is none.
    bool take();

    void stepBy(int steps) override;

  signals:
    /// The user changed the text; the date is the one before until it is taken.
    void typed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    QValidator::State validate(QString& text, int& position) const override;
    QDateTime dateTimeFromText(const QString& text) const override;
    /// Nothing: the base would make some other date of one that does not exist.
    void fixup(QString&) const override {}

  private:
    bool isShown(const QString& text) const;
    bool passesOver(const QString& separator);
};

} // namespace Korvane

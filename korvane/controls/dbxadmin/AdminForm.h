#pragma once

#include <korvane/controls/container/PaneScroll.h>

#include <QLabel>
#include <QLineEdit>

#include <array>

class QBoxLayout;
class QFormLayout;

namespace Korvane {

class CodeBox;
class CommandButton;
class MoveRow;
class UserControl;
class ValueList;

/// The parts of a field administration control and where they are: captions and entries, the list of values
/// beside or below them, the move buttons and the update button last. What has no room is scrolled to.
class AdminForm : public PaneScroll {
    Q_OBJECT

  public:
    AdminForm(const UserControl& control, QWidget* parent);

    /// The caption of entry `index`, 0 to 3. An ampersand marks the key that leads to the entry.
    QLabel& caption(int index) const { return *mCaptions[static_cast<std::size_t>(index)]; }
    QLineEdit& name() const { return *txtFldName; }
    QLineEdit& fieldCaption() const { return *txtFldCaption; }
    CodeBox& inputDisplay() const { return *cboInputDisplay; }
    CodeBox& required() const { return *cboRequired; }
    ValueList& values() const { return *mValues; }
    MoveRow& moves() const { return *mMoves; }
    CommandButton& updateButton() const { return *cmdUpdate; }

    /// As wide and high as to have room for everything, the list beside the entries.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Follows a change of its font, a caption or the record's number.
    void contentChanged();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void arrange();
    QWidget* makeEntries();
    void addEntry(int index, QWidget& entry, const QString& name);
    int entriesWidth() const;
    int besideWidth() const;

    QWidget* mBody;
    std::array<QLabel*, 4> mCaptions{};
    QLineEdit* txtFldName;
    QLineEdit* txtFldCaption;
    CodeBox* cboInputDisplay;
    CodeBox* cboRequired;
    QFormLayout* mRows;
    QWidget* mEntries;
    ValueList* mValues;
    MoveRow* mMoves;
    CommandButton* cmdUpdate;
    QBoxLayout* mUpper;
    QBoxLayout* mLower;
};

} // namespace Korvane

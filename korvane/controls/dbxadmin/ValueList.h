#pragma once

#include <QStringList>
#include <QWidget>

class QBoxLayout;
class QKeyEvent;
class QLineEdit;
class QListWidget;

namespace Korvane {

class CommandButton;
class UserControl;

/// The list of values of a field and what edits it: an entry box (`txtAddtoList`), the list (`lstAddtoList`)
/// and one button (`cmdAddtoList`) that adds or removes, as its caption says. What the user does last decides
/// which: going to the entry box or typing there makes it add, selecting a value makes it remove.
///
/// Besides the button, Enter in the entry box adds, and Delete in the list removes. A text that holds a "/"
/// cannot be added, and none can be typed or pasted: the box says why. Does nothing while the control is
/// being designed.
class ValueList : public QWidget {
    Q_OBJECT

  public:
    ValueList(const UserControl& control, QWidget* parent);

    /// The list as one text: what was set, as it was set, until the user changes the list; then each value
    /// followed by "/".
    QString data() const { return mData; }
    /// Raises no signal, and leaves the list as it is when the text is empty. Selects the first value, unless
    /// the user is here and these are the values that are shown.
    void setData(const QString& text);
    /// No values, and an empty text.
    void clear();
    /// Shows no values, but keeps the text; and shows them again where that was done.
    void hideData();
    void showData();

    /// The text in the entry box; setting it is no typing.
    QString entryText() const;
    void setEntryText(const QString& text);
    /// Whether the user has typed something there that is not in the list yet, and could be.
    bool hasTyped() const { return mTyped && mEditable; }

    bool removes() const { return mRemoves; }
    void setRemoves(bool on);

    /// Whether the user can do anything here.
    void setEditable(bool on);

    /// The entry box beside the button where there is room for both, else above it.
    void arrangeFor(int width);
    /// The width that has room for both.
    int wideWidth() const;

  signals:
    /// By the user.
    void entryChanged();
    void listChanged();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void makeEntry();
    void makeList();
    bool take(const QObject* part, const QKeyEvent& key);
    void typed();
    void add();
    void remove(bool selectsNext);
    void changed();
    QStringList shownItems() const;
    int selectedRow() const;
    bool hasWork() const;
    void showButton();
    void followStyle();
    void explainSeparator();

    const UserControl& mControl;
    QLineEdit* txtAddtoList;
    CommandButton* cmdAddtoList;
    QListWidget* lstAddtoList;
    QBoxLayout* mEntryRow;
    QString mData;
    bool mTyped = false;
    bool mRemoves = false;
    bool mEditable = true;
    int mButtonWidth = 0;  ///< with room for either caption
    bool mButtonOn = true; ///< while the list is editable
};

} // namespace Korvane

#pragma once

#include <korvane/nip/FieldPlace.h>

#include <QWidget>

class QLabel;
class QSplitter;
class QToolButton;

namespace Korvane {

class ButtonRow;
class cNIP;
class CustomizeBar;
class CustomizePane;
class EncounterPane;
class FieldMark;
class FieldPicker;
class NipTabs;

/// What the Nip panel looks like: a line that says what is open, with the close button; the splitter with the
/// encounter pane, the entry controls and, while it is customized, the customize pane beside them with the
/// bar above; the button row. It knows no states.
class PanelForm : public QWidget {
    Q_OBJECT

  public:
    explicit PanelForm(QWidget* parent = nullptr);

    EncounterPane& encounterPane() const { return *mEncounter; }
    NipTabs& tabs() const { return *mTabs; }
    CustomizePane& customizePane() const { return *mCustomize; }
    CustomizeBar& customizeBar() const { return *mBar; }
    FieldPicker& picker() const { return *mPicker; }
    ButtonRow& buttons() const { return *mButtons; }

    /// Shows the buttons that the panel's two properties call for, except Save.
    void arrange(bool customizeOnly, bool allowClose);

    /// The customize pane beside the entry controls, which then stand for their fields, or the Nip alone.
    void showCustomizing(bool on);
    void showEncounter(bool on) const;

    /// Marks a field among the entry controls; field 0: none.
    void markField(const cNIP* nip, FieldPlace place);
    /// Gives the focus to the entry controls: to the field that is marked, else to the first.
    void focusEntries();
    bool focusIsInEntries() const;
    /// Gives the focus to the encounter's description; where that is not shown, to the list of fields.
    void focusDescription();
    /// Gives the focus to the close button; where there is none, to the list of fields.
    void focusClose();

    /// Whether the user may enter anything.
    void setEntryEnabled(bool on);
    void say(const QString& state);

  signals:
    void closeClicked();

  private:
    QSplitter* makeSplitter();
    void makeContent();
    void enableContent();

    QLabel* mState;
    QToolButton* mClose;
    EncounterPane* mEncounter;
    QSplitter* mSplit;
    QWidget* mContent;
    NipTabs* mTabs;
    CustomizeBar* mBar;
    CustomizePane* mCustomize;
    ButtonRow* mButtons;
    FieldPicker* mPicker;
    FieldMark* mMark;
    bool mEntryEnabled = true;
    bool mCustomizing = false;
};

} // namespace Korvane

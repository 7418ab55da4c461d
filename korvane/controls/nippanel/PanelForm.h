#pragma once

#include <QWidget>

class QLabel;
class QSplitter;
class QToolButton;

namespace Korvane {

class ButtonRow;
class CustomizePane;
class EncounterPane;
class NipTabs;

/// What the Nip panel looks like: a line that says what is open, with the close button; the splitter with the
/// encounter pane, the entry controls and the customize pane; the button row. It knows no states.
class PanelForm : public QWidget {
    Q_OBJECT

  public:
    explicit PanelForm(QWidget* parent = nullptr);

    EncounterPane& encounterPane() const { return *mEncounter; }
    NipTabs& tabs() const { return *mTabs; }
    CustomizePane& customizePane() const { return *mCustomize; }
    ButtonRow& buttons() const { return *mButtons; }

    /// Shows the buttons that the panel's two properties call for, except Save.
    void arrange(bool customizeOnly, bool allowClose);

    /// The customize pane in place of the Nip, or the Nip.
    void showCustomizing(bool on);

    /// Whether the user may enter anything.
    void setEntryEnabled(bool on);
    void say(const QString& state);

  signals:
    void closeClicked();

  private:
    QSplitter* makeSplitter();

    QLabel* mState;
    QToolButton* mClose;
    EncounterPane* mEncounter;
    QWidget* mContent;
    NipTabs* mTabs;
    CustomizePane* mCustomize;
    ButtonRow* mButtons;
};

} // namespace Korvane

#pragma once

#include <korvane/controls/nippanel/FieldDraft.h>
#include <korvane/controls/nippanel/HeldField.h>

#include <QFrame>

class QLabel;
class QPushButton;

namespace Korvane {

class cNIP;
class FieldForm;
class FieldGrid;

/// Where the structure of the Nip is customized (`paneCustomize`): the fields of one group, and the one that
/// is being edited, or a new one, with its inputs. It shows and collects; what is asked and stored is the
/// panel's.
///
///     pane->showGroup(&nip, 1);     // nothing is being edited then
///     pane->edit(3);                // or beginNew()
///     ...
///     if (pane->holdsNew() || pane->holdsChanges()) ...  // something to lose
class CustomizePane : public QFrame {
    Q_OBJECT

  public:
    /// The elements of `cmdNipCustomizeButton`.
    enum Button { NewField, DeleteField, Cancel, Save };

    explicit CustomizePane(QWidget* parent = nullptr);

    /// Lists the fields of a group, with nothing to edit; no model or no such group: nothing at all. The
    /// model must outlive the pane or the next call.
    void showGroup(const cNIP* nip, std::int16_t group);
    /// After the structure was loaded anew: shows the group and the field as they are now, and what was
    /// written stays. False, with nothing done, when nothing is edited or it is there no more.
    bool resume(const cNIP& nip);
    /// After `resume` found no field or group to go on with: what was written stays, as a new field of its
    /// group, or of the group `otherwise` when that is gone. False, with nothing to edit, when neither is
    /// there.
    bool resumeAsNew(const cNIP& nip, std::int16_t otherwise);
    void beginNew();
    void edit(std::int16_t field);
    /// Nothing is edited any more.
    void reset();

    std::int16_t group() const { return mGroup; }
    /// The field that is being edited; 0: a new one, or none.
    std::int16_t field() const { return mField; }
    bool holdsNew() const { return mHoldsNew; }
    bool holdsChanges() const;
    FieldForm& form() const { return *mForm; }

    /// The group as it is shown to the user: "[Vitals]".
    QString groupTitle() const;
    /// The group with what would go with it: "[Vitals] with its 3 fields".
    QString groupContent() const;

    /// Puts the list's current row back on the field that is being edited.
    void markListed();
    void focusList();

  signals:
    void fieldChosen(int field);
    void clicked(int button);
    /// Another field is edited, or none.
    void turned();

  private:
    QWidget* makeScroll();
    QWidget* makeContent();
    QWidget* makeButtons();
    void take(bool isNew, std::int16_t field, const FieldDraft& draft);
    void describe();
    void offer();
    QString heading() const;
    QString whatIsDestroyed() const;

    const cNIP* mNip = nullptr;
    std::int16_t mGroup = 0;
    std::int16_t mField = 0;
    HeldField mHeld;
    bool mHoldsNew = false;
    QLabel* mHeading;
    FieldGrid* mGrid;
    FieldForm* mForm;
    QLabel* mHint;
    QLabel* mWarning;
    QPushButton* mButtons[4];
};

} // namespace Korvane

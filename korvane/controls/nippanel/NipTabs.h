#pragma once

#include <korvane/nip/cNIP.h>

#include <QTabWidget>

#include <string>
#include <vector>

namespace Korvane {

class GroupPage;

/// The entry controls of a Nip (`atNips`): one tab for each group, one label and one control for each field.
/// A tab's controls are made when it is first shown; seen from outside all are there from the start: every
/// field has its `ControlIndex`, and a tab never shown is filled and collected without loss.
///
///     tabs->CreateNipControls(nip);    // once for each structure
///     tabs->fill();                    // after cNIP::Load
///     tabs->collect();                 // before cNIP::Save
class NipTabs : public QTabWidget {
    Q_OBJECT

  public:
    explicit NipTabs(QWidget* parent = nullptr);
    ~NipTabs() override;

    /// Builds the tabs for the model's structure and shows its values. When the same model has been loaded
    /// anew, all that did not change stays: the tab in view, how far each page is scrolled, the focus, the
    /// controls of the fields that are still there (by group, name and display type; they are renumbered),
    /// and what was typed into them over a value that is still the same; `collect` before the model is loaded
    /// anew saves the rest. The model must outlive the tabs or the next call. Fields whose display type is
    /// unknown get no control; they are written to the error log and reported in one message box at the end.
    void CreateNipControls(cNIP& nip);

    /// Shows the model's values, as those of another encounter: from the top. Raises no `edited`.
    void fill();

    /// Copies the values of the controls that the user changed into the model; the others are there as they
    /// were loaded.
    void collect();

  signals:
    /// The user changed a control.
    void edited();

  private:
    std::string rebuild(cNIP& nip);
    void forget();
    void arrangePages(const cNIP& nip);
    GroupPage* makePage();
    void bringTo(GroupPage* page, int place);
    int indexOfTitle(const QString& title, int preferred) const;
    GroupPage* pageInView() const;
    void makePageInView();
    void reveal(QWidget* focus);

    std::vector<GroupPage*> mPages;
};

} // namespace Korvane

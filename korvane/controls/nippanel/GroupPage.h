#pragma once

#include <korvane/controls/nippanel/DisplayTypes.h>
#include <korvane/controls/nippanel/PageCell.h>

#include <QWidget>

#include <string>
#include <vector>

class QScrollArea;

namespace Korvane {

/// A field's control before it is made: its display type and the elements that are set aside for it.
struct PlannedField {
    std::int16_t field = 0;
    const DisplayType* type = nullptr;
    std::int16_t control = 0; ///< in the type's control array
    std::int16_t label = 0;   ///< in `lblNip`
    std::int16_t button = 0;  ///< the first in `cmdNip`
};

/// The tab of a group (`atpNips`) with its scroll area (`scrollNip`): labels and entry controls for the
/// fields planned, made at once by `make` and placed by hand.
class GroupPage : public QWidget {
    Q_OBJECT

  public:
    explicit GroupPage(QWidget* parent);
    ~GroupPage() override;

    /// Sets the fields of a group aside, in place of those before. On a page that is made for that model the
    /// controls of fields that are still there, by name and display type, stay with what was typed into them
    /// and take on their new numbers, captions and values; those of the others go, and new ones are made.
    void plan(cNIP& nip, std::int16_t group, std::vector<PlannedField> fields);
    /// Whether it was planned for that group of that model, wherever the group stood then.
    bool standsFor(const cNIP& nip, std::int16_t group) const;
    bool isMade() const { return mContent != nullptr; }
    /// Makes and fills the controls unless they are there. They follow `before` in the tab order.
    void make(QWidget* before);
    /// Forgets the plan and its model; the controls are gone afterwards.
    void clear();

    /// Both pass over a page that is not made. A page that is filled begins at its top again.
    void fill();
    void collect();

    int scrollPosition() const;
    void scrollTo(int position);
    /// Scrolls to a widget that stands on this page; others are passed over.
    void reveal(QWidget& widget);
    /// Gives the focus to the first entry.
    void focusFirst();

  signals:
    void edited();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void makeScrollArea();
    void makeCells(QWidget* parent);
    void makeCell(PageCell& cell, const PlannedField& planned, QWidget* parent);
    void assign(PageCell& cell, const PlannedField& planned) const;
    EntryPlace placeOf(const PlannedField& planned) const;
    void remake();
    void addCell(PageCell& cell, const PlannedField& planned);
    bool takeOver(std::vector<PageCell>& before);
    bool bringUpToDate(PageCell& cell, const PlannedField& planned);
    void nameParts();
    void chain();
    void measure();
    void place();
    void arrange();

    cNIP* mNip = nullptr;
    std::int16_t mGroup = 0;
    std::string mTable;
    std::string mGroupName;
    std::vector<PlannedField> mPlan;
    QWidget* mBefore = nullptr;
    QScrollArea* mScroll = nullptr;
    QWidget* mContent = nullptr;
    std::vector<PageCell> mCells;
    QSize mArrangedFor;
};

} // namespace Korvane

#pragma once

#include <korvane/controls/nippanel/DisplayTypes.h>
#include <korvane/controls/nippanel/PageCell.h>

#include <QWidget>

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

    /// Sets the fields of a group aside, in place of those before, whose controls are gone afterwards.
    void plan(cNIP& nip, std::int16_t group, std::vector<PlannedField> fields);
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
    PageCell makeCell(const PlannedField& planned, QWidget* parent);
    void chain(QWidget* before);
    void measure();
    void arrange();

    cNIP* mNip = nullptr;
    std::int16_t mGroup = 0;
    std::vector<PlannedField> mPlan;
    QScrollArea* mScroll = nullptr;
    QWidget* mContent = nullptr;
    std::vector<PageCell> mCells;
    QSize mArrangedFor;
};

} // namespace Korvane

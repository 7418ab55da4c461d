#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/records/Encounter.h>

#include <QDateTime>
#include <QPoint>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

class QLabel;
class QLineEdit;

namespace Korvane {

class EncounterDateEdit;
class PageCombo;

/// The encounter that the Nip belongs to: its description, date and provider (`paneEncounter`).
///
///     pane->fill(encounter, connection);
///     ...
///     if (!pane->takeDate()) ...              // what was typed is no date
///     if (pane->renames(encounter)) ...       // compare before copying
///     pane->copyInto(encounter);
///
/// What the user did not touch is copied back as it was filled in: the seconds of the date, line breaks of
/// the description, a provider that the combo does not offer.
class EncounterPane : public QWidget {
    Q_OBJECT

  public:
    explicit EncounterPane(QWidget* parent = nullptr);

    /// Shows an encounter and offers the providers of the table `Provider`. False, with nothing shown, when
    /// they cannot be read. Raises no `edited`.
    bool fill(const Encounter& encounter, const std::shared_ptr<ado::Connection>& connection);
    void clear();

    /// Takes what is shown now for the encounter's own, once it has been saved.
    void settle(const Encounter& encounter);

    /// Takes the date that was typed; false when it is none. Until then the date is the one before.
    bool takeDate();
    bool offersProviders() const { return !mProviders.empty(); }
    bool hasProvider() const;

    std::string Description() const;
    Date EncounterDate() const;

    /// Whether description or date differ from the encounter's.
    bool renames(const Encounter& encounter) const;
    void copyInto(Encounter& encounter) const;

    /// Whether the user changed something since `fill` or `settle`.
    bool isEdited() const;

    void focusDate();
    void focusProvider();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void edited();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    using Provider = std::pair<QString, std::int32_t>;

    void offer(std::vector<Provider> providers);
    struct Measures;
    void arrange();
    void arrangeOneRow(const Measures& measures);
    void arrangeTwoRows(const Measures& measures);
    void arrangeThreeRows(const Measures& measures);
    int place(int pair, QPoint at, int labelWidth, int controlWidth, const Measures& measures);

    QLabel* mLabels[3];
    QLineEdit* mDescription;
    EncounterDateEdit* mDate;
    PageCombo* mProvider;
    std::vector<Provider> mProviders;

    std::string mOriginalDescription;
    Date mOriginalDate;
    QString mShownDescription; ///< as the box gave it back after it was filled
    QDateTime mShownDate;
    QString mShownDateText;
    int mShownProvider = -1;
};

} // namespace Korvane

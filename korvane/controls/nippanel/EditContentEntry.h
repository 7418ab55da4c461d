#pragma once

#include <korvane/controls/nippanel/GridEntry.h>

#include <QCoreApplication>

#include <memory>

class QPushButton;

namespace Korvane {

/// "LIST-EDITCONTENT": the rows of the grid are the field's `ChoiceList`; the buttons "Add" and "Remove"
/// (`cmdNip`) below it change them.
class EditContentEntry : public GridEntry {
    Q_DECLARE_TR_FUNCTIONS(Korvane::EditContentEntry)

  public:
    explicit EditContentEntry(EntrySite entrySite);

    QList<QWidget*> tabOrder() const override;
    int height(const Twips& twips, int tabHeight) const override;
    void place(const QRect& area, const Twips& twips) override;

  private:
    void identify() override;
    void showValue() override;
    QStringList content() const override;
    void store(const QStringList& entries) override { storeEntries(entries); }
    QPushButton* makeButton(const QString& text);
    int widthOfButtons(const Twips& twips, int room) const;
    void add();
    void remove();
    void updateRemove();

    QPushButton* mAdd;
    QPushButton* mRemove;
    /// Made anew with every fill, so that one who waits for the user sees whether the entries are still those
    /// that he asked for.
    std::shared_ptr<const int> mFilling;
};

} // namespace Korvane

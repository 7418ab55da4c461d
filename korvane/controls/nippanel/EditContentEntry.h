#pragma once

#include <korvane/controls/nippanel/GridEntry.h>

class QPushButton;

namespace Korvane {

/// "LIST-EDITCONTENT": the rows of the grid are the field's `ChoiceList`; the buttons "Add" and "Remove"
/// (`cmdNip`) below it change them.
class EditContentEntry : public GridEntry {
  public:
    explicit EditContentEntry(EntrySite entrySite);

    QList<QWidget*> tabOrder() const override;
    void fill() override;
    void collect() override;
    int height(const Twips& twips, int tabHeight) const override;
    void place(const QRect& area, const Twips& twips) override;

  private:
    QPushButton* makeButton(const QString& text, int offset);
    void add();
    void remove();
    void updateRemove();

    QPushButton* mAdd;
    QPushButton* mRemove;
    QStringList mShown;
};

} // namespace Korvane

#pragma once

#include <korvane/controls/nippanel/ChoiceRowDelegate.h>

#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>

namespace Korvane {

/// Shows which choice is the default, and edits a choice in place in a box (`txtNipChoice`) whose text takes
/// a warning colour while the list would refuse it.
class ChoiceEditDelegate : public ChoiceRowDelegate {
    Q_OBJECT

  public:
    using ChoiceRowDelegate::ChoiceRowDelegate;

    /// The box while a choice is edited, else null; and the choice.
    QLineEdit* box() const { return mBox; }
    QModelIndex edited() const { return mEdited; }
    /// Why the list would refuse what is in the box; empty when it would not, or there is no box.
    QString fault() const;
    /// Whether another text than the choice's stands in the box.
    bool isTyping() const;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

  signals:
    /// `isTyping` may have changed.
    void typed() const;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

  private:
    void showFault() const;

    // The view asks a constant delegate for its boxes.
    mutable QPointer<QLineEdit> mBox;
    mutable QPersistentModelIndex mEdited;
};

} // namespace Korvane

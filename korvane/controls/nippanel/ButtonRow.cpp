#include <korvane/controls/nippanel/ButtonRow.h>

#include <korvane/controls/container/Twips.h>

#include <QHBoxLayout>
#include <QPushButton>

namespace Korvane {

namespace {

constexpr int gapBelowPane = 100;

} // namespace

ButtonRow::ButtonRow(QWidget* parent) : QWidget(parent) {
    const QString captions[] = {tr("Save"), tr("Cancel"), tr("Customize")};
    const QString tips[] = {tr("Save the Nip and close it (Ctrl+S)"),
                            tr("Close the Nip without saving it (Esc)"),
                            tr("Change the groups and fields of the Nip")};
    for (int i : {Save, Cancel, Customize}) {
        mButtons[i] = new QPushButton(captions[i], this);
        mButtons[i]->setObjectName(QString("cmdNipButton(%1)").arg(i));
        mButtons[i]->setToolTip(tips[i]);
        mButtons[i]->setAutoDefault(false);
        connect(mButtons[i], &QPushButton::clicked, this, [this, i] { emit clicked(i); });
    }
    mButtons[Save]->setDefault(true);
    setTabOrder(mButtons[Save], mButtons[Cancel]);
    setTabOrder(mButtons[Cancel], mButtons[Customize]);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mButtons[Customize]);
    layout->addStretch();
    layout->addWidget(mButtons[Save]);
    layout->addWidget(mButtons[Cancel]);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ButtonRow::showCustomizing(bool on) {
    mButtons[Save]->setDefault(!on);
    mButtons[Customize]->setEnabled(!on);
    layout()->setContentsMargins(0, on ? Twips(*this).px(gapBelowPane) : 0, 0, 0);
}

void ButtonRow::arrange(bool customizeOnly, bool allowClose) {
    mButtons[Customize]->setVisible(!customizeOnly);
    mButtons[Cancel]->setText(customizeOnly ? tr("Close") : tr("Cancel"));
    mButtons[Cancel]->setVisible(allowClose);
}

void ButtonRow::offerSave(bool shown, bool enabled) {
    mButtons[Save]->setVisible(shown);
    mButtons[Save]->setEnabled(enabled);
}

} // namespace Korvane

#include "gallery/ControlPage.h"

#include "gallery/BagBox.h"
#include "gallery/PropertyModel.h"
#include "gallery/PropertyTable.h"
#include "shared/PaneCycle.h"
#include "shared/SignalListener.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace Gallery {

ControlPage::ControlPage(Exhibit exhibit)
    : mControl(exhibit.control.release()), mProperties(new PropertyModel(*mControl)),
      mEvents(new Apps::EventList), mBag(new BagBox(*mControl)) {
    auto* sides = new QSplitter(Qt::Horizontal);
    auto* shown = new QSplitter(Qt::Vertical, sides);
    auto* told = new QSplitter(Qt::Vertical, sides);
    QWidget* stage = makeStage(exhibit);
    QWidget* properties = makeProperties();
    shown->addWidget(stage);
    shown->addWidget(mEvents);
    told->addWidget(properties);
    told->addWidget(mBag);
    for (QSplitter* each : {sides, shown, told}) {
        each->setChildrenCollapsible(false);
        each->setStretchFactor(0, 7);
        each->setStretchFactor(1, 3);
        each->setSizes({700, 300});
    }
    auto* all = new QVBoxLayout(this);
    all->addWidget(sides);
    mPanes = new Apps::PaneCycle({stage, mEvents, properties, mBag}, this);
    listen();
}

QWidget* ControlPage::makeStage(const Exhibit& exhibit) {
    auto* stage = new QGroupBox(mControl->objectName());
    auto* rows = new QVBoxLayout(stage);
    auto* purpose = new QLabel(exhibit.purpose);
    purpose->setWordWrap(true);
    rows->addWidget(purpose);
    rows->addWidget(mControl, exhibit.fills ? 1 : 0, exhibit.fills ? Qt::Alignment() : Qt::AlignLeft);
    if (exhibit.fills)
        mControl->setMinimumHeight(fontMetrics().height() * 16);
    else
        rows->addStretch(1);
    rows->addWidget(makeMethods(exhibit.methods));
    // A splitter does not ask how many lines a text has in its width: this one may have three.
    stage->setMinimumHeight(stage->minimumSizeHint().height() + 2 * fontMetrics().height());
    return stage;
}

QWidget* ControlPage::makeMethods(const std::vector<Method>& methods) {
    auto* row = new QWidget;
    auto* buttons = new QGridLayout(row);
    buttons->setContentsMargins({});
    constexpr int inRow = 2;
    for (const Method& method : methods) {
        auto* button = new QPushButton(method.call);
        button->setObjectName(QStringLiteral("call ") + method.call);
        buttons->addWidget(button, buttons->count() / inRow, buttons->count() % inRow);
        connect(button, &QPushButton::clicked, this, [this, method] { call(method); });
    }
    buttons->setColumnStretch(inRow, 1);
    return row;
}

QWidget* ControlPage::makeProperties() {
    auto* box = new QGroupBox(tr("Properties"));
    auto* rows = new QVBoxLayout(box);
    rows->addWidget(new PropertyTable(*mProperties));
    return box;
}

void ControlPage::listen() {
    new Apps::SignalListener(*mControl, QWidget::staticMetaObject,
                             [this](const QString& event, const QString& arguments) {
                                 mEvents->hear(event, arguments);
                                 mProperties->refresh();
                             });
    connect(mProperties, &PropertyModel::refused, this,
            [this](const QString& property, const QString& value) {
                mEvents->hear(property, tr("does not take \"%1\"").arg(value));
            });
    connect(mBag, &BagBox::hasRead, mProperties, &PropertyModel::refresh);
}

void ControlPage::call(const Method& method) {
    const QString result = method.run();
    mEvents->hear(method.call, result.isEmpty() ? QString() : QStringLiteral("= ") + result);
    mProperties->refresh();
}

} // namespace Gallery

#include "shared/EventList.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace Apps {

EventList::EventList(QWidget* parent) : QGroupBox(parent), mEvents(new QTableWidget(0, 2)) {
    setObjectName(QStringLiteral("events"));
    setTitle(tr("Events"));
    mEvents->setObjectName(QStringLiteral("lstEvents"));
    mEvents->setAccessibleName(tr("Events"));
    mEvents->setLayoutDirection(Qt::LeftToRight);
    mEvents->setHorizontalHeaderLabels({tr("Event"), tr("What it says")});
    mEvents->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    mEvents->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    mEvents->horizontalHeader()->setStretchLastSection(true);
    mEvents->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    mEvents->verticalHeader()->setMinimumSectionSize(1);
    mEvents->verticalHeader()->hide();
    mEvents->setShowGrid(false);
    mEvents->setAlternatingRowColors(true);
    mEvents->setEditTriggers(QTableWidget::NoEditTriggers);
    mEvents->setSelectionBehavior(QTableWidget::SelectRows);
    mEvents->setTabKeyNavigation(false);
    mEvents->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    auto* clear = new QPushButton(tr("&Clear"));
    clear->setObjectName(QStringLiteral("cmdClear"));
    clear->setProperty("CausesValidation", false);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(mEvents);
    rows->addWidget(clear, 0, Qt::AlignRight);
    connect(clear, &QPushButton::clicked, mEvents, [this] { mEvents->setRowCount(0); });
}

void EventList::hear(const QString& event, const QString& text) {
    const int row = mEvents->rowCount();
    mEvents->insertRow(row);
    mEvents->setItem(row, 0, new QTableWidgetItem(event));
    mEvents->setItem(row, 1, new QTableWidgetItem(text));
    mEvents->scrollToBottom();
}

QStringList EventList::heard() const {
    QStringList all;
    for (int row = 0; row < mEvents->rowCount(); ++row)
        all << mEvents->item(row, 0)->text() + u' ' + mEvents->item(row, 1)->text();
    return all;
}

} // namespace Apps

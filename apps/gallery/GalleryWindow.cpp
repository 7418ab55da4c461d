#include "gallery/GalleryWindow.h"

#include "shared/PaneCycle.h"

#include <korvane/controls/container/PaneScroll.h>

#include <QScreen>
#include <QShortcut>

namespace Gallery {

GalleryWindow::GalleryWindow(QWidget* parent) : QTabWidget(parent) {
    setWindowTitle(tr("Korvane controls"));
    for (Exhibit& exhibit : makeExhibits()) {
        auto* page = new ControlPage(std::move(exhibit));
        auto* room = new Korvane::PaneScroll(this);
        room->setWidget(page);
        page->setAutoFillBackground(false);
        addTab(room, page->control().objectName());
    }
    addShortcuts();
    const QSize wanted(fontMetrics().averageCharWidth() * 170, fontMetrics().height() * 50);
    resize(wanted.boundedTo(screen()->availableSize()));
}

void GalleryWindow::addShortcuts() {
    connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, this, [this] { page().panes().next(); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F6, this), &QShortcut::activated, this,
            [this] { page().panes().previous(); });
}

ControlPage& GalleryWindow::page() const {
    return *qobject_cast<ControlPage*>(static_cast<QScrollArea*>(currentWidget())->widget());
}

} // namespace Gallery

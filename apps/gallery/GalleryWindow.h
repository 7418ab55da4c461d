#pragma once

#include "gallery/ControlPage.h"

#include <QTabWidget>

namespace Gallery {

/// Every control of the library, each on a page of its own: Ctrl+Tab goes to the next page, F6 and Shift+F6
/// round the parts of a page. A page scrolls where the window is too small for it.
class GalleryWindow : public QTabWidget {
    Q_OBJECT

  public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    ControlPage& page() const;

  private:
    void addShortcuts();
};

} // namespace Gallery

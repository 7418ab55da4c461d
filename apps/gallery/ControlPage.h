#pragma once

#include "gallery/Exhibits.h"
#include "shared/EventList.h"

#include <QWidget>

namespace Apps {
class PaneCycle;
}

namespace Gallery {

class BagBox;
class PropertyModel;

/// One control with its properties, its events, its methods, and what a host keeps of it.
class ControlPage : public QWidget {
    Q_OBJECT

  public:
    explicit ControlPage(Exhibit exhibit);

    Korvane::UserControl& control() const { return *mControl; }
    /// Its parts take turns in getting the focus.
    Apps::PaneCycle& panes() const { return *mPanes; }

  private:
    QWidget* makeStage(const Exhibit& exhibit);
    QWidget* makeMethods(const std::vector<Method>& methods);
    QWidget* makeProperties();
    void listen();
    void call(const Method& method);

    Korvane::UserControl* mControl;
    PropertyModel* mProperties;
    Apps::EventList* mEvents;
    BagBox* mBag;
    Apps::PaneCycle* mPanes = nullptr;
};

} // namespace Gallery

#include "designer/Palette.h"

#include "designer/ControlPlugin.h"

namespace Designer {

Palette::Palette(QObject* parent) : QObject(parent) {
    for (const ControlKind& kind : controlKinds())
        mControls << new ControlPlugin(kind, this);
}

} // namespace Designer

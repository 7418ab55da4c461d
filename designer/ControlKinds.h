#pragma once

#include <korvane/controls/container/UserControl.h>

#include <QIcon>
#include <QSize>
#include <QString>

#include <memory>
#include <span>

namespace Designer {

/// What Designer is to know of a control.
struct ControlKind {
    const char* name; ///< without its namespace
    const char* header;
    QString (*toolTip)();
    QString (*whatsThis)();
    Korvane::UserControl* (*make)(QWidget* parent);
    QSize roomFor; ///< characters and lines: the least first size; for the others their `sizeHint`

    QString className() const { return QStringLiteral("Korvane::") + QLatin1String(name); }
    QIcon icon() const;
};

/// All controls, in the order in which the palette offers them.
std::span<const ControlKind> controlKinds();

} // namespace Designer

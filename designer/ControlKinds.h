#pragma once

#include <korvane/controls/container/UserControl.h>

#include <QCoreApplication>
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
    const char* summary;     ///< for the tool tip
    const char* explanation; ///< both in English
    Korvane::UserControl* (*make)(QWidget* parent);
    QSize roomFor; ///< characters and lines: the least first size; for the others their `sizeHint`

    QString className() const { return QStringLiteral("Korvane::") + QLatin1String(name); }
    QString toolTip() const; ///< in the user's language, as the next
    QString whatsThis() const;
    QIcon icon() const;

    Q_DECLARE_TR_FUNCTIONS(Designer::ControlKind)
};

/// All controls, in the order in which the palette offers them.
std::span<const ControlKind> controlKinds();

} // namespace Designer

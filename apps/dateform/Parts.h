#pragma once

#include <QString>

namespace DateForm {

/// The object names of what the focus goes to.
inline const QString month = QStringLiteral("txtDate(0)");
inline const QString day = QStringLiteral("txtDate(1)");
inline const QString year = QStringLiteral("txtDate(2)");
inline const QString after = QStringLiteral("txtAfter");

} // namespace DateForm

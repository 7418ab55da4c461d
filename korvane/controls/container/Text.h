#pragma once

#include <korvane/runtime/Date.h>

#include <QDateTime>
#include <QString>

#include <string>
#include <string_view>

namespace Korvane {

/// The data side keeps UTF-8, the controls show QString.
inline QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
/// The way back.
inline std::string utf8(const QString& text) {
    return text.toStdString();
}

/// For a tab or a label, where an ampersand marks a shortcut: each one shows as an ampersand.
inline QString withoutShortcut(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

/// For a tool tip, which would take what looks like HTML for it, and goes on beyond the screen on one line.
QString toolTipOf(const QString& text);

/// To the second, local time as it stands (no time zone arithmetic). A time in the hour that the local zone
/// skips in spring does not exist as a `QDateTime`: it becomes the one an hour later.
QDateTime qt(Date date);
/// The way back, to the second.
Date fromQt(const QDateTime& dateTime);

} // namespace Korvane

#pragma once

#include <QCommandLineOption>
#include <QStringList>

namespace Apps {

/// Puts the application into the language that --language names, else into the user's where there is a
/// catalogue for it; else it stays English. Refuses a language without a catalogue. Catalogues of other
/// languages, korvane_<language>.qm and korvane_apps_<language>.qm, are looked for in korvane/translations of
/// the user's and the system's data folders (~/.local/share, /usr/local/share, /usr/share), and go before
/// those built in. Call before the options are made: their descriptions follow. Needs an application object.
void chooseLanguage(const QStringList& arguments);

QCommandLineOption languageOption();

} // namespace Apps

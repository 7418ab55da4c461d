#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace Korvane {

/// The library in the user's language. Call it when there is an application object and no control yet:
///
///     QApplication app(argc, argv);
///     Korvane::installTranslations(QLocale()); // the system's language
///     Korvane::ucNIPPanel panel;
///
/// Of the languages that the locale asks for (`QLocale::uiLanguages`), the first is taken that has a
/// catalogue "korvane_<language>.qm": in one of the folders given, or among those that come with the library,
/// which is German ("de"). Each text is taken from the first folder that has it, the library's last: a folder
/// may hold a few texts only. Texts are English, the source's language, where that is asked for before any
/// other that has one. Qt's own texts, such as the buttons of message boxes, follow into the language taken
/// where Qt's catalogues are installed (Debian's qt6-translations-l10n), and into no other. Only words
/// change: numbers and dates keep their forms.
///
/// Returns whether the texts are in a language that was asked for: false where there is no catalogue for any,
/// and everything stays English. Called again, it replaces what it installed before; controls that are there
/// already keep their words. A translator that the host installs afterwards goes before these. Needs an
/// application object, and is false without one.
bool installTranslations(const QLocale& locale, const QStringList& folders = {});

/// The same for a catalogue of the host's own, "<name>_<language>.qm" in the folders.
///
///     Korvane::installCatalogue("clinic", QLocale(), {":/translations", "/usr/share/clinic/translations"});
bool installCatalogue(const QString& name, const QLocale& locale, const QStringList& folders);

/// Lets the texts of the library that know nothing of Qt (`translate`) ask Qt's translators, unless the host
/// has installed a translator for them. The two above do so, and so does the first control.
void letQtTranslate();

} // namespace Korvane

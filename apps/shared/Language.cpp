#include "shared/Language.h"

#include "shared/CommandLine.h"

#include <korvane/controls/container/Translations.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <optional>

// A static library's resources are there only when they are asked for; Qt wants that outside every namespace.
static void makeCataloguesKnown() {
    Q_INIT_RESOURCE(korvane_apps);
}

namespace Apps {

namespace {

const QString catalogue = QStringLiteral("korvane_apps");

/// What is given for the option, before the others can be read.
std::optional<QString> given(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption option = languageOption();
    parser.addOption(option);
    parser.parse(arguments);
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

/// "de, en"
QString known(const QStringList& folders) {
    QStringList languages{QStringLiteral("en")};
    for (const QString& folder : folders) {
        for (const QString& file : QDir(folder).entryList({catalogue + QStringLiteral("_*.qm")}))
            languages << QFileInfo(file).completeBaseName().mid(catalogue.size() + 1);
    }
    languages.removeDuplicates();
    languages.sort();
    return languages.join(QStringLiteral(", "));
}

} // namespace

void chooseLanguage(const QStringList& arguments) {
    makeCataloguesKnown();
    const QStringList own =
        QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("korvane/translations"),
                                  QStandardPaths::LocateDirectory);
    const QStringList all = own + QStringList(QStringLiteral(":/korvane/translations"));
    const auto name = given(arguments);
    const QLocale locale = name ? QLocale(*name) : QLocale::system();
    Korvane::installTranslations(locale, own);
    const bool found = Korvane::installCatalogue(catalogue, locale, all);
    // Qt takes what it does not know for the language "C".
    if (name && (!found || locale.language() == QLocale::C))
        refuse(QCoreApplication::translate("Apps::Language", "--language takes one of: %1.").arg(known(all)));
}

QCommandLineOption languageOption() {
    return {QStringLiteral("language"),
            QCoreApplication::translate(
                "Apps::Language", "The language to speak, like de; without it the system's, where there is "
                                  "a catalogue for it."),
            QCoreApplication::translate("Apps::Language", "code")};
}

} // namespace Apps

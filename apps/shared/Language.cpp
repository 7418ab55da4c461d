#include "shared/Language.h"

#include "shared/CommandLine.h"

#include <korvane/controls/container/Translations.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>

// A static library's resources are there only when they are asked for; Qt wants that outside every namespace.
static void makeCataloguesKnown() {
    Q_INIT_RESOURCE(korvane_apps);
}

namespace Apps {

namespace {

const QString catalogue = QStringLiteral("korvane_apps");

QString optionName() {
    return QStringLiteral("language");
}

/// What is given for the option, before the others can be read; null when it is not.
QString given(const QStringList& arguments) {
    const QString option = QStringLiteral("--") + optionName();
    const qsizetype at = arguments.indexOf(option);
    if (at >= 0) return arguments.value(at + 1, QStringLiteral(""));
    const QStringList joined = arguments.filter(QRegularExpression(u'^' + option + u'='));
    return joined.isEmpty() ? QString() : joined.first().mid(option.size() + 1);
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
    const QString name = given(arguments);
    const QLocale locale = name.isNull() ? QLocale::system() : QLocale(name);
    Korvane::installTranslations(locale, own);
    const bool found = Korvane::installCatalogue(catalogue, locale, all);
    // Qt takes what it does not know for the language "C".
    if (!name.isNull() && (!found || locale.language() == QLocale::C))
        refuse(QCoreApplication::translate("Apps::Language", "--language takes one of: %1.").arg(known(all)));
}

QCommandLineOption languageOption() {
    return {optionName(),
            QCoreApplication::translate(
                "Apps::Language", "The language to speak, like de; without it the system's, where there is "
                                  "a catalogue for it."),
            QCoreApplication::translate("Apps::Language", "code")};
}

} // namespace Apps

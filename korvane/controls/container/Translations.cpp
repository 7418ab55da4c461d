#include <korvane/controls/container/Translations.h>

#include <korvane/controls/container/Text.h>
#include <korvane/runtime/Translation.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <utility>

// A static library's resources are there only when they are asked for; Qt wants that outside every namespace.
static void makeCataloguesKnown() {
    Q_INIT_RESOURCE(korvane);
}

namespace Korvane {

namespace {

bool isEnglish(const QString& language) {
    return language == QStringLiteral("C") || QLocale(language).language() == QLocale::English;
}

/// Installs those of the folders; the first of them is asked first.
bool install(const QString& name, const QString& language, const QStringList& folders, QObject& owner) {
    bool found = false;
    for (auto folder = folders.crbegin(); folder != folders.crend(); ++folder) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(name + u'_' + QString(language).replace(u'-', u'_'), *folder)) continue;
        translator->setObjectName(name);
        translator->setParent(&owner);
        found = QCoreApplication::installTranslator(translator.release()) || found;
    }
    return found;
}

/// Puts the catalogue into the first of the languages that it speaks; null where there is none. Without an
/// application there is nothing to put them into.
QString installFirst(const QString& name, const QStringList& languages, const QStringList& folders) {
    QCoreApplication* const application = QCoreApplication::instance();
    if (!application) return {};
    qDeleteAll(application->findChildren<QTranslator*>(name, Qt::FindDirectChildrenOnly));
    const auto found = std::ranges::find_if(languages, [&](const QString& language) {
        return isEnglish(language) || install(name, language, folders, *application);
    });
    return found == languages.end() ? QString() : *found;
}

std::string askQt(const char* context, const char* text) {
    return utf8(QCoreApplication::translate(context, text));
}

} // namespace

void letQtTranslate() {
    if (auto before = installTranslator(askQt)) installTranslator(std::move(before));
}

bool installCatalogue(const QString& name, const QLocale& locale, const QStringList& folders) {
    letQtTranslate();
    return !installFirst(name, locale.uiLanguages(), folders).isNull();
}

bool installTranslations(const QLocale& locale, const QStringList& folders) {
    makeCataloguesKnown();
    letQtTranslate();
    const QString spoken = installFirst(QStringLiteral("korvane"), locale.uiLanguages(),
                                        folders + QStringList(QStringLiteral(":/korvane/translations")));
    // A question and its buttons speak one language.
    const QStringList ofQt = spoken.isNull() ? QStringList() : QStringList(spoken);
    installFirst(QStringLiteral("qtbase"), ofQt, {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
    return !spoken.isNull();
}

} // namespace Korvane

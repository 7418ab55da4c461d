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

/// Null where there is none.
std::unique_ptr<QTranslator> loaded(const QString& catalogue, const QStringList& folders) {
    auto translator = std::make_unique<QTranslator>();
    const bool found = std::ranges::any_of(
        folders, [&](const QString& folder) { return translator->load(catalogue, folder); });
    return found ? std::move(translator) : nullptr;
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
    QCoreApplication& application = *QCoreApplication::instance();
    delete application.findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);
    for (const QString& language : locale.uiLanguages()) {
        if (isEnglish(language)) return true;
        auto translator = loaded(name + u'_' + QString(language).replace(u'-', u'_'), folders);
        if (!translator) continue;
        translator->setObjectName(name);
        translator->setParent(&application);
        return QCoreApplication::installTranslator(translator.release());
    }
    return false;
}

bool installTranslations(const QLocale& locale, const QStringList& folders) {
    makeCataloguesKnown();
    installCatalogue(QStringLiteral("qtbase"), locale, {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
    return installCatalogue(QStringLiteral("korvane"), locale,
                            folders + QStringList(QStringLiteral(":/korvane/translations")));
}

} // namespace Korvane

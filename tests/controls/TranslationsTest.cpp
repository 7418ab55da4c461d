#include <korvane/controls/container/Translations.h>

#include "support/ScratchDir.h"
#include <korvane/controls/container/QtInteraction.h>
#include <korvane/runtime/RuntimeError.h>

#include <QFile>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Korvane {
namespace {

std::string overflow() {
    return RuntimeError(RuntimeError::Overflow).Description();
}

class Translations : public ::testing::Test {
  protected:
    Translations() { QtInteraction::installOnce(); }
    ~Translations() override { installTranslations(QLocale("en")); }
};

TEST_F(Translations, SpeakTheLanguageAskedForWhereThereIsACatalogueOfIt) {
    EXPECT_TRUE(installTranslations(QLocale("de_AT")));
    EXPECT_EQ(overflow(), "Überlauf");
    EXPECT_FALSE(installTranslations(QLocale("ja"))) << "there is none";
    EXPECT_EQ(overflow(), "Overflow");
    EXPECT_TRUE(installTranslations(QLocale("de")) && installTranslations(QLocale("de")));
    EXPECT_EQ(overflow(), "Überlauf");
    EXPECT_TRUE(installTranslations(QLocale("en_GB")));
    EXPECT_EQ(overflow(), "Overflow");
}

TEST_F(Translations, TakeTheCatalogueOfAFolderBeforeThoseThatComeWithTheLibrary) {
    const Testing::ScratchDir folder;
    const QString path = QString::fromStdString(folder.path().string());
    installTranslations(QLocale("de"));
    ASSERT_TRUE(QFile::copy(":/korvane/translations/korvane_de.qm", path + "/korvane_ja.qm"));
    ASSERT_TRUE(QFile::copy(":/korvane/translations/korvane_de.qm", path + "/own_ja.qm"));
    EXPECT_TRUE(installTranslations(QLocale("ja"), {path}));
    EXPECT_EQ(overflow(), "Überlauf");
    EXPECT_FALSE(installTranslations(QLocale("ja")));
    EXPECT_TRUE(installCatalogue("own", QLocale("ja"), {path}));
    EXPECT_EQ(overflow(), "Überlauf") << "a host's own catalogue reaches the texts below the controls";
    EXPECT_TRUE(installCatalogue("own", QLocale("en"), {path}));
    EXPECT_EQ(overflow(), "Overflow");
}

TEST_F(Translations, LabelTheButtonsOfMessageBoxesWithQtsOwn) {
    QTranslator qt;
    if (!qt.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        GTEST_SKIP() << "Qt's catalogues are not installed (Debian: qt6-translations-l10n)";
    installTranslations(QLocale("de"));
    const QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text().remove('&'), "Ja");
    EXPECT_EQ(box.button(QMessageBox::No)->text().remove('&'), "Nein");
}

} // namespace
} // namespace Korvane

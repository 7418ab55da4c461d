#include <korvane/controls/container/Translations.h>

#include "support/ScratchDir.h"
#include <korvane/controls/container/QtInteraction.h>
#include <korvane/runtime/RuntimeError.h>

#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

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

TEST_F(Translations, KeepTheLibrarysTextsThatTheCataloguesOfTheFoldersDoNotHave) {
    const Testing::ScratchDir folder;
    QFile broken(QString::fromStdString((folder.path() / "korvane_de.qm").string()));
    ASSERT_TRUE(broken.open(QFile::WriteOnly) && broken.write("no catalogue") > 0);
    broken.close();
    const QString ofQt = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const Testing::ScratchDir other;
    QFile::copy(ofQt + "/qtbase_de.qm", QString::fromStdString((other.path() / "korvane_de.qm").string()));
    for (const auto& each : {folder.path(), other.path()}) {
        EXPECT_TRUE(installTranslations(QLocale("de_AT"), {QString::fromStdString(each.string())}));
        EXPECT_EQ(overflow(), "Überlauf") << each;
    }
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
    installTranslations(QLocale("fr"));
    const QMessageBox english(QMessageBox::Question, {}, {}, QMessageBox::Yes);
    EXPECT_EQ(english.button(QMessageBox::Yes)->text().remove('&'), "Yes")
        << "as the question, which there is in no French";
}

/// Counted: "%1", "&" and line breaks.
std::map<QString, qsizetype> marksOf(const QString& text) {
    std::map<QString, qsizetype> marks;
    static const QRegularExpression mark("%[1-9]|&(?=\\p{L})|\n");
    for (auto found = mark.globalMatch(text); found.hasNext();)
        ++marks[found.next().captured()];
    return marks;
}

TEST(Catalogues, AreCompleteAndKeepThePlacesTheShortcutsAndTheLinesOfEveryText) {
    QDirIterator catalogues(KORVANE_TESTS_DIR "/../translations", {"*.ts"});
    int texts = 0;
    while (catalogues.hasNext()) {
        QFile file(catalogues.next());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        QString source;
        for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
            if (xml.name() == u"source" && xml.isStartElement()) source = xml.readElementText();
            if (xml.name() != u"translation" || !xml.isStartElement()) continue;
            const bool finished = xml.attributes().isEmpty();
            const QString translation = xml.readElementText();
            EXPECT_TRUE(finished && !translation.isEmpty()) << source.toStdString();
            EXPECT_EQ(marksOf(translation), marksOf(source)) << translation.toStdString();
            ++texts;
        }
    }
    EXPECT_GT(texts, 300);
}

} // namespace
} // namespace Korvane

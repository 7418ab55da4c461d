#include "KeptOf.h"
#include "ui_visit.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QBuffer>
#include <QDir>
#include <QPluginLoader>
#include <QPushButton>
#include <QSignalSpy>
#include <QUiLoader>

#include <gmock/gmock.h>

namespace Korvane::Testing {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// Warnings while it lives.
class Told {
  public:
    Told()
        : mBefore(qInstallMessageHandler(
              [](QtMsgType, const QMessageLogContext&, const QString& text) { texts() << text; })) {
        texts().clear();
    }
    ~Told() { qInstallMessageHandler(mBefore); }
    static QStringList& texts() {
        static QStringList all;
        return all;
    }

  private:
    QtMessageHandler mBefore;
};

std::unique_ptr<QWidget> loaded(QIODevice&& form) {
    QUiLoader loader;
    loader.addPluginPath(KORVANE_PLUGINS "/designer");
    EXPECT_TRUE(form.open(QIODevice::ReadOnly));
    std::unique_ptr<QWidget> widget(loader.load(&form));
    EXPECT_TRUE(widget) << loader.errorString().toStdString();
    return widget;
}

QList<QDesignerCustomWidgetInterface*> palette() {
    const QDir plugins(KORVANE_PLUGINS "/designer");
    QPluginLoader loader(plugins.filePath(plugins.entryList({"*korvane-designer*"}, QDir::Files).value(0)));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    EXPECT_TRUE(collection) << loader.errorString().toStdString();
    return collection->customWidgets();
}

} // namespace

TEST(Form, GivesControlsTheirKeptPropertiesWhenItIsLoadedAndWhenItIsCompiled) {
    const auto form = loaded(QFile(KORVANE_TESTS_DIR "/designer/visit.ui"));
    expectVisit(*form);
    QWidget compiled;
    Ui::Visit().setupUi(&compiled);
    expectVisit(compiled);
}

TEST(Form, LeavesACodeAsItIsWhenNoneHasTheNameItIsGiven) {
    QFile visit(KORVANE_TESTS_DIR "/designer/visit.ui");
    ASSERT_TRUE(visit.open(QIODevice::ReadOnly));
    QByteArray xml = visit.readAll();
    xml.replace("dbxadmin::ListBox", "dbxadmin::Slider").replace("funcPanel::Flat", "funcPanel::Round");
    QBuffer changed(&xml);
    const Told told;
    const auto form = loaded(std::move(changed));
    EXPECT_EQ(control(*form, "field").property("displayType").toInt(), 0);
    EXPECT_EQ(control(*form, "orders").property("buttonStyle").toInt(), 1);
    EXPECT_EQ(told.texts(), (QStringList{"buttonStyle is left as it is: there is no value of that name",
                                         "displayType is left as it is: there is no value of that name"}));
}

TEST(Form, HasLiveControlsOutsideDesigner) {
    const auto form = loaded(QFile(KORVANE_TESTS_DIR "/designer/visit.ui"));
    auto& orders = control(*form, "orders");
    EXPECT_FALSE(orders.designMode());
    QSignalSpy clicks(&orders, SIGNAL(btnClick(qint16)));
    orders.findChild<QPushButton*>("cmdButton(1)")->click();
    EXPECT_EQ(clicks.size(), 1);
    EXPECT_TRUE(orders.findChild<QPushButton*>("cmdButton(2)")->isHidden()) << "it has two";
}

TEST(Palette, OffersEveryControlUnderOneHeading) {
    QStringList names;
    for (const auto* each : palette()) {
        names << each->name();
        SCOPED_TRACE(each->name().toStdString());
        EXPECT_EQ(each->group(), "Korvane");
        EXPECT_FALSE(each->isContainer());
        EXPECT_FALSE(each->icon().pixmap(22).toImage().allGray()) << "it has a drawing";
        EXPECT_THAT(each->toolTip().toStdString(), HasSubstr(": "));
        EXPECT_GT(each->whatsThis().size(), each->toolTip().size());
        EXPECT_THAT(each->includeFile().toStdString(), StartsWith("korvane/controls/"));
    }
    EXPECT_EQ(names, (QStringList{"Korvane::ucNIPPanel", "Korvane::axDate", "Korvane::funcPanel",
                                  "Korvane::movebtn", "Korvane::dbxadmin"}));
}

TEST(Palette, DropsAControlAsANewOneOnTheForm) {
    for (auto* each : palette()) {
        SCOPED_TRACE(each->name().toStdString());
        const QByteArray xml = each->domXml().toUtf8();
        QBuffer buffer;
        buffer.setData(xml);
        QUiLoader loader;
        loader.addPluginPath(KORVANE_PLUGINS "/designer");
        const std::unique_ptr<QWidget> dropped(loader.load(&buffer));
        ASSERT_TRUE(dropped) << loader.errorString().toStdString() << xml.toStdString();
        const std::unique_ptr<UserControl> fresh(static_cast<UserControl*>(each->createWidget(nullptr)));
        fresh->InitProperties();
        EXPECT_EQ(keptOf(static_cast<UserControl&>(*dropped)), keptOf(*fresh));
        EXPECT_EQ(dropped->size().expandedTo(dropped->sizeHint()), dropped->size()) << "everything has room";
    }
}

TEST(Palette, HasNoTranslationForWhatAUserEnters) {
    std::string all;
    for (const auto* each : palette())
        all += each->domXml().toStdString();
    EXPECT_THAT(all, HasSubstr(R"(<string notr="true">Item 1/Item 2/Item 3/Etc.</string>)"));
    for (const char* name : {"axDate", "fldName", "fieldCaption", "ListBoxText", "ListData"})
        EXPECT_THAT(all, ContainsRegex("<stringpropertyspecification name=\"" + std::string(name) +
                                       "\"[^>]*notr=\"true\""));
    EXPECT_THAT(all, Not(HasSubstr(R"(<stringpropertyspecification name="FrameName")")));
}

} // namespace Korvane::Testing

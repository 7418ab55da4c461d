#include <korvane/controls/container/PropertyBag.h>

#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/runtime/RuntimeError.h>

#include <QFile>
#include <QJsonDocument>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

namespace Korvane {

TEST(PropertyBag, ComesBackFromJsonFromBytesAndFromSettings) {
    PropertyBag bag, bytes;
    bag.WriteProperty("Count", -3, 5);
    bag.WriteProperty("Shown", false, true);
    bag.WriteProperty("Title", "Grüße, \"&Print\"; 100 %\n@next", "");
    bag.WriteProperty("Empty", "", "Function Btn");
    bag.WriteProperty("Usual", 1, 1);
    const auto expectAll = [](const PropertyBag& read) {
        EXPECT_EQ(read.ReadProperty("Count", 5), -3);
        EXPECT_EQ(read.ReadProperty("Shown", true), false);
        EXPECT_EQ(read.ReadProperty("Title", "?"), "Grüße, \"&Print\"; 100 %\n@next");
        EXPECT_EQ(read.ReadProperty("Empty", "Function Btn"), "");
        EXPECT_EQ(read.values().size(), 4);
        EXPECT_EQ(read.problems(), QStringList());
    };
    expectAll(PropertyBag::fromJson(bag.toJson()));
    bytes.Contents(bag.Contents());
    expectAll(bytes);
    const QTemporaryDir dir;
    QSettings settings(dir.filePath("host.ini"), QSettings::IniFormat);
    settings.setValue("Form/panel/Stale", 1);
    settings.setValue("Form/other", 2);
    bag.save(settings, "Form/panel");
    settings.sync();
    QSettings again(dir.filePath("host.ini"), QSettings::IniFormat);
    expectAll(PropertyBag::load(again, "Form/panel"));
    EXPECT_EQ(again.value("Form/other"), 2) << "what is beside the group is not the bag's";
    EXPECT_THROW(bag.save(settings, ""), RuntimeError);
}

TEST(PropertyBag, WrittenByHandLoadsWithDefaultsAndSaysWhatIsWrong) {
    PropertyBag bag;
    bag.Contents(R"({"BackColor": 4294967551, "FrameCaption": null, "btnText1": 1, "btnText2": ["a", "b"],
        "buttonCount": 9, "buttonStyle": 70000, "FrameFontSize": -3, "ButtonFontsize": 0, "ButtonFontSize": "2"})");
    funcPanel panel;
    panel.ReadProperties(bag);
    EXPECT_EQ(panel.FrameCaption(), "Function Btn");
    EXPECT_EQ(panel.btnText1() + panel.btnText2() + panel.btnText3(), "123");
    EXPECT_EQ(panel.buttonCount(), 5);
    EXPECT_EQ(panel.buttonStyle() + panel.FrameFontSize(), 2);
    EXPECT_EQ(panel.ButtonFontSize(), 2);
    EXPECT_EQ(panel.BackColor(), buttonFace);
    EXPECT_EQ(bag.problems().join('\n').toStdString(),
              "BackColor holds 4294967551: that is no colour of 32 bits, the button face is used\n"
              "ButtonFontsize is not the name of a property that is kept\n"
              "FrameCaption holds nothing: that is no text, \"Function Btn\" is used\n"
              "FrameFontSize holds -3: that is no size, 1 is used\n"
              "btnText2 holds [\"a\",\"b\"]: that is no text, \"2\" is used\n"
              "buttonCount holds 9: buttonCount must not be greater than 5. 5 is used\n"
              "buttonStyle holds 70000: that is no whole number of 16 bits, 1 is used");
    PropertyBag none;
    none.Contents("{\"Shown\": ");
    EXPECT_EQ(none.problems().size(), 1);
    none.Contents(R"({"BackColor": "red"})");
    panel.ReadProperties(none);
    EXPECT_EQ(panel.BackColor(), buttonFace);
    EXPECT_EQ(none.problems().join('\n').toStdString(),
              "BackColor holds \"red\": that is no colour of 32 bits, the button face is used");
}

TEST(PropertyBag, TellsOfWhatItsFormatWouldPassOver) {
    PropertyBag twice;
    twice.Contents(
        R"({"btnText1": "\"a\": {", "buttonCount": 3, "Other": {"btnText1": [":"]}, "button\u0043ount": 4})");
    funcPanel panel;
    panel.ReadProperties(twice);
    EXPECT_EQ(panel.buttonCount(), 4);
    EXPECT_EQ(twice.problems().join('\n').toStdString(),
              "Other is not the name of a property that is kept\n"
              "buttonCount stands there more than once: the last is used");
    const QTemporaryDir dir;
    QFile file(dir.filePath("host.ini"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[panel]\nbuttonCount=3\nbtnText1 Print\nbtn\\Text2=Sign\nFrameCaption=@Variant(\\0)\n");
    file.close();
    QSettings settings(file.fileName(), QSettings::IniFormat);
    const auto bag = PropertyBag::load(settings, "panel");
    panel.ReadProperties(bag);
    EXPECT_EQ(panel.buttonCount(), 3);
    EXPECT_EQ(panel.btnText1() + panel.btnText2() + panel.FrameCaption(), "12Function Btn");
    EXPECT_EQ(
        bag.problems().join('\n').toStdString(),
        "The settings hold lines that cannot be read: what they were meant for is taken at its default\n"
        "FrameCaption holds nothing: that is no text, \"Function Btn\" is used\n"
        "btn is a group, and no property that is kept");
}

TEST(PropertyBag, TakesOnlyABooleanForABooleanAndAnyKindOfNumber) {
    const std::vector<std::pair<QVariant, std::optional<bool>>> rows{
        {"False", false}, {"true", true}, {"0", false}, {-1, true}, {"perhaps", {}}, {"", {}}};
    for (const auto& [value, taken] : rows) {
        SCOPED_TRACE(value.toString().toStdString());
        PropertyBag bag;
        bag.WriteProperty("Shown", value, {});
        for (const bool byDefault : {false, true})
            EXPECT_EQ(bag.ReadProperty("Shown", byDefault).toBool(), taken.value_or(byDefault));
        EXPECT_EQ(bag.problems().isEmpty(), taken.has_value());
    }
    for (const QVariant& value : {QVariant(2ULL), QVariant(2.0F), QVariant::fromValue(Qt::AlignRight)}) {
        PropertyBag bag;
        bag.WriteProperty("Count", value, {});
        EXPECT_EQ(bag.ReadProperty("Count", 5), 2) << value.typeName();
    }
}

} // namespace Korvane

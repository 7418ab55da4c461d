#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/FieldDraft.h>

#include <gmock/gmock.h>

#include <functional>

namespace Korvane {

using testing::HasSubstr;

namespace {

struct Case {
    std::function<void(FieldDraft&)> change;
    FieldDraft::Input input = FieldDraft::Name;
    const char* message = ""; ///< a part of it; empty: nothing is wrong
};

FieldDraft listField(const char* type, const char* width) {
    FieldDraft draft;
    draft.name = "Mood";
    draft.displayType = type;
    draft.width = width;
    draft.choices = QStringList{"Good", "Poor", "Fair"};
    return draft;
}

} // namespace

TEST(FieldDraft, SaysWhatIsWrongAndWhere) {
    const StructureLimits limits{.groupName = 10, .fieldName = 64, .caption = 20, .choice = 5};
    const auto width = [](const char* text) { return [=](FieldDraft& d) { d.width = text; }; };
    const auto row = [](const char* text) { return [=](FieldDraft& d) { d.row = text; }; };
    const auto name = [](const QString& text) { return [=](FieldDraft& d) { d.name = text; }; };
    const auto choices = [](const QStringList& texts) { return [=](FieldDraft& d) { d.choices = texts; }; };
    QStringList many;
    for (int i = 0; i < 1000; ++i)
        many << QString::number(i);
    const Case cases[] = {
        {width("1")},
        {width(" 32767 ")},
        {width("0"), FieldDraft::Width, "1 to 32767"},
        {width("-1"), FieldDraft::Width, "1 to 32767"},
        {width("40000"), FieldDraft::Width, "1 to 32767"},
        {width("99999999999999999999"), FieldDraft::Width, "1 to 32767"},
        {width("ten"), FieldDraft::Width, "1 to 32767"},
        {width("1.5"), FieldDraft::Width, "1 to 32767"},
        {width(""), FieldDraft::Width, "1 to 32767"},
        {row("")},
        {row("9999999999999")},
        {row("0"), FieldDraft::Row, "whole number from 1"},
        {row("last"), FieldDraft::Row, "whole number from 1"},
        {name(QString(63, u'a'))},
        {name(QString(64, u'a')), FieldDraft::Name, "63 letters"},
        {name(QString(32, u'ö')), FieldDraft::Name, "63 letters"},
        {name(QString(300, u'a')), FieldDraft::Name, "63 letters"},
        {[](FieldDraft& d) { d.caption = QString(20, u'ö'); }},
        {[](FieldDraft& d) { d.caption = QString(21, u'c'); }, FieldDraft::Caption, "20 characters"},
        {choices(many)},
        {choices({"a", "b|c"}), FieldDraft::Choices, "\"|\""},
        {choices({"a", ""}), FieldDraft::Choices, "empty"},
        {choices({"a", "b", "a"}), FieldDraft::Choices, "the same"},
        {choices({"toolong"}), FieldDraft::Choices, "5 characters"},
    };
    for (const Case& c : cases) {
        FieldDraft draft;
        draft.name = "Pulse";
        c.change(draft);
        SCOPED_TRACE(
            utf8(draft.name + "," + draft.width + "," + draft.row + "," + draft.choices.join('/').left(9)));
        const auto checked = definitionOf(draft, {}, limits);
        const auto* fault = std::get_if<DraftFault>(&checked);
        EXPECT_EQ(fault != nullptr, *c.message != 0);
        if (!fault) continue;
        EXPECT_EQ(fault->input, c.input);
        EXPECT_THAT(utf8(fault->message), HasSubstr(c.message));
    }
}

TEST(FieldDraft, NeedsTheWidthOfWhatCanBeChosenAtOnce) {
    for (const auto& [type, width, needed] :
         {std::tuple{"LIST", "4", ""}, std::tuple{"LIST", "3", "width of 4."},
          std::tuple{"COMBOBOX", "3", "width of 4."}, std::tuple{"LIST-MULTIPLE", "14", ""},
          std::tuple{"LIST-MULTIPLE", "13", "width of 14."}}) {
        const auto checked = definitionOf(listField(type, width), {}, {});
        const auto* fault = std::get_if<DraftFault>(&checked);
        EXPECT_EQ(fault != nullptr, *needed != 0) << type << width;
        EXPECT_THAT(fault ? utf8(fault->message) : "", HasSubstr(needed));
    }
}

TEST(FieldDraft, LeavesWhatOtherProgramsMadeAsItIs) {
    FieldDraft memo = listField("SLIDER", "0");
    memo.choices << "Good"
                 << "";
    memo.rule = 7;
    memo.row = "3";
    memo.selected = 1;
    FieldDraft edited = memo;
    edited.caption = "How they feel";
    const auto definition = std::get<FieldDefinition>(definitionOf(edited, memo, {}));
    EXPECT_EQ(definition.maxLength, 0);
    EXPECT_EQ(definition.displayType, "SLIDER");
    EXPECT_EQ(definition.initialValueRule, 7);
    EXPECT_EQ(definition.rowIndex, 0) << "stays where it is";
    EXPECT_EQ(definition.defaultValue, "Poor");
    EXPECT_EQ(definition.values.size(), 5U);
}

} // namespace Korvane

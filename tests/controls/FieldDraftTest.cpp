#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/FieldDraft.h>

#include <gmock/gmock.h>

namespace Korvane {

using testing::HasSubstr;

namespace {

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
    using Input = FieldDraft::Input;
    const auto put = [](FieldDraft& draft, Input input, const QString& text) {
        if (input == Input::Choices) draft.choices = text.split('/');
        if (input == Input::Width) draft.width = text;
        if (input == Input::Row) draft.row = text;
        if (input == Input::Caption) draft.caption = text;
        if (input == Input::Name) draft.name = text;
    };
    const struct {
        Input input;
        QStringList texts;   ///< choices: parted by slashes
        const char* message; ///< a part of it; empty: nothing is wrong
    } cases[] = {
        {Input::Width, {"1", " 32767 "}, ""},
        {Input::Width, {"0", "-1", "40000", "99999999999999999999", "1.5", ""}, "1 to 32767"},
        {Input::Row, {"", "9999999999999"}, ""},
        {Input::Row, {"0", "last"}, "whole number from 1"},
        {Input::Name, {QString(63, u'a')}, ""},
        {Input::Name, {QString(64, u'a'), QString(32, u'ö')}, "63 letters"},
        {Input::Caption, {QString(20, u'ö')}, ""},
        {Input::Caption, {QString(21, u'c')}, "20 characters"},
        {Input::Choices, {"a/b|c"}, "\"|\""},
        {Input::Choices, {"a/"}, "empty"},
        {Input::Choices, {"a/b/a"}, "the same"},
        {Input::Choices, {"toolong"}, "5 characters"},
    };
    for (const auto& c : cases) {
        for (const QString& text : c.texts) {
            SCOPED_TRACE(utf8(text));
            FieldDraft draft;
            draft.name = "Pulse";
            put(draft, c.input, text);
            const auto checked = definitionOf(draft, {}, limits);
            const auto* fault = std::get_if<DraftFault>(&checked);
            EXPECT_EQ(fault != nullptr, *c.message != 0);
            if (!fault) continue;
            EXPECT_EQ(fault->input, c.input);
            EXPECT_THAT(utf8(fault->message), HasSubstr(c.message));
        }
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

TEST(FieldDraft, KeepsWhatWasWrittenWhileAnotherDeskChangedTheRest) {
    const FieldDraft begun = listField("LIST", "50");
    FieldDraft written = begun, now = begun;
    written.rule = begun.rule + 1;
    written.selected = 2;
    now.caption = "The mood";
    FieldDraft expected = now;
    expected.rule = written.rule;
    expected.selected = 2;
    EXPECT_TRUE(broughtUp(written, begun, now) == expected);
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

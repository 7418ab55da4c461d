#include "support/NipForm.h"
#include "support/NothingIsClipped.h"

#include <korvane/controls/container/Twips.h>
#include <korvane/controls/nippanel/GroupPage.h>

#include <QScrollArea>
#include <QScrollBar>

namespace Korvane {

using Testing::NipForm;

namespace {

QScrollArea* scrollArea(const NipForm& form) {
    return form.control<QScrollArea>("scrollNip(0)");
}

QRect place(const NipForm& form, const char* name) {
    return form.control<QWidget>(name)->geometry();
}

void manyFields(NipForm& form) {
    form.group(2, "Group", "T");
    const char* captions[] = {
        "Pulse", "R&D <b>code</b>",
        "Moving or speaking so slowly that other people could have noticed. Or the opposite",
        "Pneumonoultramicroscopicsilicovolcanoconiosis"};
    int number = 0;
    for (const char* type : {"TEXT", "COMBOBOX", "LIST", "LIST-EDITCONTENT"})
        for (const char* caption : captions) {
            const std::string name = "F" + std::to_string(++number);
            form.field(2, "T", name, {.displayType = type});
            form.field(2, "T", name + "_COMMENTS");
            if (number == 1) form.field(2, "T", name + "_COMMENTS_COMMENTS"); // of the same row and column
            form.db->quietly("Update DBFields Set FieldCaption='" + std::string(caption) +
                             "' Where FieldName='" + name + "'");
        }
}

} // namespace

TEST(GroupPage, ClipsAndOverlapsNothingAtAnyWidthAndFontSize) {
    for (const int points : {9, 18})
        for (const int width : {320, 700, 1400}) {
            SCOPED_TRACE(testing::Message() << points << " at " << width);
            NipForm form;
            manyFields(form);
            form.window.setFont(QFont(form.window.font().family(), points));
            form.open({width, 600});
            Testing::expectNothingIsClipped(form.window);
            EXPECT_EQ(scrollArea(form)->horizontalScrollBar()->maximum(), 0);
        }
}

TEST(GroupPage, PutsACommentBesideItsFieldAndBelowItWhereThereIsNoRoomMirroredFromRightToLeft) {
    NipForm form;
    manyFields(form);
    form.open({780, 600});
    EXPECT_EQ(place(form, "txtNip(1)").top(), place(form, "txtNip(0)").top());
    EXPECT_GT(place(form, "txtNip(1)").left(), place(form, "txtNip(0)").right());
    form.window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(place(form, "txtNip(1)").right(), place(form, "txtNip(0)").left());
    EXPECT_GT(place(form, "lblNip(0)").left(), place(form, "txtNip(0)").right());
    form.window.resize(600, 600);
    EXPECT_GT(place(form, "txtNip(1)").top(), place(form, "txtNip(0)").bottom());
    EXPECT_EQ(place(form, "txtNip(1)").left(), place(form, "txtNip(0)").left());
}

TEST(GroupPage, HasTheHeightsOfTheControlsInTwips) {
    for (const auto& [group, fillsTab] :
         {std::pair{"Problem List", true}, {"Billing", true}, {"billing", false}}) {
        SCOPED_TRACE(group);
        NipForm form;
        form.group(2, group, "T");
        form.field(2, "T", "F1", {.displayType = "LIST"});
        form.field(2, "T", "F2", {.displayType = "LIST-EDITCONTENT"});
        form.field(2, "T", "F3");
        form.open({800, 900});
        const Twips twips(*form.control<QWidget>("txtNip(0)"));
        const int tab = scrollArea(form)->viewport()->height();
        EXPECT_EQ(place(form, "txtNip(0)").height(), twips.px(285));
        EXPECT_EQ(place(form, "cmdNip(0)").width(), twips.px(855));
        EXPECT_EQ(place(form, "gridNip(0)").height() > tab * 9 / 10, fillsTab);
        EXPECT_EQ(place(form, "gridNip(0)").height() == twips.px(1140), !fillsTab);
        EXPECT_LE(place(form, "cmdNip(1)").bottom() - place(form, "gridNip(1)").top(), tab);
    }
}

TEST(GroupPage, ScrollsToTheControlThatGetsTheFocus) {
    NipForm form;
    manyFields(form);
    form.open({900, 300});
    form.after.setFocus();
    QTest::keyClick(&form.after, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty());
    EXPECT_GT(scrollArea(form)->verticalScrollBar()->value(), 0);
    form.reload();
    EXPECT_EQ(scrollArea(form)->verticalScrollBar()->value(), 0) << "another encounter begins at the top";
}

TEST(GroupPage, ForgetsTheModelWhenItIsCleared) {
    NipForm form;
    form.oneField({}, "x");
    GroupPage page(nullptr);
    page.plan(form.nip, 1, {});
    page.clear();
    page.make(&page);
    EXPECT_FALSE(page.isMade());
}

} // namespace Korvane

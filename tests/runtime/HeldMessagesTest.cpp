#include <korvane/runtime/HeldMessages.h>

#include <korvane/runtime/Interaction.h>

#include "support/RecordingInteraction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

using namespace Korvane;
using namespace Korvane::Testing;
using ::testing::ElementsAre;

TEST(HeldMessages, AreShownInTheirOrderAtTheEndAndQuestionsAtOnce) {
    RecordedInteraction user;
    user->answers = {Answer::Yes};
    user->texts = {"typed"};
    const auto show = [](const char* text, int style) {
        return Interaction::current().MsgBox(text, style, "Nip");
    };
    const ShownBox first{"first", MsgBoxStyle::Critical, "Nip"}, second{"second", MsgBoxStyle::OkOnly, "Nip"},
        question{"go on?", MsgBoxStyle::YesNo, "Nip"};
    {
        const HeldMessages messages;
        EXPECT_EQ(show("first", MsgBoxStyle::Critical), Answer::Ok);
        {
            const HeldMessages inner;
            show("second", MsgBoxStyle::OkOnly);
        }
        EXPECT_EQ(show("go on?", MsgBoxStyle::YesNo), Answer::Yes);
        EXPECT_EQ(Interaction::current().InputBox("Name?", ""), "typed");
        EXPECT_THAT(user->boxes, ElementsAre(question));
        user->whenShown = [] { throw std::runtime_error("the display is gone"); };
    }
    EXPECT_THAT(user->boxes, ElementsAre(question, first, second));
    EXPECT_EQ(&Interaction::current(), &*user);
}

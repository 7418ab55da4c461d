#include "support/AdminDesk.h"
#include "support/CustomizingDesk.h"
#include "support/DateForm.h"
#include "support/ShownTexts.h"

#include <korvane/controls/buttons/funcPanel.h>
#include <korvane/controls/buttons/movebtn.h>

#include <QContextMenuEvent>

namespace Korvane {

namespace {

using namespace Testing;
using TextSet = std::set<std::string>;

void readBoxes(UntranslatedTexts& texts, const RecordedInteraction& user) {
    for (const ShownBox& box : user->boxes)
        for (const std::string& text : {box.text, box.title})
            texts.read(qt(text));
    for (const ShownInput& box : user->inputs)
        for (const std::string& text : {box.prompt, box.title})
            texts.read(qt(text));
}

/// The panel after each of the steps that a user does.
TextSet untranslatedOf(CustomizingDesk& desk, const QStringList& steps) {
    UntranslatedTexts texts;
    for (const QString& step : steps) {
        desk.does(step);
        texts.read(desk.panel);
    }
    readBoxes(texts, desk.user);
    return texts.found();
}

} // namespace

TEST(TranslatableTexts, AreAllThatTheNipPanelShowsButWhatIsStored) {
    const BracketLanguage language;
    CustomizingDesk desk;
    desk.field(2, "NIP_Custom1", "Drugs", {.displayType = "LIST-EDITCONTENT"});
    desk.field(2, "NIP_Custom1", "Odd", {.displayType = "ODD"});
    desk.panel.Initialize(desk.db);
    desk.load();
    desk.user->texts = {"", std::string(300, '1')}; // two names for a group
    const TextSet shown =
        untranslatedOf(desk, {"Customize; field 0", "width=0; Save field",
                              "name=2 b; caption=1; display=LIST; Save field; Cancel field",
                              "cmdNipChoices(0); Cancel field", "field 1; cmdNipChoices(0); Delete field",
                              "Cancel field", "New field; caption=1", "Save field", "Cancel field", "tab 1",
                              "ID_DeleteNipGroup", "ID_NewNipGroup; ID_NewNipGroup",
                              "tab 0; Back; pulse=80; Cancel; cmdNip(0)", "description=; Save"});
    EXPECT_THAT(desk.user->boxes, testing::SizeIs(testing::Gt(9)));
    const TextSet stored{
        "Dr. Ann Hale MD", "Nurse Bo Lee", "Pulse",   "The Pulse", "Mood",       "The Mood", "Drugs",
        "The Drugs",       "Odd",          "The Odd", "ODD",       "The Smoker", "Good",     "Poor"};
    const TextSet ofQt{"Scroll Left", "Scroll Right"};
    EXPECT_THAT(shown, testing::Each(testing::AnyOf(testing::AnyOfArray(stored), testing::AnyOfArray(ofQt))));
}

TEST(TranslatableTexts, AreAllThatTheOtherControlsShowButWhatTheHostSets) {
    const BracketLanguage language;
    UntranslatedTexts texts;
    DateForm dates;
    dates.press("\t13\t");
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {}, {});
    QCoreApplication::sendEvent(&dates.box(0), &menu);
    texts.read(*dates.date);
    for (const std::string& event : dates.heard)
        if (event.ends_with('.')) texts.read(qt(event));

    const AdminDesk desk;
    desk.entry().setText("/");
    texts.read(*desk.admin);
    desk.clickItem(0);
    texts.read(*desk.admin);

    funcPanel buttons;
    buttons.setProperty("buttonCount", 6);
    buttons.setProperty("buttonCount", 0);
    texts.read(buttons);
    texts.read(movebtn());
    readBoxes(texts, desk.user);
    const TextSet ofTheHost{
        "Func Btn", "Move Buttons", "Field Name", "Field Caption", "Input Display", "Required", "a", "b",
        "c"};
    EXPECT_THAT(texts.found(), testing::Each(testing::AnyOfArray(ofTheHost)));
}

} // namespace Korvane

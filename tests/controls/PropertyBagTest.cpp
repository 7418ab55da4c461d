#include <korvane/controls/container/PropertyBag.h>

#include <gtest/gtest.h>

namespace Korvane {

TEST(PropertyBag, GivesTheDefaultForWhatIsMissingOrOfAnotherType) {
    PropertyBag bag;
    EXPECT_EQ(bag.ReadProperty("Count", 5), 5);
    bag.WriteProperty("Count", "many", 5);
    EXPECT_EQ(bag.ReadProperty("Count", 5), 5);
    bag.WriteProperty("Count", "7", 5);
    EXPECT_EQ(bag.ReadProperty("Count", 5), 7) << "a text that reads as the number is one";
    bag.WriteProperty("Shown", "False", true);
    EXPECT_EQ(bag.ReadProperty("Shown", true), false);
}

TEST(PropertyBag, KeepsOnlyWhatDiffersFromItsDefault) {
    PropertyBag bag;
    bag.WriteProperty("Shown", false, true);
    bag.WriteProperty("Title", "Nip", "Nip");
    EXPECT_EQ(bag.values().keys(), QStringList{"Shown"});
    bag.WriteProperty("Shown", true, true);
    EXPECT_TRUE(bag.values().isEmpty()) << "back at its default it takes no room";
}

} // namespace Korvane

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/FieldName.h>

#include <gtest/gtest.h>

namespace Korvane {

TEST(FieldName, HasNoneOfTheForbiddenCharactersAndBeginsWithALetter) {
    for (const char* name : {"Temp-1", "Temp.1", "Gewicht_kg", "Größe", "脉搏", "a&b", "-x", ""})
        EXPECT_TRUE(isValidFieldName(name)) << name;
    for (const char* name : {"1Temp", "_Temp", "My Field", "Cost$", "O'Hara", "a\"b", "a(b", "a)b", "a[b",
                             "a]b", "a@b", "a#b", "a%b", " ", "9"})
        EXPECT_FALSE(isValidFieldName(name)) << name;
}

TEST(FieldName, IsMadeFromATextByLeavingOutWhatItMustNotHave) {
    const std::pair<const char*, const char*> cases[] = {
        {"Blood Pressure (mmHg)", "BloodPressuremmHg"},
        {"2nd _Pulse", "nd_Pulse"},
        {"_1_2 $3 Weight", "Weight"},
        {"100 %", ""},
        {"Größe [cm]", "Größecm"},
        {"Temp-1", "Temp-1"},
    };
    for (const auto& [text, name] : cases) {
        EXPECT_EQ(utf8(cleanedFieldName(text)), name);
        EXPECT_TRUE(isValidFieldName(cleanedFieldName(text)));
    }
}

} // namespace Korvane

#include <korvane/controls/container/Text.h>
#include <korvane/controls/nippanel/FieldName.h>

#include <gtest/gtest.h>

namespace Korvane {

TEST(FieldName, HasNoneOfTheForbiddenCharactersAndBeginsWithALetter) {
    for (const char* name : {"Temp-1", "Temp.1", "Gewicht_kg", "Größe", "脉搏", "a&b", "-x", ""})
        EXPECT_TRUE(isValidFieldName(name)) << name;
    for (const char* name :
         {"1Temp", "_Temp", "My Field", "Cost$", "O'Hara", "a\"b", "a(b", "a]b", "a@b", "a%b"})
        EXPECT_FALSE(isValidFieldName(name)) << name;
}

TEST(FieldName, IsMadeFromATextByLeavingOutWhatItMustNotHave) {
    for (const auto& [text, name] : {std::pair{"Blood Pressure (mmHg)", "BloodPressuremmHg"},
                                     {"_1_2 $3 Weight", "Weight"},
                                     {"100 %", ""},
                                     {"Größe [cm]", "Größecm"}})
        EXPECT_EQ(utf8(cleanedFieldName(text)), name);
}

} // namespace Korvane

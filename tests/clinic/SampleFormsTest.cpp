#include "clinic/sample/SampleForms.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace {

using namespace Clinic;
using testing::ElementsAre;

const FormDefinition& formOf(const std::vector<FormDefinition>& forms, std::string_view group) {
    return *std::find_if(forms.begin(), forms.end(),
                         [&](const FormDefinition& f) { return f.group == group; });
}

TEST(SampleForms, ReadThePublishedFormsWhole) {
    const std::vector<FormDefinition> forms = sampleForms();
    std::vector<std::pair<std::string, std::size_t>> sizes;
    for (const FormDefinition& form : forms)
        sizes.emplace_back(form.group, form.fields.size());
    using Size = std::pair<std::string, std::size_t>;
    EXPECT_THAT(sizes, ElementsAre(Size{"Vital Signs", 17}, Size{"PHQ-9", 11}, Size{"Demographics", 24},
                                   Size{"Baseline", 8}, Size{"Problem List", 1}, Size{"Billing", 1}));

    const FieldDefinition& interest = formOf(forms, "PHQ-9").fields.front();
    EXPECT_EQ(interest.caption, "Little interest or pleasure in doing things?");
    EXPECT_EQ(interest.displayType, "COMBOBOX-RESTRICTED");
    EXPECT_TRUE(interest.carriedForward);
    EXPECT_THAT(interest.values,
                ElementsAre("Not at all", "Several days", "More than half the days", "Nearly every day"));
    EXPECT_EQ(formOf(forms, "PHQ-9").fields[9].displayType, "TEXT");
    EXPECT_EQ(formOf(forms, "Vital Signs").fields[2].defaultValue, "lbs");
    EXPECT_EQ(formOf(forms, "Vital Signs").fields[8].caption, "Body temperature (°C)");
}

TEST(SampleForms, ShowEveryDisplayTypeAndSpecialCase) {
    std::set<std::string> types;
    bool carried = false, limited = false, unlimited = false, defaulted = false, beside = false;
    for (const FormDefinition& form : sampleForms())
        for (const FieldDefinition& field : form.fields) {
            types.insert(field.displayType);
            carried |= field.carriedForward;
            limited |= field.maxLength == 10;
            unlimited |= field.maxLength == 0;
            defaulted |= !field.defaultValue.empty();
            beside |= field.name == "meds_COMMENTS";
            EXPECT_TRUE(std::none_of(field.values.begin(), field.values.end(), [](const std::string& value) {
                return value.empty() || value.find('|') != std::string::npos;
            })) << field.name;
        }
    EXPECT_THAT(types, ElementsAre("COMBOBOX", "COMBOBOX-RESTRICTED", "LIST", "LIST-EDITCONTENT",
                                   "LIST-MULTIPLE", "TEXT"));
    EXPECT_TRUE(carried && limited && unlimited && defaulted && beside);
}

} // namespace

#include "clinic/sample/SampleForms.h"

#include <gmock/gmock.h>

#include <set>

namespace {

using namespace Clinic;
using testing::ElementsAre;

TEST(SampleForms, ReadThePublishedFormsWhole) {
    const std::vector<FormDefinition> forms = sampleForms();
    std::vector<std::pair<std::string, std::size_t>> sizes;
    std::set<std::string> types;
    for (const FormDefinition& form : forms) {
        sizes.emplace_back(form.group, form.fields.size());
        for (const FieldDefinition& field : form.fields)
            types.insert(field.displayType);
    }
    using Size = std::pair<std::string, std::size_t>;
    EXPECT_THAT(sizes, ElementsAre(Size{"Vital Signs", 17}, Size{"PHQ-9", 11}, Size{"Demographics", 24},
                                   Size{"Baseline", 8}, Size{"Problem List", 1}, Size{"Billing", 1}));
    EXPECT_EQ(types.size(), 6U) << "every display type is shown";
    const FieldDefinition& interest = forms[1].fields.front();
    EXPECT_EQ(interest.caption, "Little interest or pleasure in doing things?");
    EXPECT_EQ(interest.displayType, "COMBOBOX-RESTRICTED");
    EXPECT_TRUE(interest.carriedForward);
    EXPECT_THAT(interest.values,
                ElementsAre("Not at all", "Several days", "More than half the days", "Nearly every day"));
    EXPECT_EQ(forms[0].fields[2].defaultValue, "lbs");
    EXPECT_EQ(forms[0].fields[8].caption, "Body temperature (°C)");
}

} // namespace

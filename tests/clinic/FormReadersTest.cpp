#include "clinic/sample/FhirQuestionnaire.h"
#include "clinic/sample/FieldNames.h"
#include "clinic/sample/LformsPanel.h"
#include "clinic/sample/RedcapDictionary.h"

#include <korvane/runtime/RuntimeError.h>

#include <gmock/gmock.h>

namespace {

using namespace Clinic;
using Korvane::RuntimeError;
using testing::ElementsAre;

/// Of each field: name, display type, the most characters, "carried", [default].
std::vector<std::string> summaryOf(const FormDefinition& form) {
    std::vector<std::string> summary;
    for (const FieldDefinition& f : form.fields)
        summary.push_back(f.name + " " + f.displayType + " " + std::to_string(f.maxLength) +
                          (f.carriedForward ? " carried" : "") + " [" + f.defaultValue + "]");
    return summary;
}

TEST(FieldNames, ArePlainAndUniqueWithoutRegardToCase) {
    FieldNames names;
    EXPECT_EQ(names.from("Resp. rate (per minute)?"), "RespRatePerMinute");
    EXPECT_EQ(names.from("resp rate PER minute"), "RespRatePERMinute2");
    EXPECT_EQ(names.from("24 h pulse"), "Field24HPulse");
}

TEST(FhirQuestionnaire, TurnsEachKindOfItemIntoItsDisplayType) {
    const FormDefinition form = readFhirQuestionnaire(R"({"resourceType":"Questionnaire","item":[
        {"type":"group","text":"Group","item":[{"type":"choice","text":"One","answerOption":[
            {"valueCoding":{"code":"a","display":"Ay"}},{"valueCoding":{"code":"b"},"initialSelected":true}]}]},
        {"type":"choice","text":"Many","repeats":true,"answerOption":[{"valueString":"x"},{"valueInteger":7}]},
        {"type":"choice","text":"Drop","extension":[{"url":"http://x/questionnaire-itemControl",
            "valueCodeableConcept":{"coding":[{"code":"drop-down"}]}}]},
        {"type":"open-choice","text":"Open"},{"type":"boolean","text":"Yes?"},{"type":"display","text":"Read"},
        {"type":"string","text":"Short","maxLength":5,
            "extension":[{"url":"http://x/sdc-questionnaire-observationLinkPeriod"}]},
        {"type":"text","text":"Long"}]})",
                                                      "Group name");
    EXPECT_EQ(form.group, "Group name");
    EXPECT_THAT(summaryOf(form), ElementsAre("One LIST 255 [b]", "Many LIST-MULTIPLE 0 []",
                                             "Drop COMBOBOX-RESTRICTED 255 []", "Open COMBOBOX 255 []",
                                             "Yes LIST 255 []", "Short TEXT 5 carried []", "Long TEXT 0 []"));
    EXPECT_THAT(form.fields[0].values, ElementsAre("Ay", "b"));
    EXPECT_THAT(form.fields[1].values, ElementsAre("x", "7"));
    EXPECT_THROW(readFhirQuestionnaire("{\"resourceType\":\"Patient\"}", "x"), RuntimeError);
}

TEST(LformsPanel, PutsOneUnitIntoTheCaptionAndSeveralBesideTheQuestion) {
    const FormDefinition form = readLformsPanel(R"({"items":[{"header":true,"question":"Head","items":[
        {"question":"BP","units":[{"name":"mm[Hg]"}]},
        {"question":"Weight","units":[{"name":"lbs"},{"name":"kgs","default":true}]}]},
        {"question":"Mood","dataType":"CWE","answers":[{"text":"good"}]},
        {"question":"Side","dataType":"CNE","answers":[{"text":"left"}]}]})",
                                                "Vital Signs");
    EXPECT_THAT(summaryOf(form),
                ElementsAre("BP TEXT 255 []", "Weight TEXT 255 []", "Weight_COMMENTS COMBOBOX 255 [kgs]",
                            "Mood COMBOBOX 255 []", "Side COMBOBOX-RESTRICTED 255 []"));
    EXPECT_EQ(form.fields[0].caption + form.fields[1].caption + form.fields[2].caption,
              "BP (mmHg)WeightUnit");
    EXPECT_THAT(form.fields[2].values, ElementsAre("lbs", "kgs"));
    EXPECT_THROW(readLformsPanel("[]", "x"), RuntimeError);
}

TEST(RedcapDictionary, ReadsTheOneFormAskedFor) {
    const std::string header = "Variable / Field Name,Form Name,Field Type,Field Label,"
                               "\"Choices, Calculations, OR Slider Labels\","
                               "Text Validation Type OR Show Slider Number,Identifier?\n";
    const FormDefinition form = readRedcapForm(header + "skip,other,text,Skip,,,\n"
                                                        "id,one,text,Id,,integer,y\n"
                                                        "up,one,file,Upload,,,\n"
                                                        "note,one,notes,Note,,,\n"
                                                        "sex,one,radio,Sex,\"0, Female | 1, Male, other\",,\n"
                                                        "sum,one,calc,Sum,\"round([a],1)\",,\n"
                                                        "mood,one,slider,Mood,Sad | Happy,,\n"
                                                        "ok,one,yesno,Ok?,,,\n",
                                               "one", "One");
    EXPECT_THAT(summaryOf(form), ElementsAre("id TEXT 10 carried []", "note TEXT 0 []", "sex LIST 255 []",
                                             "sum TEXT 15 []", "mood COMBOBOX 255 []", "ok LIST 255 []"));
    EXPECT_THAT(form.fields[2].values, ElementsAre("Female", "Male, other"));
    EXPECT_THAT(form.fields[3].values, ElementsAre());
    EXPECT_THAT(form.fields[4].values, ElementsAre("Sad", "Happy"));
    EXPECT_THAT(form.fields[5].values, ElementsAre("Yes", "No"));
    EXPECT_THROW(readRedcapForm(header, "one", "One"), RuntimeError);
    EXPECT_THROW(readRedcapForm("a,b\n", "one", "One"), RuntimeError);
}

} // namespace

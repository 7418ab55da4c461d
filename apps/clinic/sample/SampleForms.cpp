#include "clinic/sample/SampleForms.h"

#include "clinic/sample/FhirQuestionnaire.h"
#include "clinic/sample/LformsPanel.h"
#include "clinic/sample/RedcapDictionary.h"

#include <korvane/runtime/RuntimeError.h>

#include <QFile>

#include <algorithm>

// Qt's macro must stand outside every namespace.
static void registerForms() {
    Q_INIT_RESOURCE(forms);
}

namespace Clinic {

namespace {

using Korvane::RuntimeError;

QByteArray published(const char* name) {
    registerForms();
    QFile file(QLatin1String(":/clinic/forms/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(RuntimeError::FileNotFound, std::string("The form is missing: ") + name);
    return file.readAll();
}

auto locate(FormDefinition& form, std::string_view name) {
    const auto found = std::find_if(form.fields.begin(), form.fields.end(),
                                    [&](const FieldDefinition& field) { return field.name == name; });
    if (found == form.fields.end())
        throw RuntimeError(RuntimeError::ItemNotFound,
                           "The form " + form.group + " has no field " + std::string(name));
    return found;
}

void addComment(FormDefinition& form, std::string_view field, const char* caption) {
    FieldDefinition comment;
    comment.name = std::string(field) + "_COMMENTS";
    comment.caption = caption;
    comment.maxLength = 0;
    form.fields.insert(locate(form, field) + 1, comment);
}

FormDefinition vitalSigns() {
    FormDefinition form = readLformsPanel(published("vital-signs-panel.lforms.json"), "Vital Signs");
    addComment(form, "BPSys", "Position, arm, cuff");
    addComment(form, "HeartRate", "Rhythm");
    return form;
}

FormDefinition demographics(const QByteArray& dictionary) {
    const std::string_view csv(dictionary.data(), static_cast<std::size_t>(dictionary.size()));
    FormDefinition form = readRedcapForm(csv, "demographics", "Demographics");
    for (const char* lasting : {"study_id", "date_enrolled", "ethnicity", "race", "sex", "height"})
        locate(form, lasting)->carriedForward = true;
    addComment(form, "meds", "Other medication, doses");
    return form;
}

FormDefinition problemList() {
    FieldDefinition problems{"Problems", "Problems", "LIST-EDITCONTENT", 0, true, {}, {}};
    return {"Problem List", {problems}};
}

FormDefinition billing() {
    FieldDefinition services{"Services", "Services rendered", "LIST-MULTIPLE", 0, false, {}, {}};
    services.values = {"Office visit, new patient", "Office visit, established patient",
                       "Office visit, extended",    "Telephone consultation",
                       "Depression screening",      "Blood draw",
                       "Laboratory panel",          "Electrocardiogram",
                       "Influenza vaccination",     "Wound care",
                       "Medication review",         "Report to another physician"};
    services.defaultValue = services.values[1];
    return {"Billing", {services}};
}

} // namespace

std::vector<FormDefinition> sampleForms() {
    const QByteArray dictionary = published("longitudinal-visits.redcap-dictionary.csv");
    const std::string_view csv(dictionary.data(), static_cast<std::size_t>(dictionary.size()));
    return {vitalSigns(),
            readFhirQuestionnaire(published("phq9.fhir-r4.json"), "PHQ-9"),
            demographics(dictionary),
            readRedcapForm(csv, "baseline_data", "Baseline"),
            problemList(),
            billing()};
}

} // namespace Clinic

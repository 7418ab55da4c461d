#include "clinic/sample/FhirQuestionnaire.h"

#include "clinic/sample/FieldNames.h"

#include <korvane/runtime/RuntimeError.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Clinic {

namespace {

std::string text(const QJsonObject& object, const char* key) {
    return object[QLatin1String(key)].toString().toStdString();
}

QJsonObject extension(const QJsonObject& item, QLatin1String name) {
    for (const auto& each : item[QLatin1String("extension")].toArray()) {
        QJsonObject found = each.toObject();
        if (found[QLatin1String("url")].toString().endsWith(name)) return found;
    }
    return {};
}

bool isDropDown(const QJsonObject& item) {
    const QJsonObject control = extension(item, QLatin1String("/questionnaire-itemControl"));
    const QJsonArray codings =
        control[QLatin1String("valueCodeableConcept")][QLatin1String("coding")].toArray();
    return !codings.isEmpty() && text(codings.first().toObject(), "code") == "drop-down";
}

std::string answerText(const QJsonObject& option) {
    const QJsonObject coding = option[QLatin1String("valueCoding")].toObject();
    std::string display = text(coding, "display");
    if (!display.empty()) return display;
    if (!coding.isEmpty()) return text(coding, "code");
    const QJsonValue number = option[QLatin1String("valueInteger")];
    return number.isDouble() ? std::to_string(number.toInt()) : text(option, "valueString");
}

void readAnswers(const QJsonObject& item, FieldDefinition& field) {
    for (const auto& each : item[QLatin1String("answerOption")].toArray()) {
        const QJsonObject option = each.toObject();
        field.values.push_back(answerText(option));
        if (option[QLatin1String("initialSelected")].toBool()) field.defaultValue = field.values.back();
    }
}

// Empty for an item that nothing is entered into.
std::string displayType(const QJsonObject& item) {
    const std::string type = text(item, "type");
    if (type == "open-choice") return "COMBOBOX";
    if (type == "choice" && item[QLatin1String("repeats")].toBool()) return "LIST-MULTIPLE";
    if (type == "choice") return isDropDown(item) ? "COMBOBOX-RESTRICTED" : "LIST";
    if (type == "boolean") return "LIST";
    for (const char* typed :
         {"decimal", "integer", "date", "dateTime", "time", "string", "text", "url", "quantity"})
        if (type == typed) return "TEXT";
    return {};
}

int maxLength(const QJsonObject& item) {
    const int given = item[QLatin1String("maxLength")].toInt();
    if (given > 0) return given;
    const std::string type = text(item, "type");
    return type == "text" || item[QLatin1String("repeats")].toBool() ? 0 : FieldDefinition::usualLength;
}

void readItems(const QJsonArray& items, FieldNames& names, FormDefinition& form) {
    for (const auto& each : items) {
        const QJsonObject item = each.toObject();
        FieldDefinition field;
        field.displayType = displayType(item);
        if (!field.displayType.empty()) {
            field.caption = text(item, "text");
            field.name = names.from(field.caption);
            field.maxLength = maxLength(item);
            field.carriedForward =
                !extension(item, QLatin1String("/sdc-questionnaire-observationLinkPeriod")).isEmpty();
            readAnswers(item, field);
            if (text(item, "type") == "boolean") field.values = {"Yes", "No"};
            form.fields.push_back(std::move(field));
        }
        readItems(item[QLatin1String("item")].toArray(), names, form);
    }
}

} // namespace

FormDefinition readFhirQuestionnaire(const QByteArray& json, const std::string& group) {
    const QJsonObject questionnaire = QJsonDocument::fromJson(json).object();
    if (text(questionnaire, "resourceType") != "Questionnaire")
        throw Korvane::RuntimeError(Korvane::RuntimeError::InvalidArgument, "This is no FHIR questionnaire.");
    FormDefinition form{group, {}};
    FieldNames names;
    readItems(questionnaire[QLatin1String("item")].toArray(), names, form);
    return form;
}

} // namespace Clinic

#include "clinic/sample/LformsPanel.h"

#include "clinic/sample/FieldNames.h"

#include <korvane/runtime/RuntimeError.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <utility>

namespace Clinic {

namespace {

std::string text(const QJsonObject& object, const char* key) {
    return object[QLatin1String(key)].toString().toStdString();
}

// The panel names its units by the codes of UCUM, where braces hold a remark.
std::string unitText(const QJsonObject& unit) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 4> written{
        {{"mm[Hg]", "mmHg"}, {"[in_us]", "in"}, {"Cel", "°C"}, {"m2", "m²"}}};
    std::string code = text(unit, "name");
    std::erase(code, '{');
    std::erase(code, '}');
    for (const auto& [ucum, usual] : written)
        if (code == ucum) return std::string(usual);
    if (const auto area = code.find("/m2"); area != std::string::npos) code.replace(area, 3, "/m²");
    return code;
}

FieldDefinition question(const QJsonObject& item, FieldNames& names) {
    FieldDefinition field;
    field.caption = text(item, "question");
    field.name = names.from(field.caption);
    const QJsonArray answers = item[QLatin1String("answers")].toArray();
    if (!answers.isEmpty())
        field.displayType = text(item, "dataType") == "CWE" ? "COMBOBOX" : "COMBOBOX-RESTRICTED";
    for (const auto& answer : answers)
        field.values.push_back(text(answer.toObject(), "text"));
    return field;
}

// Its name puts it into the second column, beside the question.
FieldDefinition unitChoice(const FieldDefinition& measured, const QJsonArray& units) {
    FieldDefinition choice;
    choice.name = measured.name + "_COMMENTS";
    choice.caption = "Unit";
    choice.displayType = "COMBOBOX";
    for (const auto& each : units) {
        choice.values.push_back(unitText(each.toObject()));
        if (each[QLatin1String("default")].toBool()) choice.defaultValue = choice.values.back();
    }
    return choice;
}

void readItems(const QJsonArray& items, FieldNames& names, FormDefinition& form) {
    for (const auto& each : items) {
        const QJsonObject item = each.toObject();
        if (!item[QLatin1String("header")].toBool()) {
            const QJsonArray units = item[QLatin1String("units")].toArray();
            FieldDefinition field = question(item, names);
            if (units.size() == 1) field.caption += " (" + unitText(units.first().toObject()) + ")";
            form.fields.push_back(field);
            if (units.size() > 1) form.fields.push_back(unitChoice(field, units));
        }
        readItems(item[QLatin1String("items")].toArray(), names, form);
    }
}

} // namespace

FormDefinition readLformsPanel(const QByteArray& json, const std::string& group) {
    const QJsonObject panel = QJsonDocument::fromJson(json).object();
    if (!panel[QLatin1String("items")].isArray())
        throw Korvane::RuntimeError(Korvane::RuntimeError::InvalidArgument, "This is no LForms panel.");
    FormDefinition form{group, {}};
    FieldNames names;
    readItems(panel[QLatin1String("items")].toArray(), names, form);
    return form;
}

} // namespace Clinic

#include "clinic/sample/RedcapDictionary.h"

#include "clinic/sample/Csv.h"

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Clinic {

namespace {

using Korvane::RuntimeError;

struct Columns {
    explicit Columns(const CsvRow& header)
        : name(of(header, "Variable / Field Name")), form(of(header, "Form Name")),
          type(of(header, "Field Type")), label(of(header, "Field Label")),
          choices(of(header, "Choices, Calculations, OR Slider Labels")),
          validation(of(header, "Text Validation Type OR Show Slider Number")),
          identifier(of(header, "Identifier?")) {}

    std::size_t name, form, type, label, choices, validation, identifier;

  private:
    static std::size_t of(const CsvRow& header, std::string_view title) {
        const auto found = std::find(header.begin(), header.end(), title);
        if (found == header.end())
            throw RuntimeError(RuntimeError::InvalidArgument,
                               "The data dictionary has no column \"" + std::string(title) + "\".");
        return static_cast<std::size_t>(found - header.begin());
    }
};

const std::string& cell(const CsvRow& row, std::size_t column) {
    static const std::string none;
    return column < row.size() ? row[column] : none;
}

using Entry = std::pair<std::string_view, std::string_view>;

template <std::size_t n>
std::string_view lookUp(const std::array<Entry, n>& table, std::string_view key) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Entry& e) { return e.first == key; });
    return found == table.end() ? std::string_view{} : found->second;
}

// Empty for what nothing is entered into.
std::string_view displayType(std::string_view type) {
    static constexpr std::array<Entry, 9> types{{{"text", "TEXT"},
                                                 {"notes", "TEXT"},
                                                 {"calc", "TEXT"},
                                                 {"radio", "LIST"},
                                                 {"yesno", "LIST"},
                                                 {"truefalse", "LIST"},
                                                 {"dropdown", "COMBOBOX-RESTRICTED"},
                                                 {"slider", "COMBOBOX"},
                                                 {"checkbox", "LIST-MULTIPLE"}}};
    return lookUp(types, type);
}

int maxLength(std::string_view type, std::string_view validation) {
    if (type == "notes" || type == "checkbox") return 0;
    if (validation == "date_ymd" || validation == "integer") return 10;
    if (validation == "number" || type == "calc") return 15;
    if (validation == "phone") return 30;
    return FieldDefinition::usualLength;
}

// "0, Female | 1, Male": the codes stay behind; the labels of a slider have none.
std::vector<std::string> choices(std::string_view type, std::string_view text) {
    if (type == "yesno") return {"Yes", "No"};
    if (type == "truefalse") return {"True", "False"};
    std::vector<std::string> values;
    while (type != "calc" && !text.empty()) {
        const std::size_t bar = std::min(text.find('|'), text.size());
        std::string_view choice = text.substr(0, bar);
        if (type != "slider") choice.remove_prefix(std::min(choice.find(',') + 1, choice.size()));
        values.emplace_back(Korvane::trim(choice));
        text.remove_prefix(std::min(bar + 1, text.size()));
    }
    return values;
}

} // namespace

FormDefinition readRedcapForm(std::string_view csv, std::string_view form, const std::string& group) {
    const std::vector<CsvRow> rows = readCsv(csv);
    const Columns columns(rows.empty() ? CsvRow{} : rows.front());
    FormDefinition result{group, {}};
    for (const CsvRow& row : rows) {
        const std::string& type = cell(row, columns.type);
        if (cell(row, columns.form) != form || displayType(type).empty()) continue;
        FieldDefinition field;
        field.name = cell(row, columns.name);
        field.caption = cell(row, columns.label);
        field.displayType = displayType(type);
        field.maxLength = maxLength(type, cell(row, columns.validation));
        field.carriedForward = cell(row, columns.identifier) == "y";
        field.values = choices(type, cell(row, columns.choices));
        result.fields.push_back(std::move(field));
    }
    if (result.fields.empty())
        throw RuntimeError(RuntimeError::InvalidArgument,
                           "The data dictionary has no form \"" + std::string(form) + "\".");
    return result;
}

} // namespace Clinic

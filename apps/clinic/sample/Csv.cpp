#include "clinic/sample/Csv.h"

#include <korvane/runtime/RuntimeError.h>

namespace Clinic {

namespace {

using Korvane::RuntimeError;

// What stands between the quote at `at` and the one that ends it; `at` is then behind that.
std::string takeQuoted(std::string_view text, std::size_t& at) {
    std::string field;
    for (++at; at < text.size(); ++at) {
        if (text[at] != '"') {
            field += text[at];
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            field += text[++at];
        } else {
            ++at;
            return field;
        }
    }
    throw RuntimeError(RuntimeError::InvalidArgument, "A quoted field of the CSV file does not end.");
}

std::string takeField(std::string_view text, std::size_t& at) {
    if (at < text.size() && text[at] == '"') return takeQuoted(text, at);
    const std::size_t end = std::min(text.find_first_of(",\r\n", at), text.size());
    std::string field(text.substr(at, end - at));
    at = end;
    return field;
}

} // namespace

std::vector<CsvRow> readCsv(std::string_view text) {
    std::vector<CsvRow> rows;
    CsvRow row;
    for (std::size_t at = 0; at < text.size();) {
        row.push_back(takeField(text, at));
        if (at < text.size() && text[at] == ',') {
            ++at;
            if (at < text.size()) continue;
            row.emplace_back();
        }
        while (at < text.size() && text[at] == '\r')
            ++at;
        if (at < text.size() && text[at] != '\n')
            throw RuntimeError(RuntimeError::InvalidArgument,
                               "The CSV file has text behind a closing quote.");
        ++at;
        if (row != CsvRow{""}) rows.push_back(std::move(row));
        row.clear();
    }
    return rows;
}

} // namespace Clinic

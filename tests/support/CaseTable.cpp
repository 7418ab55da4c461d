#include "support/CaseTable.h"

#include <charconv>
#include <fstream>
#include <stdexcept>

namespace Korvane::Testing {

namespace {

void appendUtf8(std::string& out, unsigned code) {
    const auto trail = [](unsigned bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (code < 0x80)
        out += static_cast<char>(code);
    else if (code < 0x800)
        (out += static_cast<char>(0xC0 | code >> 6)) += trail(code);
    else
        ((out += static_cast<char>(0xE0 | code >> 12)) += trail(code >> 6)) += trail(code);
}

std::vector<std::string> splitAtTabs(const std::string& line) {
    std::vector<std::string> cells;
    std::size_t begin = 0;
    for (std::size_t end = line.find('\t'); end != std::string::npos; end = line.find('\t', begin)) {
        cells.push_back(line.substr(begin, end - begin));
        begin = end + 1;
    }
    cells.push_back(line.substr(begin));
    return cells;
}

} // namespace

std::vector<std::vector<std::string>> readCases(std::string_view file) {
    const std::string path = std::string(KORVANE_TESTS_DIR) + "/cases/" + std::string(file);
    std::ifstream in(path, std::ios::binary);
    if (!in) throw std::runtime_error("no such table: " + path);
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && !line.starts_with("# ")) rows.push_back(splitAtTabs(line));
    }
    return rows;
}

std::vector<std::string> statementsOf(std::string_view what) {
    std::vector<std::string> statements;
    for (const auto& row : readCases("statements.tsv"))
        if (row[0] == what) statements.push_back(row[1]);
    if (statements.empty()) throw std::runtime_error("no such statements: " + std::string(what));
    return statements;
}

std::string quotedText(std::string_view cell) {
    if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"')
        throw std::invalid_argument("not a quoted text: " + std::string(cell));
    constexpr std::string_view letters = "tnfvr", meanings = "\t\n\f\v\r";
    std::string out;
    for (std::size_t i = 1; i + 1 < cell.size(); ++i) {
        if (cell[i] != '\\') {
            out += cell[i];
        } else if (const char escape = cell[++i]; escape == 'u') {
            unsigned code = 0;
            std::from_chars(cell.data() + i + 1, cell.data() + i + 5, code, 16);
            appendUtf8(out, code);
            i += 4;
        } else {
            const auto at = letters.find(escape);
            out += at == std::string_view::npos ? escape : meanings[at];
        }
    }
    return out;
}

} // namespace Korvane::Testing

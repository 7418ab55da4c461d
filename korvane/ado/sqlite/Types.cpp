#include <korvane/ado/sqlite/Types.h>

#include <korvane/runtime/Text.h>

#include <array>
#include <charconv>
#include <string>

namespace Korvane::ado::sqlite {

namespace {

struct Meaning {
    std::string_view name;
    DataType type;
};

// Whole names first, then what a name begins with or holds.
constexpr std::array exactNames{
    Meaning{"SMALLINT", DataType::SmallInt}, Meaning{"INT2", DataType::SmallInt},
    Meaning{"BIGINT", DataType::BigInt},     Meaning{"INT8", DataType::BigInt},
    Meaning{"LONG", DataType::Integer},      Meaning{"COUNTER", DataType::Integer},
    Meaning{"SINGLE", DataType::Single},     Meaning{"FLOAT4", DataType::Single},
    Meaning{"MONEY", DataType::Currency},    Meaning{"CURRENCY", DataType::Currency},
    Meaning{"NUMERIC", DataType::Numeric},   Meaning{"DECIMAL", DataType::Numeric},
    Meaning{"NUMBER", DataType::Numeric},    Meaning{"DATE", DataType::Date},
    Meaning{"BIT", DataType::Boolean},       Meaning{"YESNO", DataType::Boolean},
    Meaning{"LOGICAL", DataType::Boolean},   Meaning{"MEMO", DataType::LongVarWChar},
    Meaning{"NOTE", DataType::LongVarWChar}, Meaning{"IMAGE", DataType::LongVarBinary},
};
constexpr std::array parts{
    Meaning{"DATETIME", DataType::Date},        Meaning{"TIMESTAMP", DataType::Date},
    Meaning{"BOOL", DataType::Boolean},         Meaning{"INT", DataType::Integer},
    Meaning{"CHAR", DataType::VarWChar},        Meaning{"CLOB", DataType::LongVarWChar},
    Meaning{"TEXT", DataType::LongVarWChar},    Meaning{"BLOB", DataType::LongVarBinary},
    Meaning{"BINARY", DataType::LongVarBinary}, Meaning{"REAL", DataType::Double},
    Meaning{"FLOA", DataType::Double},          Meaning{"DOUB", DataType::Double},
};

DataType typeNamed(std::string_view name) {
    for (const Meaning& known : exactNames) {
        if (name == known.name) return known.type;
    }
    for (const Meaning& known : parts) {
        if (name.find(known.name) != std::string_view::npos) return known.type;
    }
    return DataType::VarWChar;
}

} // namespace

DeclaredType declaredType(std::string_view declaration) {
    if (trim(declaration).empty()) return {DataType::Empty, 0};
    const std::string upper = upperCase(declaration);
    const auto open = upper.find('(');
    const auto name = trim(std::string_view(upper).substr(0, open));
    DeclaredType declared{typeNamed(name), 0};
    const bool isText = declared.type == DataType::VarWChar || declared.type == DataType::LongVarWChar;
    if (open == std::string::npos || !isText) return declared;
    const auto digits = trim(std::string_view(upper).substr(open + 1));
    std::from_chars(digits.data(), digits.data() + digits.size(), declared.size);
    if (declared.size > 0) declared.type = DataType::VarWChar;
    return declared;
}

} // namespace Korvane::ado::sqlite

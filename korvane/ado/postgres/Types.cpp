#include <korvane/ado/postgres/Types.h>

#include <array>

namespace Korvane::ado::postgres {

namespace {

struct Meaning {
    TypeId id;
    DataType type;
};

constexpr std::array fixedTypes{
    Meaning{types::boolean, DataType::Boolean},
    Meaning{17, DataType::LongVarBinary},
    Meaning{types::bigInteger, DataType::BigInt},
    Meaning{21, DataType::SmallInt},
    Meaning{types::integer, DataType::Integer},
    Meaning{25, DataType::LongVarWChar},
    Meaning{26, DataType::BigInt},
    Meaning{types::single, DataType::Single},
    Meaning{types::real, DataType::Double},
    Meaning{790, DataType::Currency},
    Meaning{1082, DataType::Date},
    Meaning{types::timestamp, DataType::Date},
    Meaning{1184, DataType::Date},
};
constexpr TypeId varying = 1043;
constexpr int modifierHeader = 4; // the engine counts the size of its own header in

struct Name {
    std::string_view declared;
    std::string_view native;
};

constexpr std::array otherNames{
    Name{"datetime", "Timestamp"},
    Name{"smalldatetime", "Timestamp"},
    Name{"memo", "Text"},
    Name{"note", "Text"},
    Name{"clob", "Text"},
    Name{"longtext", "Text"},
    Name{"nvarchar", "VarChar"},
    Name{"currency", "Numeric(19,4)"},
    Name{"money", "Numeric(19,4)"},
    Name{"number", "Numeric"},
    Name{"long", "Integer"},
    Name{"counter", "Integer"},
    Name{"tinyint", "SmallInt"},
    Name{"single", "Float4"},
    Name{"real", "Double Precision"},
    Name{"double", "Double Precision"},
    Name{"float", "Double Precision"},
    Name{"bit", "Boolean"},
    Name{"yesno", "Boolean"},
    Name{"logical", "Boolean"},
    Name{"image", "Bytea"},
    Name{"blob", "Bytea"},
    Name{"binary", "Bytea"},
};

} // namespace

NativeType nativeType(TypeId type, int modifier) {
    for (const Meaning& known : fixedTypes) {
        if (known.id == type) return {known.type, 0};
    }
    if (type == types::numeric) {
        constexpr int currency = (19 << 16) + 4 + modifierHeader;
        return {modifier == currency ? DataType::Currency : DataType::Numeric, 0};
    }
    const bool hasLength = (type == varying || type == types::blankPadded) && modifier > modifierHeader;
    return {DataType::VarWChar, hasLength ? modifier - modifierHeader : 0};
}

std::optional<std::string_view> nativeTypeName(std::string_view declared) {
    for (const Name& name : otherNames) {
        if (name.declared == declared) return name.native;
    }
    return std::nullopt;
}

} // namespace Korvane::ado::postgres

#include <korvane/ado/DataType.h>

namespace Korvane::ado {

bool IsNumericField(DataType type) {
    switch (type) {
    case DataType::SmallInt:
    case DataType::Integer:
    case DataType::Single:
    case DataType::Double:
    case DataType::Currency:
    case DataType::Boolean:
    case DataType::Numeric:
        return true;
    default:
        return false;
    }
}

} // namespace Korvane::ado

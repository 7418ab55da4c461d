#include <korvane/ado/FieldKey.h>

#include <korvane/runtime/RuntimeError.h>

namespace Korvane::ado {

FieldKey::FieldKey(const Variant& key) {
    if (key.isText()) {
        mName = key.asText();
        return;
    }
    if (key.isEmpty() || key.isNull()) throw RuntimeError(RuntimeError::TypeMismatch);
    mOrdinal = key.toInt32();
}

std::string FieldKey::text() const {
    return isOrdinal() ? std::to_string(mOrdinal) : std::string(mName);
}

} // namespace Korvane::ado

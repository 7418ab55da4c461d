#include <korvane/ado/FieldKey.h>

#include <korvane/runtime/RuntimeError.h>

namespace Korvane::ado {

FieldKey::FieldKey(const Variant& key) {
    if (key.isText()) {
        mName = key.asText();
        return;
    }
    if (key.isEmpty()) return; // would count as 0
    try {
        mOrdinal = key.toInt32();
    } catch (const RuntimeError&) {
        // No field has it: whoever looks it up says so.
    }
}

std::string FieldKey::text() const {
    return isOrdinal() ? std::to_string(mOrdinal) : std::string(mName);
}

} // namespace Korvane::ado

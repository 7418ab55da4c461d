#include <korvane/ado/Recordset.h>

#include <korvane/runtime/RuntimeError.h>

#include <utility>

namespace Korvane::ado {

Field::Field(std::weak_ptr<Recordset> owner, int ordinal, std::uint32_t opening)
    : mOwner(std::move(owner)), mOrdinal(ordinal), mOpening(opening) {}

std::shared_ptr<Recordset> Field::owner() const {
    auto owner = mOwner.lock();
    if (!owner || owner->mOpening != mOpening) throw RuntimeError(RuntimeError::ObjectClosed);
    owner->opened();
    return owner;
}

std::string Field::Name() const {
    const auto from = owner();
    return from->columnInfo(mOrdinal).name;
}

DataType Field::Type() const {
    return owner()->FieldType(mOrdinal);
}

std::int32_t Field::DefinedSize() const {
    const auto from = owner();
    return from->columnInfo(mOrdinal).definedSize;
}

Variant Field::Value() const {
    return owner()->Value(mOrdinal);
}

void Field::Value(const Variant& value) const {
    owner()->SetValue(mOrdinal, value);
}

} // namespace Korvane::ado

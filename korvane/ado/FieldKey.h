#pragma once

#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace Korvane::ado {

/// Names a field of a row: by its name (without regard to case) or by its ordinal, counted from 0.
/// A view: it must not outlive the text it was made from.
///
///     rs.Value("PatientID");   rs.Value(2);
class FieldKey {
  public:
    /// A null pointer names no field.
    FieldKey(const char* name) : mName(name ? std::string_view(name) : std::string_view()) {}
    FieldKey(std::string_view name) : mName(name) {}
    FieldKey(const std::string& name) : mName(name) {}
    FieldKey(int ordinal) : mOrdinal(ordinal) {}
    /// Text is a name, any number an ordinal (rounded). Anything else, and a number too large, names no
    /// field: the look-up raises ItemNotFound.
    FieldKey(const Variant& key);

    /// Whether it is an ordinal, else a name. The one that it is not is -1, or empty.
    bool isOrdinal() const { return mOrdinal >= 0 || mName.data() == nullptr; }
    int ordinal() const { return mOrdinal; }
    std::string_view name() const { return mName; }
    /// The name, or the ordinal in decimal.
    std::string text() const;

  private:
    std::string_view mName{};
    int mOrdinal = -1;
};

} // namespace Korvane::ado

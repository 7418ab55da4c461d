#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Clinic {

/// Makes column names from the questions of a form: plain identifiers, unique without regard to case.
///
///     FieldNames names;
///     names.from("Resp rate");        // "RespRate"
///     names.from("Resp. rate (2)");   // "RespRate2"
///     names.from("Resp rate 2");      // "RespRate22"
class FieldNames {
  public:
    /// The words joined, each with a capital, as many as a readable name holds; "Field" when the text has no
    /// letter or digit.
    std::string from(std::string_view text);

  private:
    bool isTaken(std::string_view name) const;

    std::vector<std::string> mTaken;
};

} // namespace Clinic

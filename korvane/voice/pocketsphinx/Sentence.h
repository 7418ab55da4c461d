#pragma once

#include <korvane/voice/DatePart.h>

#include <cstdint>
#include <string>

namespace Korvane::voice {

/// What was said, and what was wanted when somebody began to say it.
struct Sentence {
    std::uint64_t version = 0;
    DatePart awaited = DatePart::Any;
    std::string words;
};

} // namespace Korvane::voice

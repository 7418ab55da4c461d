#include <korvane/runtime/WhiteSpace.h>

namespace Korvane {

namespace {

bool isWideSpace(std::string_view three) {
    if (three == "\xE1\x9A\x80" || three == "\xE2\x81\x9F" || three == "\xE3\x80\x80")
        return true; // U+1680 205F 3000
    if (!three.starts_with("\xE2\x80")) return false;
    const auto last = static_cast<unsigned char>(three[2]);
    return (last >= 0x80 && last <= 0x8A) || last == 0xA8 || last == 0xA9 ||
           last == 0xAF; // U+2000..200A 2028 2029 202F
}

} // namespace

std::size_t whiteSpaceLength(std::string_view text) {
    if (text.empty()) return 0;
    const char c = text[0];
    if (c == ' ' || (c >= '\t' && c <= '\r')) return 1;
    if (text.starts_with("\xC2\xA0") || text.starts_with("\xC2\x85")) return 2;
    return text.size() >= 3 && isWideSpace(text.substr(0, 3)) ? 3 : 0;
}

bool skipWhiteSpace(std::string_view& text) {
    const std::size_t before = text.size();
    while (const std::size_t length = whiteSpaceLength(text))
        text.remove_prefix(length);
    return text.size() != before;
}

} // namespace Korvane

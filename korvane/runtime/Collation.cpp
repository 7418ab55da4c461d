#include <korvane/runtime/Collation.h>

#include <array>

namespace Korvane {

namespace {

struct Weights {
    unsigned char primary = 0; ///< 0: does not count in the first comparison
    unsigned char detail = 0;  ///< orders what the first comparison found alike
};

constexpr std::array<Weights, 256> weightsOfBytes() {
    constexpr std::string_view order = "\t\n\v\f\r !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>0123456789";
    constexpr std::string_view minor = "'-";
    std::array<Weights, 256> weights{};
    unsigned char next = 0;
    for (const char c : order)
        weights[static_cast<unsigned char>(c)].primary = ++next;
    for (unsigned i = 0; i < 26; ++i) {
        weights['a' + i] = {static_cast<unsigned char>(++next), 1};
        weights['A' + i] = {next, 2};
    }
    for (unsigned byte = 0x80; byte < 0x100; ++byte)
        weights[byte].primary = static_cast<unsigned char>(byte);
    for (std::size_t i = 0; i < minor.size(); ++i)
        weights[static_cast<unsigned char>(minor[i])].detail = static_cast<unsigned char>(3 + i);
    return weights;
}

constexpr std::array<Weights, 256> byteWeights = weightsOfBytes();

/// The next weight other than 0, or 0 at the end.
unsigned char nextWeight(std::string_view& text, unsigned char Weights::*kind) {
    unsigned char weight = 0;
    while (weight == 0 && !text.empty()) {
        weight = byteWeights[static_cast<unsigned char>(text[0])].*kind;
        text.remove_prefix(1);
    }
    return weight;
}

std::strong_ordering compareBy(unsigned char Weights::*kind, std::string_view a, std::string_view b) {
    while (true) {
        const unsigned char left = nextWeight(a, kind), right = nextWeight(b, kind);
        if (left != right) return left <=> right;
        if (left == 0) return std::strong_ordering::equal;
    }
}

} // namespace

std::strong_ordering compareTexts(std::string_view a, std::string_view b) {
    const auto first = compareBy(&Weights::primary, a, b);
    return std::is_neq(first) ? first : compareBy(&Weights::detail, a, b);
}

} // namespace Korvane

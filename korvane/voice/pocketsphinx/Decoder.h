#pragma once

#include <korvane/voice/pocketsphinx/Wanted.h>
#include <korvane/voice/pocketsphinx/WordGraph.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <span>
#include <string>

struct ps_decoder_s;

namespace Korvane::voice {

/// Turns the sound of one sentence into its words. Belongs to one thread at a time.
class Decoder {
  public:
    /// Raises as `openPocketSphinx`.
    explicit Decoder(const std::filesystem::path& model);
    ~Decoder();
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    /// What the sentences to come are compared with. Words that the dictionary does not have are pronounced
    /// by rule. Takes some tens of milliseconds; none for a part of a date that was awaited before with the
    /// same commands. Raises `RuntimeError` 5 when that is refused.
    void want(const Wanted& wanted);

    /// The words of what was said if it is one of the sentences wanted last, with that part of a date
    /// awaited, which must have been wanted with them; empty when it is something else.
    std::string words(std::span<const std::int16_t> sound, DatePart awaited);

  private:
    void learn(const std::string& word, const std::string& sounds);

    struct Free {
        void operator()(ps_decoder_s* decoder) const;
    };
    std::unique_ptr<ps_decoder_s, Free> mDecoder;
    Wanted mWanted;
    std::map<DatePart, WordGraph> mSentences; ///< those prepared, by the part that is awaited
};

} // namespace Korvane::voice

#include <korvane/voice/pocketsphinx/Decoder.h>

#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>
#include <korvane/voice/LetterToSound.h>
#include <korvane/voice/pocketsphinx/Grammar.h>

#include <pocketsphinx/pocketsphinx.h>
#include <sphinxbase/err.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace Korvane::voice {

namespace {

std::filesystem::path existing(const std::filesystem::path& path) {
    std::error_code error;
    if (std::filesystem::exists(path, error)) return path;
    throw RuntimeError(
        RuntimeError::FileNotFound,
        filled(translate("Korvane::voice",
                         "Voice is not there: the speech model %1 is missing (Debian's pocketsphinx-en-us)."),
               {path.string()}));
}

struct FreeConfig {
    void operator()(cmd_ln_t* config) const { cmd_ln_free_r(config); }
};

/// Costs as the decoder's logarithms.
fsg_model_t* toFsg(const WordGraph& graph, logmath_t* logmath) {
    auto* fsg = fsg_model_init("korvane", logmath, 1.0F, graph.states());
    for (const auto& arc : graph.arcs()) {
        const auto weight = static_cast<int32>(-arc.cost / std::log(logmath_get_base(logmath)));
        if (arc.word.empty())
            fsg_model_null_trans_add(fsg, arc.from, arc.to, weight);
        else
            fsg_model_trans_add(fsg, arc.from, arc.to, weight, fsg_model_word_add(fsg, arc.word.c_str()));
    }
    fsg->start_state = WordGraph::start;
    fsg->final_state = WordGraph::end;
    glist_free(fsg_model_null_trans_closure(fsg, nullptr));
    return fsg;
}

const char* nameOf(DatePart part) {
    constexpr const char* names[] = {"any", "month", "day", "year"};
    return names[static_cast<int>(part)];
}

/// With a faint noise. A line that is silent between the words, as that of a file may be, would stand so far
/// from any room that the words beside it were not recognised.
std::vector<std::int16_t> withoutDeadSilence(std::span<const std::int16_t> sound) {
    double squares = 0;
    for (const auto sample : sound)
        squares += static_cast<double>(sample) * sample;
    const double loudness = std::sqrt(squares / static_cast<double>(std::max<std::size_t>(1, sound.size())));
    std::minstd_rand chance(1);
    std::normal_distribution<double> noise(0, std::max(1.0, loudness * 0.01));
    std::vector<std::int16_t> with(sound.size());
    std::ranges::transform(sound, with.begin(), [&](std::int16_t sample) {
        return static_cast<std::int16_t>(std::clamp(std::lround(sample + noise(chance)), -32768L, 32767L));
    });
    return with;
}

} // namespace

void Decoder::Free::operator()(ps_decoder_s* decoder) const {
    ps_free(decoder);
}

Decoder::Decoder(const std::filesystem::path& model) {
    const auto sounds = existing(model / "en-us"), dictionary = existing(model / "cmudict-en-us.dict");
    err_set_logfp(nullptr);
    // Where sentences begin and end is known; and a silence beside one is as likely as none.
    const std::unique_ptr<cmd_ln_t, FreeConfig> config(cmd_ln_init(
        nullptr, ps_args(), TRUE, "-hmm", sounds.c_str(), "-dict", dictionary.c_str(), "-logfn", "/dev/null",
        "-remove_silence", "no", "-remove_noise", "yes", "-silprob", "0.5", "-topn", "16", nullptr));
    if (config) mDecoder.reset(ps_init(config.get()));
    if (!mDecoder)
        throw RuntimeError(
            RuntimeError::InvalidProcedureCall,
            filled(translate("Korvane::voice", "Voice is not there: the speech model %1 cannot be used."),
                   {model.string()}));
}

Decoder::~Decoder() = default;

void Decoder::want(const Wanted& wanted) {
    if (!wanted.sameSentences(mWanted)) mSentences.clear();
    mWanted = wanted;
    if (mSentences.contains(wanted.awaited)) return;
    const auto sentences = wantedSentences(wanted);
    auto graph = sentences;
    addOtherSentences(graph);
    for (const auto& arc : graph.arcs())
        if (!arc.word.empty()) learn(arc.word, pronounce(arc.word));
    auto* fsg = toFsg(graph, ps_get_logmath(mDecoder.get()));
    const bool taken = ps_set_fsg(mDecoder.get(), nameOf(wanted.awaited), fsg) == 0;
    fsg_model_free(fsg);
    if (!taken)
        throw RuntimeError(RuntimeError::InvalidProcedureCall,
                           translate("Korvane::voice", "The speech engine refused the commands."));
    mSentences[wanted.awaited] = sentences;
}

void Decoder::learn(const std::string& word, const std::string& sounds) {
    if (char* known = ps_lookup_word(mDecoder.get(), word.c_str()))
        ckd_free(known);
    else
        ps_add_word(mDecoder.get(), word.c_str(), sounds.c_str(), FALSE);
}

std::string Decoder::words(std::span<const std::int16_t> sound, DatePart awaited) {
    const auto sentences = mSentences.find(awaited);
    if (sentences == mSentences.end() || ps_set_search(mDecoder.get(), nameOf(sentences->first)) != 0)
        return {};
    if (ps_start_utt(mDecoder.get()) != 0) return {};
    const auto heard = withoutDeadSilence(sound);
    ps_process_raw(mDecoder.get(), heard.data(), heard.size(), FALSE, TRUE);
    ps_end_utt(mDecoder.get());
    int32 score = 0;
    const char* found = ps_get_hyp(mDecoder.get(), &score);
    return found && sentences->second.accepts(found) ? found : "";
}

} // namespace Korvane::voice

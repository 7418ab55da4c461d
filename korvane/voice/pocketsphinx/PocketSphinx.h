#pragma once

#include <korvane/voice/AudioSource.h>
#include <korvane/voice/Post.h>
#include <korvane/voice/SpeechEngine.h>

#include <filesystem>
#include <memory>

namespace Korvane::voice {

/// The speech engine on PocketSphinx, for US English.
///
///     voice::install(voice::openPocketSphinx(std::make_shared<voice::Microphone>(), post));
///
/// It understands the commands of the menus that are listened to and, while a dictation is active, the parts
/// of a date. Whatever else is said, also with a command inside, is taken for none of them. A command or a
/// value stands by itself, with a short silence before and behind.
///
/// `model` is the folder of an English model (`en-us`, and `cmudict-en-us.dict` beside it); empty for the one
/// that the library was built with. Loading takes a few tenths of a second. Raises `RuntimeError` 53 when the
/// model is not there and 5 when it cannot be used.
///
/// Destroying the engine switches the microphone off and waits for the answer being worked on, well under a
/// second.
std::shared_ptr<SpeechEngine> openPocketSphinx(std::shared_ptr<AudioSource> source, const Post& post,
                                               const std::filesystem::path& model = {});

} // namespace Korvane::voice

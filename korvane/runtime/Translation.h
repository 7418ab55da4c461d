#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Korvane {

/// The texts that a user sees, in his language:
///
///     throw RuntimeError(RuntimeError::FileNotFound,
///                        filled(translate("Korvane::ado", "There is no database \"%1\""), {name}));
///
/// Text is UTF-8. Until somebody installs a translator, every text reads as it stands in the source
/// (English). The first control that is made installs one that asks Qt (`QCoreApplication::translate`), so
/// that what Qt's tools made reaches these texts too. All of this may be called from any thread.
using Translator = std::function<std::string(const char* context, const char* text)>;

/// The text in the language in force. The context is the name of the class or folder that says it: one text
/// may read differently in two contexts. A translator that raises something is taken as one that does not
/// know the text.
std::string translate(const char* context, const char* text);

/// A text that is looked up later: what it stands for, unchanged, and found by the tools that collect texts.
///
///     constexpr const char* overflow = translatable("Korvane::RuntimeError", "Overflow");
///     show(translate("Korvane::RuntimeError", overflow));
constexpr const char* translatable(const char*, const char* text) {
    return text;
}

/// The text with its places %1 to %9 taken by the values, in whatever order the text names them. A value that
/// holds "%2" itself stays as it is, and so does a place that has no value.
std::string filled(std::string_view text, std::initializer_list<std::string_view> values);

/// Puts another translator in force and returns the one before. An empty one, which is what there is at
/// first, leaves every text as it is.
Translator installTranslator(Translator translator);

} // namespace Korvane

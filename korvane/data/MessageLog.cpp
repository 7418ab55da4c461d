#include <korvane/data/MessageLog.h>

#include <korvane/data/PrivateFile.h>
#include <korvane/runtime/Clock.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/Translation.h>

#include <cstdio>

namespace Korvane {

namespace {

struct Log {
    PrivateFile file;
    bool ready = false;
    std::int32_t level = 0;
    std::string lastError;
};

Log& theLog() {
    static Log log;
    return log;
}

/// "261115 17:21:51"
std::string stamp(const Date::Parts& now) {
    char text[32];
    std::snprintf(text, sizeof text, "%02d%02d%02d %02d:%02d:%02d", now.year % 100, now.month, now.day,
                  now.hour, now.minute, now.second);
    return text;
}

/// "20261115.LOG"
std::string fileName(const Date::Parts& now) {
    char text[32];
    std::snprintf(text, sizeof text, "%04d%02d%02d.LOG", now.year, now.month, now.day);
    return text;
}

bool refuse(std::string reason) {
    theLog().lastError = std::move(reason);
    return false;
}

} // namespace

bool bLogInit(const std::filesystem::path& directory, int level) {
    logClose();
    if (level < 1 || level > 5)
        return refuse(
            filled(translate("Korvane::data", "the log level %1 is not 1 to 5"), {std::to_string(level)}));
    const std::string path = (directory / fileName(Clock::now().parts())).string();
    if (const std::error_code failure = theLog().file.open(path))
        return refuse(
            filled(translate("Korvane::data", "cannot open the log file %1: %2"), {path, failure.message()}));
    theLog().level = level;
    theLog().ready = true;
    return true;
}

void logClose() {
    theLog().file.close();
    theLog().ready = false;
}

void vLogAdd(std::string_view source, std::string_view message, std::int32_t level) {
    if (!theLog().ready) return;
    const std::string line = std::string(source) + ": " + std::string(message);
    if (level < 1 || level > 5) {
        Interaction::current().MsgBox(line, MsgBoxStyle::OkOnly,
                                      translate("Korvane::data", "Invalid Message Log Level!"));
        return;
    }
    if (theLog().level >= level) vLogWrite(line, true);
    if (level == 1) Interaction::current().MsgBox(message, MsgBoxStyle::Critical, source);
    if (level == 2) Interaction::current().MsgBox(message, MsgBoxStyle::OkOnly, source);
}

void vLogWrite(std::string_view text, bool stamped) {
    std::string line = stamped ? stamp(Clock::now().parts()) + " " : std::string();
    line.append(text).append("\n");
    if (const std::error_code failure = theLog().file.append(line)) {
        logClose();
        theLog().lastError =
            filled(translate("Korvane::data", "failure writing to log file: %1"), {failure.message()});
    }
}

bool logReady() {
    return theLog().ready;
}

const std::string& lastLogError() {
    return theLog().lastError;
}

} // namespace Korvane

#include "support/GuidedTour.h"

#include <gmock/gmock.h>

namespace Korvane::Testing {

using testing::HasSubstr;

TEST(DateFormCommandLine, SaysWhatItOffersAndRefusesWhatItCannotDo) {
    const ScratchDir dir;
    struct Case {
        QStringList arguments;
        int code;
        const char* said;
    };
    for (const auto& [arguments, code, said] :
         {Case{{"--help"}, 0, "--tour <dir>"}, Case{{"1/1/2026"}, 1, "\"1/1/2026\" is not understood"},
          Case{{"--font-scale", "5"}, 1, "70 to 300"},
          Case{{"--language", "de_AT", "--help"}, 0, "Textgröße in Prozent"},
          Case{{"--language=xx", "--help"}, 1, "takes one of: de, en"},
          Case{{"--tour", "/dev/null/tour"}, 1, "tour failed"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Outcome outcome = run(dir, arguments);
        EXPECT_EQ(outcome.code, code);
        EXPECT_THAT(code == 0 ? outcome.output : outcome.errors, HasSubstr(said));
    }
}

TEST(DateFormCommandLine, LeavesTheSamePicturesOfEveryTour) {
    const ScratchDir dir;
    const GuidedTour first = tour(dir, "first"), second = tour(dir, "second");
    EXPECT_EQ(first.outcome.code, 0) << first.outcome.errors;
    EXPECT_GE(first.pictures.size(), 9U);
    expectSamePictures(first, second);
}

TEST(DateFormCommandLine, ShowsEverythingAtALargeTextSizeAndInAnotherLanguageAsWell) {
    const ScratchDir dir;
    const GuidedTour large = tour(dir, "large", {"--font-scale", "200", "--language", "de"});
    EXPECT_EQ(large.outcome.code, 0) << large.outcome.errors;
}

} // namespace Korvane::Testing

#include "support/GuidedTour.h"

#include <gmock/gmock.h>

#include <future>

namespace Korvane::Testing {

using testing::HasSubstr;

TEST(GalleryCommandLine, LeavesTheSamePicturesOfEveryTour) {
    const ScratchDir dir, home;
    auto meanwhile = std::async(std::launch::async, [&] { return tour(home, "second"); });
    const GuidedTour first = tour(dir, "first"), second = meanwhile.get();
    EXPECT_EQ(first.outcome.code, 0) << first.outcome.errors;
    EXPECT_THAT(first.outcome.output, HasSubstr("ok  a property bag written by hand"));
    EXPECT_GE(first.pictures.size(), 9U);
    expectSamePictures(first, second);
}

TEST(GalleryCommandLine, ShowsEverythingAtALargeTextSizeAndInAnotherLanguageAsWell) {
    const ScratchDir dir;
    for (const QString language : {"en", "de"}) {
        const GuidedTour large =
            tour(dir, language.toStdString(), {"--font-scale", "200", "--language", language});
        EXPECT_EQ(large.outcome.code, 0) << large.outcome.errors;
    }
}

TEST(GalleryCommandLine, RefusesWhatItCannotDo) {
    const ScratchDir dir;
    for (const QStringList& arguments : {QStringList{"axDate"}, QStringList{"--tour", "/dev/null/tour"}}) {
        const Outcome outcome = run(dir, arguments);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_THAT(outcome.errors, HasSubstr("korvane-gallery: "));
    }
}

} // namespace Korvane::Testing

#include "support/Program.h"

#include <QDir>

#include <gmock/gmock.h>

#include <array>

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
          Case{{"--tour", "/dev/null/tour"}, 1, "tour failed"}}) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Outcome outcome = run(dir, arguments);
        EXPECT_EQ(outcome.code, code);
        EXPECT_THAT(code == 0 ? outcome.output : outcome.errors, HasSubstr(said));
    }
}

TEST(DateFormCommandLine, LeavesTheSamePicturesOfEveryTour) {
    const ScratchDir dir;
    std::array<QStringList, 2> pictures;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const QDir tour(QString::fromStdString(dir.file(i == 0 ? "first" : "second")));
        const Outcome outcome = run(dir, {"--tour", tour.path()});
        EXPECT_EQ(outcome.code, 0) << outcome.errors;
        for (const QString& name : tour.entryList({"*.png"}, QDir::Files)) {
            QFile file(tour.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            pictures.at(i) << name + ' ' + QString::number(qHash(file.readAll()));
        }
    }
    EXPECT_GE(pictures[0].size(), 9);
    EXPECT_EQ(pictures[0], pictures[1]);
}

} // namespace Korvane::Testing

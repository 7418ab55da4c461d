#include "support/ScratchDir.h"

#include <QDir>
#include <QProcess>
#include <QProcessEnvironment>

#include <gmock/gmock.h>

#include <fstream>

namespace Korvane::Testing {

using testing::AllOf;
using testing::HasSubstr;

namespace {

struct Outcome {
    int code = -1;
    std::string output, errors;
};

Outcome run(const ScratchDir& home, const QStringList& arguments) {
    QProcess clinic;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    for (const char* place : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"})
        environment.insert(place, QString::fromStdString(home.path().string()));
    clinic.setProcessEnvironment(environment);
    clinic.start(QStringLiteral(KORVANE_CLINIC), arguments);
    constexpr int limit = 100000;
    if (!clinic.waitForFinished(limit)) return {};
    return {clinic.exitCode(), clinic.readAllStandardOutput().toStdString(),
            clinic.readAllStandardError().toStdString()};
}

} // namespace

TEST(CommandLine, SaysWhatItOffersAndRefusesWhatItCannotDo) {
    const ScratchDir dir;
    std::ofstream(dir.file("letter.db")) << "Dear colleague, this is no database at all.\n";
    const QString letter = QStringLiteral("sqlite:") + QString::fromStdString(dir.file("letter.db"));
    struct Case {
        QStringList arguments;
        int code;
        const char* said;
    };
    const std::vector<Case> cases{
        {{"--help"}, 0, "--tour <dir>"},
        {{"--version"}, 0, "korvane-clinic"},
        {{"--colour"}, 1, "colour"},
        {{"clinic.db"}, 1, "clinic.db"},
        {{"--font-scale", "5"}, 1, "70 to 300"},
        {{"--db", letter}, 1, "letter.db"},
        {{"--db", letter + "/below.db"}, 1, "below.db"},
        {{"--db", "gopher:clinic.db"}, 1, "gopher"},
        {{"--tour", QString::fromStdString(dir.file("letter.db"))}, 1, "tour failed"}};
    for (const auto& [arguments, code, said] : cases) {
        SCOPED_TRACE(arguments.join(' ').toStdString());
        const Outcome outcome = run(dir, arguments);
        EXPECT_EQ(outcome.code, code);
        EXPECT_THAT(code == 0 ? outcome.output : outcome.errors, HasSubstr(said));
    }
}

TEST(CommandLine, GoesOnTheGuidedTour) {
    const ScratchDir dir;
    const Outcome outcome = run(dir, {"--tour", QString::fromStdString(dir.file("tour"))});
    EXPECT_EQ(outcome.code, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, AllOf(HasSubstr("Follow-up, dose halved"), HasSubstr("Hopeful"),
                                      HasSubstr("Hypertension, stage 1")));
    const QStringList pictures =
        QDir(QString::fromStdString(dir.file("tour"))).entryList({"*.png"}, QDir::Files);
    ASSERT_GE(pictures.size(), 15);
    EXPECT_EQ(pictures.first(), "01-choose-a-patient.png");
}

} // namespace Korvane::Testing

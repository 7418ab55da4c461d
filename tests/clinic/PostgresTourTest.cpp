#include "support/Program.h"
#include "support/ScratchSchema.h"

#include <QDir>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace Korvane::Testing {

using testing::HasSubstr;

namespace {

/// The steps and the rows that a tour printed, without where its pictures are.
QString told(const Outcome& outcome) {
    return QString::fromStdString(outcome.output)
        .remove(QRegularExpression(QStringLiteral(" pictures in .*\n$")));
}

QByteArray content(const QString& file) {
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    return in.readAll();
}

} // namespace

TEST(PostgresTour, ShowsAndStoresTheSameAsOnAFileAndNeedsAnEmptyDatabase) {
    if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
    const ScratchDir dir;
    const ScratchSchema schema;
    const QString database = QString::fromStdString(schema.address());
    const QString onFile = QString::fromStdString(dir.file("file"));
    const QString onServer = QString::fromStdString(dir.file("server"));
    const Outcome file = run(dir, {"--tour", onFile});
    const Outcome server = run(dir, {"--tour", onServer, "--db", database});
    ASSERT_EQ(server.code, 0) << server.errors;
    EXPECT_EQ(told(server), told(file));
    const QStringList pictures = QDir(onFile).entryList({"*.png"}, QDir::Files);
    EXPECT_EQ(QDir(onServer).entryList({"*.png"}, QDir::Files), pictures);
    for (const QString& picture : pictures)
        EXPECT_TRUE(content(onServer + '/' + picture) == content(onFile + '/' + picture))
            << picture.toStdString();

    const Outcome again = run(dir, {"--tour", onServer, "--db", database});
    EXPECT_EQ(again.code, 1);
    EXPECT_THAT(again.errors, HasSubstr("empty database only"));
}

} // namespace Korvane::Testing

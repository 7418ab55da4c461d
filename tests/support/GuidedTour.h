#pragma once

#include "support/Program.h"

#include <QDir>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace Korvane::Testing {

/// A guided tour, what it printed, without where its pictures are, and these.
struct GuidedTour {
    Outcome outcome;
    QString told;
    std::vector<std::pair<QString, QByteArray>> pictures;
};

inline GuidedTour tour(const QString& application, const ScratchDir& home, const std::string& pictures,
                       const QStringList& more = {}) {
    const QDir dir(QString::fromStdString(home.file(pictures)));
    GuidedTour tour{run(application, home, QStringList{"--tour", dir.path()} + more), {}, {}};
    tour.told = QString::fromStdString(tour.outcome.output)
                    .remove(QRegularExpression(QStringLiteral(" pictures in .*\n$")));
    for (const QString& name : dir.entryList({"*.png"}, QDir::Files)) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        tour.pictures.emplace_back(name, file.readAll());
    }
    return tour;
}

inline void expectSamePictures(const GuidedTour& one, const GuidedTour& other) {
    ASSERT_EQ(one.pictures.size(), other.pictures.size());
    for (std::size_t i = 0; i < one.pictures.size(); ++i)
        EXPECT_TRUE(one.pictures[i] == other.pictures[i]) << one.pictures[i].first.toStdString();
}

} // namespace Korvane::Testing

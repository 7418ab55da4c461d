#include "Memory.h"

#include "SyntheticClinic.h"

#include <QCoreApplication>
#include <QProcess>

#include <malloc.h>

#include <cstdio>
#include <cstring>

namespace Korvane::Bench {

namespace {

constexpr const char* option = "--measure-memory";

std::size_t heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

} // namespace

double formMemory(Maker maker, const Size& size) {
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(),
                {QString::fromLatin1(option), QString::number(static_cast<int>(maker)),
                 QString::number(size.groups), QString::number(size.fields),
                 QString::fromStdString(databaseOf(file, size))});
    constexpr int patience = 120'000;
    if (!child.waitForFinished(patience)) return 0;
    return child.readAllStandardOutput().toDouble() / (1024 * 1024);
}

std::optional<int> measureMemoryIfAsked(int argc, char** argv) {
    constexpr int argumentsNeeded = 6;
    if (argc != argumentsNeeded || std::strcmp(argv[1], option) != 0) return std::nullopt;
    const Size size{std::atoi(argv[3]), std::atoi(argv[4])};
    // Fonts, styles and caches that any form shares.
    FormMaker(Maker::Widgets, {1, 20}, argv[5]).show();
    FormMaker maker(static_cast<Maker>(std::atoi(argv[2])), size, argv[5]);
    const std::size_t before = heapInUse();
    const auto form = maker.show();
    std::printf("%zu\n", heapInUse() - before);
    return 0;
}

} // namespace Korvane::Bench

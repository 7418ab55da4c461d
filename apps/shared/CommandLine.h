#pragma once

#include <QCommandLineParser>

namespace Apps {

/// A line on standard error, "program: why", and the end of the program with code 1.
[[noreturn]] void refuse(const QString& why);

/// Reads the options, with that of the language. Ends the program itself for --help and --version (code 0)
/// and for what it does not understand (code 1, with a line on standard error): this application takes
/// options alone. Needs an application object.
void readOptions(QCommandLineParser& parser, const QStringList& arguments);

/// The option of the text size in percent, which may be kept for the next start, and what was given for it.
/// Refuses what is no number from 70 to 300.
QCommandLineOption fontScaleOption(bool isKept = false);
int fontScale(const QCommandLineParser& parser, int otherwise);

/// The option of the guided tour, and the directory given for it: empty when none is wanted. Refuses an empty
/// name.
QCommandLineOption tourOption(const QString& description);
QString tourDirectory(const QCommandLineParser& parser);

} // namespace Apps

#pragma once

#include <QCommandLineParser>

namespace Apps {

/// Whether the command line asks for --help or --version, which work where no window can be opened.
bool needsNoScreen(int argc, char** argv);

/// A line on standard error, "program: why", and the end of the program with code 1.
[[noreturn]] void refuse(const QString& why);

/// Reads the options. Ends the program itself for --help and --version (code 0) and for what it does not
/// understand (code 1, with a line on standard error): this application takes options alone. Needs an
/// application object.
void readOptions(QCommandLineParser& parser, const QStringList& arguments);

/// The option of the text size in percent, and what was given for it. Refuses what is no number from 70 to
/// 300.
QCommandLineOption fontScaleOption(const QString& more = {});
int fontScale(const QCommandLineParser& parser, int otherwise);

/// The directory given for --tour; empty when none is wanted. Refuses an empty name.
QString tourDirectory(const QCommandLineParser& parser);

} // namespace Apps

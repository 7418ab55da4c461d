#include "shared/CommandLine.h"

#include "shared/Language.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace Apps {

namespace {

struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(Apps::CommandLine)
};

} // namespace

void refuse(const QString& why) {
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()),
                 qUtf8Printable(why));
    std::exit(1);
}

void readOptions(QCommandLineParser& parser, const QStringList& arguments) {
    parser.addOption(languageOption());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(arguments);
    if (!parser.positionalArguments().isEmpty())
        refuse(CommandLine::tr("\"%1\" is not understood; --help tells what is.")
                   .arg(parser.positionalArguments().first()));
}

QCommandLineOption fontScaleOption(bool isKept) {
    return {QStringLiteral("font-scale"),
            isKept ? CommandLine::tr("Text size in percent, 70 to 300; kept for the next start.")
                   : CommandLine::tr("Text size in percent, 70 to 300."),
            CommandLine::tr("percent")};
}

QCommandLineOption tourOption(const QString& description) {
    return {QStringLiteral("tour"), description, CommandLine::tr("dir")};
}

int fontScale(const QCommandLineParser& parser, int otherwise) {
    const QString name = QStringLiteral("font-scale");
    if (!parser.isSet(name)) return otherwise;
    bool isNumber = false;
    const int scale = parser.value(name).toInt(&isNumber);
    if (!isNumber || scale < 70 || scale > 300)
        refuse(CommandLine::tr("--font-scale takes a number from 70 to 300."));
    return scale;
}

QString tourDirectory(const QCommandLineParser& parser) {
    const QString name = QStringLiteral("tour");
    if (parser.isSet(name) && parser.value(name).isEmpty())
        refuse(CommandLine::tr("--tour needs a directory."));
    return parser.value(name);
}

} // namespace Apps

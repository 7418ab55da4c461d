#include "clinic/Options.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

namespace Clinic {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Clinic::Options", text);
}

[[noreturn]] void refuse(const QString& why) {
    std::fprintf(stderr, "korvane-clinic: %s\n", qUtf8Printable(why));
    std::exit(1);
}

} // namespace

Options readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("A small clinical application: patients, their encounters, and a form "
           "for each encounter that the clinic makes to measure."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption database(QStringLiteral("db"),
                                      tr("Work on this database: sqlite:FILE, or postgresql://USER@HOST/NAME "
                                         "with the password in PGPASSWORD or "
                                         "~/.pgpass. An empty one gets the sample clinic."),
                                      QStringLiteral("url"));
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  tr("Drive the window through the main job by itself, on a fresh database "
                                     "(or that of --db, which has to be empty), and leave a picture of each "
                                     "step in this directory."),
                                  QStringLiteral("dir"));
    const QCommandLineOption scale(QStringLiteral("font-scale"),
                                   tr("Text size in percent, 70 to 300; kept for the next start."),
                                   QStringLiteral("percent"));
    parser.addOptions({database, tour, scale});
    parser.process(arguments);
    if (!parser.positionalArguments().isEmpty())
        refuse(
            tr("\"%1\" is not understood; --help tells what is.").arg(parser.positionalArguments().first()));

    Options options{parser.value(database), parser.value(tour), 0};
    if (parser.isSet(tour) && options.tourDirectory.isEmpty()) refuse(tr("--tour needs a directory."));
    if (parser.isSet(database) && options.database.isEmpty())
        refuse(tr("--db needs an address, like sqlite:clinic.db or postgresql://user@host/clinic."));
    if (parser.isSet(scale)) {
        bool isNumber = false;
        options.fontScale = parser.value(scale).toInt(&isNumber);
        if (!isNumber || options.fontScale < 70 || options.fontScale > 300)
            refuse(tr("--font-scale takes a number from 70 to 300."));
    }
    return options;
}

} // namespace Clinic

#include "clinic/Options.h"

#include "shared/CommandLine.h"

namespace Clinic {

Options readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Options::tr("A small clinical application: patients, their encounters, and a form "
                    "for each encounter that the clinic makes to measure."));
    const QCommandLineOption database(
        QStringLiteral("db"),
        Options::tr("Work on this database: sqlite:FILE, or postgresql://USER@HOST/NAME "
                    "with the password in PGPASSWORD or "
                    "~/.pgpass. An empty one gets the sample clinic."),
        Options::tr("url"));
    const QCommandLineOption tour =
        Apps::tourOption(Options::tr("Drive the window through the main job by itself, on a fresh database "
                                     "(or that of --db, which has to be empty), and leave a picture of each "
                                     "step in this directory."));
    parser.addOptions({database, tour, Apps::fontScaleOption(true)});
    Apps::readOptions(parser, arguments);

    Options options{parser.value(database), Apps::tourDirectory(parser), Apps::fontScale(parser, 0)};
    if (parser.isSet(database) && options.database.isEmpty())
        Apps::refuse(
            Options::tr("--db needs an address, like sqlite:clinic.db or postgresql://user@host/clinic."));
    return options;
}

} // namespace Clinic

#include "clinic/Options.h"

#include "shared/CommandLine.h"

namespace Clinic {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("Clinic::Options", text);
}

} // namespace

Options readOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("A small clinical application: patients, their encounters, and a form "
           "for each encounter that the clinic makes to measure."));
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
    parser.addOptions({database, tour, Apps::fontScaleOption(tr("; kept for the next start"))});
    Apps::readOptions(parser, arguments);

    Options options{parser.value(database), Apps::tourDirectory(parser), Apps::fontScale(parser, 0)};
    if (parser.isSet(database) && options.database.isEmpty())
        Apps::refuse(tr("--db needs an address, like sqlite:clinic.db or postgresql://user@host/clinic."));
    return options;
}

} // namespace Clinic

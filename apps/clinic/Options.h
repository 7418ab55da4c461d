#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

namespace Clinic {

/// What the command line asks for.
struct Options {
    QString database;      ///< address; empty: the usual one, or the tour's own
    QString tourDirectory; ///< empty: no tour
    int fontScale = 0;     ///< percent; 0: as it was kept

    Q_DECLARE_TR_FUNCTIONS(Clinic::Options)
};

/// Reads the command line. Ends the program itself for --help and --version (code 0) and for what it does not
/// understand (code 1, with a line on standard error). Needs an application object.
Options readOptions(const QStringList& arguments);

} // namespace Clinic

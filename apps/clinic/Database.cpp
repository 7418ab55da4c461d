#include "clinic/Database.h"

#include "clinic/sample/SampleClinic.h"

#include <korvane/ado/Catalog.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace Clinic {

using Korvane::RuntimeError;
using Korvane::utf8;

namespace {

/// Two desks may find the same database empty: the one that comes later takes what the other has made.
void fill(Korvane::ado::Connection& connection) {
    try {
        installSample(connection);
    } catch (const RuntimeError&) {
        if (!isInstalled(connection)) throw;
    }
}

void complete(Korvane::ado::Connection& connection) {
    try {
        installTables(connection);
    } catch (const RuntimeError& error) {
        if (error.Number() != RuntimeError::PermissionDenied || !isInstalled(connection)) throw;
    }
}

} // namespace

bool isEmpty(const std::shared_ptr<Korvane::ado::Connection>& connection) {
    return Korvane::ado::Catalog(connection).Tables().Count() == 0;
}

QString defaultDatabase() {
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(directory))
        throw RuntimeError(
            RuntimeError::PermissionDenied,
            utf8(QCoreApplication::translate("Clinic::Database", "The directory %1 cannot be made.")
                     .arg(directory)));
    return QStringLiteral("sqlite:") + directory + QStringLiteral("/clinic.db");
}

std::shared_ptr<Korvane::ado::Connection> openDatabase(const QString& address) {
    auto connection = Korvane::ado::open(utf8(address));
    if (isEmpty(connection))
        fill(*connection);
    else
        complete(*connection);
    return connection;
}

// What is not plainly a server, a port or a user may be (part of) a password, and is left out.
QString shownAddress(const QString& address) {
    if (address.startsWith(QStringLiteral("sqlite:"), Qt::CaseInsensitive)) return address;
    static const QRegularExpression mark(QStringLiteral("[:@/?=\\s]"));
    static const QRegularExpression server(QStringLiteral("^([^:@/]*|\\[[^@/]*\\])(:[0-9]*)?(/.*)?$"));
    const qsizetype begin = address.indexOf(QStringLiteral("://")) + 3;
    if (begin < 3) return address.section(mark, 0, 0);
    const QString rest = address.mid(begin);
    const QString place = rest.section(u'?', 0, 0);
    const bool hasUser = place.contains(u'@');
    const QString first = rest.section(mark, 0, 0);
    const QString host = hasUser ? place.section(u'@', -1) : place;
    const bool isPlain = rest.count(u'@') == place.count(u'@') && server.match(host).hasMatch();
    if (!isPlain) return address.left(begin) + first;
    return address.left(begin) + (hasUser ? first + u'@' : QString()) + host;
}

} // namespace Clinic

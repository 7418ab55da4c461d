#include "clinic/Database.h"

#include "clinic/sample/SampleClinic.h"

#include <korvane/ado/Recordset.h>
#include <korvane/controls/container/Text.h>
#include <korvane/runtime/RuntimeError.h>

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

namespace Clinic {

using Korvane::RuntimeError;
using Korvane::utf8;

namespace {

bool isEmpty(const std::shared_ptr<Korvane::ado::Connection>& connection) {
    const auto tables = Korvane::ado::Recordset::create();
    tables->Open("Select Count(*) As Tables From sqlite_master", connection);
    return tables->Value("Tables").toInt32() == 0;
}

} // namespace

QString defaultDatabase() {
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (!QDir().mkpath(directory))
        throw RuntimeError(RuntimeError::PermissionDenied,
                           "The directory " + utf8(directory) + " cannot be made.");
    return QStringLiteral("sqlite:") + directory + QStringLiteral("/clinic.db");
}

std::shared_ptr<Korvane::ado::Connection> openDatabase(const QString& address) {
    auto connection = Korvane::ado::open(utf8(address));
    if (isEmpty(connection))
        installSample(*connection);
    else
        installTables(*connection);
    return connection;
}

QString shownAddress(const QString& address) {
    static const QRegularExpression password(QStringLiteral("(://[^/@:]*):[^@/]*@"));
    return QString(address).replace(password, QStringLiteral("\\1@"));
}

} // namespace Clinic

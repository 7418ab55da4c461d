#include <korvane/qtsql/Adopt.h>

#include <korvane/ado/Recordset.h>
#ifdef KORVANE_HAS_POSTGRES
#include <korvane/ado/postgres/PostgresConnection.h>
#endif
#include <korvane/ado/sqlite/SqliteConnection.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <QMetaType>
#include <QPointer>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <string>

Q_DECLARE_OPAQUE_POINTER(sqlite3*)
#ifdef KORVANE_HAS_POSTGRES
Q_DECLARE_OPAQUE_POINTER(pg_conn*)
#endif

namespace Korvane::ado {

namespace {

[[noreturn]] void refuse(const QSqlDatabase& database, const std::string& reason,
                         int number = RuntimeError::InvalidArgument) {
    throw RuntimeError(number,
                       filled(translate("Korvane::ado", "The database connection \"%1\" cannot be used: %2"),
                              {database.connectionName().toStdString(), reason}));
}

// The engine's handle, when the driver has one of that type.
template <typename Handle>
Handle* handleOf(const QSqlDriver& driver) {
    const QVariant handle = driver.handle();
    return handle.metaType() == QMetaType::fromType<Handle*>() ? handle.value<Handle*>() : nullptr;
}

// The driver forgets its handle, or has another, as soon as the host closes the database.
template <typename Handle>
StillLent untilClosed(QSqlDriver* driver, Handle* handle) {
    return [watched = QPointer<QSqlDriver>(driver), handle] {
        return watched && watched->isOpen() && handleOf<Handle>(*watched) == handle;
    };
}

// Which SQLite answers, and how it was built: only one that is the same in both has handles of the same make.
constexpr const char* makeOfSqlite =
    "Select sqlite_source_id() || ' ' || (Select group_concat(compile_options) From pragma_compile_options)";

void requireOurSqlite(const QSqlDatabase& database) {
    const auto ours = Recordset::create();
    ours->Open(makeOfSqlite, open("sqlite::memory:"));
    QSqlQuery theirs(database);
    const bool answered = theirs.exec(QString::fromLatin1(makeOfSqlite)) && theirs.next();
    if (answered && theirs.value(0).toString().toStdString() == ours->Value(0).text()) return;
    refuse(database, translate("Korvane::ado",
                               "its driver brings a SQLite of its own, which is not the one that this "
                               "library uses. Let both use the system's, or open the file with ado::open."));
}

} // namespace

std::shared_ptr<Connection> adopt(const QSqlDatabase& database) {
    QSqlDriver* const driver = database.driver();
    if (!database.isOpen()) {
        const std::string why = database.lastError().text().trimmed().toStdString();
        refuse(database,
               why.empty() ? translate("Korvane::ado", "it is not open.")
                           : filled(translate("Korvane::ado", "it is not open (%1)."), {why}),
               RuntimeError::ObjectClosed);
    }
    if (auto* handle = handleOf<sqlite3>(*driver)) {
        requireOurSqlite(database);
        return sqlite::adopt(handle, untilClosed(driver, handle));
    }
#ifdef KORVANE_HAS_POSTGRES
    if (auto* handle = handleOf<pg_conn>(*driver))
        return postgres::adopt(handle, untilClosed(driver, handle));
#endif
    refuse(database,
           filled(translate("Korvane::ado",
                            "its driver %1 is none of those that are known here, QSQLITE and QPSQL."),
                  {database.driverName().toStdString()}));
}

} // namespace Korvane::ado

#pragma once

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include <gtest/gtest.h>
#ifdef KORVANE_HAS_POSTGRES
#include <libpq-fe.h>
#endif

#include <string>

namespace Korvane::Testing {

/// A database that a host has opened through Qt, by the library's address of it, and works on past the
/// library.
class HostDatabase {
  public:
    explicit HostDatabase(const std::string& address, const char* name = "host") : mName(name) {
        const bool isFile = address.starts_with("sqlite:");
        mDatabase = QSqlDatabase::addDatabase(isFile ? "QSQLITE" : "QPSQL", mName);
        if (isFile)
            mDatabase.setDatabaseName(QString::fromStdString(address.substr(address.find(':') + 1)));
        else
            mDatabase.setConnectOptions(optionsOf(address));
        reopen();
    }
    ~HostDatabase() {
        mDatabase = {};
        QSqlDatabase::removeDatabase(mName);
    }
    HostDatabase(const HostDatabase&) = delete;
    HostDatabase& operator=(const HostDatabase&) = delete;

    QSqlDatabase& database() { return mDatabase; }
    void reopen() { EXPECT_TRUE(mDatabase.open()) << mDatabase.lastError().text().toStdString(); }

    /// Runs a statement; the first value of its first row, if it has any.
    std::string value(const char* statement) const {
        QSqlQuery query(mDatabase);
        EXPECT_TRUE(query.exec(statement)) << query.lastError().text().toStdString();
        return query.next() ? query.value(0).toString().toStdString() : "";
    }
    void run(const char* statement) const { value(statement); }

    /// What the library might have changed.
    std::string settings() const {
        if (mDatabase.driverName() == "QSQLITE")
            return value("Pragma foreign_keys") + value("Pragma busy_timeout") + value("Pragma synchronous");
        return value("Show client_encoding") + value("Show datestyle") +
               value("Select count(*) From pg_prepared_statements");
    }

  private:
    // The address as the client library understands it, in the driver's way of writing.
    static QString optionsOf([[maybe_unused]] const std::string& address) {
        QString options;
#ifdef KORVANE_HAS_POSTGRES
        PQconninfoOption* const all = PQconninfoParse(address.c_str(), nullptr);
        for (const PQconninfoOption* option = all; option && option->keyword; ++option) {
            if (option->val) options += QString("%1='%2';").arg(option->keyword, option->val);
        }
        PQconninfoFree(all);
#endif
        return options;
    }

    QString mName;
    QSqlDatabase mDatabase;
};

} // namespace Korvane::Testing

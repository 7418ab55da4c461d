#include <korvane/data/Tables.h>
#include <korvane/qtsql/Adopt.h>

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <iostream>

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    QSqlDatabase own = QSqlDatabase::addDatabase("QSQLITE");
    own.setDatabaseName(":memory:");
    if (!own.open()) return 1;
    Korvane::installTables(*Korvane::ado::adopt(own));
    const bool found = own.tables().contains("Encounter");
    std::cout << (found ? "lent and used\n" : "no tables\n");
    return found ? 0 : 1;
}

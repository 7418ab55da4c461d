#include <korvane/ado/Catalog.h>

#include "ado/Engine.h"
#include "support/ServerTest.h"

#include <gmock/gmock.h>

namespace Korvane::ado::Testing {

using Korvane::Testing::ScratchSchema;
using testing::HasSubstr;

class PostgresCatalog : public Korvane::Testing::SharedServerTest {};

TEST_F(PostgresCatalog, MakesTablesInTheCurrentSchemaAndFindsThemOnTheSearchPath) {
    ScratchSchema later;
    mOther->run("create table " + later.name() + ".Shared (a integer)");
    mOther->run("create table " + later.name() + ".\"Both\" (a integer)");
    mOther->run("create table \"Both\" (b integer)");
    EXPECT_EQ(Catalog(mDb).Tables().Count(), 1);
    mDb->Execute("Set search_path To " + mSchema->name() + "," + later.name());
    const Catalog catalog(mDb);
    EXPECT_THAT(catalog.Tables().Names(), testing::ElementsAre("Both", "shared"));
    EXPECT_TRUE(catalog.Tables().Item("both").Columns().Exists("b"));
    Table table("SHARED");
    table.Columns().Append(Column("A"));
    EXPECT_EQ(errorOf([&] { catalog.Tables().Append(table); }), RuntimeError::DuplicateKey);
    Table made("Made");
    made.Columns().Append(Column("A"));
    catalog.Tables().Append(made);
    EXPECT_EQ(mOther->value("select count(\"A\") from " + mSchema->name() + ".\"Made\""), "0");
    catalog.Tables().Item("Shared").Columns().Append(Column("C"));
    EXPECT_EQ(mOther->value("select count(\"C\") from " + later.name() + ".shared"), "0");
}

TEST_F(PostgresCatalog, TellsNamesApartThatOthersMadeAlike) {
    mOther->run("create table alike (\"pulse\" integer, \"Pulse\" integer)");
    mOther->run("create table \"ALIKE\" (b integer)");
    mOther->run("create view \"Seen\" as select pulse from alike");
    const Catalog catalog(mDb);
    EXPECT_EQ(catalog.Tables().Item("Alike").Name(), "alike");
    EXPECT_EQ(catalog.Tables().Item("ALIKE").Name(), "ALIKE");
    mOther->run("insert into alike values (1, 2)");
    const auto rs = opened(mDb, "Select [pulse],[Pulse] From Alike");
    EXPECT_EQ(rs->Value("Pulse").text() + rs->Value("pulse").text(), "21");
    rs->Close();
    mOther->run("delete from alike");
    const Table table = catalog.Tables().Item("alike");
    table.Columns().Rename("Pulse", "Rate");
    EXPECT_EQ(mOther->value("select count(pulse)+count(\"Rate\") from alike"), "0");
    Table view("SEEN");
    view.Columns().Append(Column("A"));
    EXPECT_THAT(raised([&] { catalog.Tables().Append(view); }).Description(), HasSubstr("a view \"Seen\""));
    EXPECT_THAT(raised([&] { catalog.Tables().Item("alike").Columns().Delete("pulse"); }).Description(),
                HasSubstr("depend"));
}

TEST_F(PostgresCatalog, ChangesNoRowForANewColumnAWiderOneOrANewName) {
    mOther->run("create table big (id integer primary key, name varchar(10), code varchar(5) unique)");
    mOther->run("insert into big select n, 'n', n from generate_series(1, 1000) n");
    const auto storage = [&] { return mOther->value("select pg_relation_filenode('big')"); };
    const std::string before = storage();
    const Table table = Catalog(mDb).Tables().Item("Big");
    table.Columns().Append(Column("Note", DataType::LongVarWChar));
    table.Columns().Widen("name", 40);
    table.Columns().Widen("code", 40);
    table.Columns().Rename("name", "Name");
    EXPECT_EQ(storage(), before);
    EXPECT_THAT(raised([&] { table.Indexes().Delete("code_key"); }).Description(), HasSubstr("code_key"));
    table.Columns().Delete("code");
    EXPECT_EQ(table.Indexes().Count(), 1);
}

} // namespace Korvane::ado::Testing

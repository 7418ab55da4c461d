#pragma once

#include "support/ScratchClinic.h"

#include <korvane/data/SQLData.h>
#include <korvane/nip/cNIP.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace Korvane::Testing {

/// What a test says of a field; the rest stands as here.
struct FieldGiven {
    std::string displayType = "TEXT";
    std::int16_t rule = 0;
    float ordinal = 0; ///< 0: behind the fields given so far
    std::int16_t maxLength = 50;
    std::string columnType = "VARCHAR(50)";
};

/// A scratch clinic with a Nip that the test describes.
///
///     NipDatabase nips;
///     nips.group(2, "Vitals", "NIP_Custom1");
///     nips.field(2, "NIP_Custom1", "Pulse", {.rule = 1});
///     nips.encounter(7, "P1", "1/2/2026");
///     EXPECT_TRUE(nip.LoadStructure(nips.db));
class NipDatabase : public ScratchClinic {
  public:
    /// A group and its empty table.
    void group(std::int32_t id, std::string_view name, std::string_view table, float ordinal = 0) {
        insert("DBFieldGroups", {{"DBFieldGroupID", id},
                                 {"GroupName", name},
                                 {"TableName", table},
                                 {"Ordinal", ordinal != 0 ? ordinal : static_cast<float>(++mGroups)}});
        db->quietly("Create Table [" + std::string(table) + "] ([EncounterID] INTEGER PRIMARY KEY)");
    }

    void field(std::int32_t group, std::string_view table, std::string_view name,
               const FieldGiven& given = {}) {
        define(group, name, given);
        db->quietly("Alter Table [" + std::string(table) + "] Add Column [" + std::string(name) + "] " +
                    given.columnType);
    }

    /// A field without a column.
    void define(std::int32_t group, std::string_view name, const FieldGiven& given = {}) {
        ++mFields;
        insert("DBFields", {{"ID", mFields},
                            {"FieldName", name},
                            {"FieldCaption", "The " + std::string(name)},
                            {"DBFieldGroupID", group},
                            {"MaxLength", given.maxLength},
                            {"DisplayType", given.displayType},
                            {"Ordinal", given.ordinal != 0 ? given.ordinal : static_cast<float>(mFields)},
                            {"InitialValueRuleID", given.rule}});
    }

    void allowed(std::int32_t group, std::string_view field, std::string_view value, float ordinal,
                 bool byDefault = false) {
        insert("DBFieldValues", {{"FieldName", field},
                                 {"DBFieldGroupID", group},
                                 {"FieldValue", value},
                                 {"DefaultValue", byDefault},
                                 {"Ordinal", ordinal}});
    }

    void encounter(std::int32_t id, std::string_view patient, std::string_view date) {
        insert("Encounter", {{"EncounterID", id},
                             {"EncounterMethodID", std::int16_t{1}},
                             {"PatientID", patient},
                             {"ProviderID", 1},
                             {"EncounterDate", date},
                             {"Description", "Visit"}});
    }

    void insert(std::string_view table, std::initializer_list<std::pair<std::string_view, Variant>> row) {
        SQLData lists;
        for (const auto& [column, value] : row)
            lists.InsertListAdd(column, value);
        db->quietly("Insert Into " + std::string(table) + " " + lists.InsertListGet());
    }

    std::string address() const { return database.address(); }
    std::string errorLog() const { return dir.read("ERR.txt"); }

  private:
    int mGroups = 0;
    std::int32_t mFields = 0;
};

/// A test of a model over such a database.
struct NipTest : testing::Test {
    NipDatabase nips;
    cNIP nip;

    void loadStructure() { ASSERT_TRUE(nip.LoadStructure(nips.db)) << nips.errorLog(); }
    void load(std::int32_t encounter, bool isNew = false) {
        ASSERT_TRUE(nip.Load(encounter, "P1", isNew)) << nips.errorLog();
    }
    void save() { ASSERT_TRUE(nip.Save()) << nips.errorLog(); }
};

} // namespace Korvane::Testing

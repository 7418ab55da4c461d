#include <korvane/nip/GroupTableName.h>

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

#include <vector>

namespace Korvane {

TEST(GroupTableName, FollowsTheGreatestNameByItsRule) {
    EXPECT_EQ(tableNameAfter(""), "NIP_Custom1");
    EXPECT_EQ(tableNameAfter("NIP_Custom1"), "NIP_Custom0");
    EXPECT_EQ(tableNameAfter("NIP_Custom9"), "NIP_Custom0");
    EXPECT_EQ(tableNameAfter("NIP_Custom"), "NIP_Custom0");
    EXPECT_EQ(tableNameAfter("NIP_Custom12"), "NIP_Custom1");
}

TEST(GroupTableName, TakesTheNextFreeNumber) {
    using Names = std::vector<std::string>;
    EXPECT_EQ(nextTableName(Names{}), "NIP_Custom1");
    EXPECT_EQ(nextTableName(Names{"NIP_Custom9", "nip_CUSTOM10", "Encounter", "NIP_Custom", "NIP_Custom99x",
                                  "NIP_Custom99999999999", "NIP_Custom-3"}),
              "NIP_Custom11");
    EXPECT_THROW(nextTableName(Names{"NIP_Custom2147483647"}), RuntimeError);
}

} // namespace Korvane

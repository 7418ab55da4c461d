#include <korvane/nip/FieldOrder.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <tuple>

namespace Korvane {

namespace {

/// A group whose fields stand in rows of their own, in this order; "B_COMMENTS" beside "B".
GroupRecord groupOf(std::initializer_list<std::pair<const char*, float>> fields) {
    GroupRecord group;
    group.fields.emplace_back();
    for (const auto& [name, ordinal] : fields) {
        FieldRecord& field = group.fields.emplace_back();
        field.fieldName = name;
        field.ordinal = ordinal;
        const bool isComment = field.fieldName.ends_with("_COMMENTS");
        if (!isComment) ++group.rowCount;
        field.rowIndex = group.rowCount;
        field.colIndex = isComment ? 2 : 1;
        ++group.fieldCount;
    }
    return group;
}

/// The names in the order in which they are loaded once the changes are stored.
std::string orderAfter(GroupRecord group, std::int16_t field, std::int16_t row) {
    for (const auto& [index, ordinal] : moveToRow(group, field, row))
        group.fields[static_cast<std::size_t>(index)].ordinal = ordinal;
    std::sort(group.fields.begin() + 1, group.fields.end(), [](const FieldRecord& a, const FieldRecord& b) {
        return std::tie(a.ordinal, a.fieldName) < std::tie(b.ordinal, b.fieldName);
    });
    std::string order;
    for (std::size_t i = 1; i < group.fields.size(); ++i)
        order += (i > 1 ? " " : "") + group.fields[i].fieldName;
    return order;
}

} // namespace

TEST(FieldOrder, MovesAFieldToAnyRow) {
    const GroupRecord group = groupOf({{"A", 1.0F}, {"B", 2.0F}, {"C", 3.0F}, {"D", 4.0F}});
    EXPECT_EQ(orderAfter(group, 1, 3), "B C A D");
    EXPECT_EQ(orderAfter(group, 4, 1), "D A B C");
    EXPECT_EQ(orderAfter(group, 1, 9999), "B C D A");
    EXPECT_EQ(orderAfter(group, 3, -5), "C A B D");
    EXPECT_TRUE(moveToRow(group, 2, 2).empty());
    EXPECT_EQ(moveToRow(group, 1, 3).size(), 1U) << "the others keep their ordinals";
}

TEST(FieldOrder, TakesACommentAlong) {
    const GroupRecord group = groupOf({{"A", 1.0F}, {"B", 2.0F}, {"B_COMMENTS", 3.0F}, {"C", 4.0F}});
    EXPECT_EQ(orderAfter(group, 2, 3), "A C B B_COMMENTS");
    EXPECT_EQ(orderAfter(group, 2, 1), "B B_COMMENTS A C");
    EXPECT_EQ(orderAfter(group, 1, 2), "B B_COMMENTS A C");
    EXPECT_TRUE(moveToRow(group, 3, 1).empty());
}

TEST(FieldOrder, FindsRoomWhereOrdinalsLeaveNone) {
    EXPECT_EQ(orderAfter(groupOf({{"A", 0.0F}, {"B", 0.0F}, {"C", 0.0F}}), 3, 1), "C A B");
    EXPECT_EQ(orderAfter(groupOf({{"B", 1.0F}, {"A", 1.0F}, {"C", 2.0F}}), 3, 1), "C B A")
        << "there is room, but not for the order of the others";
    EXPECT_EQ(orderAfter(groupOf({{"_x", 0.0F}, {"a", 0.0F}, {"B", 0.0F}, {"c", 2.0F}}), 4, 2), "_x c a B")
        << "equal ordinals stand as the engine has sorted their names";
    EXPECT_EQ(orderAfter(groupOf({{"A", 16777216.0F}, {"B", 16777218.0F}, {"C", 16777220.0F}}), 3, 2),
              "A C B");
    GroupRecord group = groupOf({{"A", 1.0F}, {"B", 2.0F}, {"C", 3.0F}});
    for (int i = 0; i < 100; ++i) { // always into the same gap, which halves each time
        const std::int16_t last = 3;
        for (const auto& [index, ordinal] : moveToRow(group, last, 2))
            group.fields[static_cast<std::size_t>(index)].ordinal = ordinal;
        std::swap(group.fields[2], group.fields[3]);
        group.fields[2].rowIndex = 2;
        group.fields[3].rowIndex = 3;
        ASSERT_LT(group.fields[1].ordinal, group.fields[2].ordinal);
        ASSERT_LT(group.fields[2].ordinal, group.fields[3].ordinal);
    }
}

TEST(FieldOrder, PutsANewFieldBehindAllOthers) {
    EXPECT_GT(ordinalBehindAll(groupOf({{"A", 2.5F}, {"B", 7.0F}})), 7.0F);
    EXPECT_GT(ordinalBehindAll(groupOf({{"A", 3e30F}})), 3e30F);
    EXPECT_GT(ordinalBehindAll(groupOf({})), 0.0F);
}

} // namespace Korvane

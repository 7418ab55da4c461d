#include <korvane/controls/dbxadmin/ListText.h>

#include <gmock/gmock.h>

namespace Korvane {

TEST(ListText, HoldsTheSameValuesJoinedAndTerminated) {
    const std::vector<std::pair<QString, QStringList>> rows{{"", {}},
                                                            {"a", {"a"}},
                                                            {"a/b/c", {"a", "b", "c"}},
                                                            {"a/b/c/", {"a", "b", "c"}},
                                                            {"/", {""}},
                                                            {"a//c", {"a", "", "c"}},
                                                            {"a//", {"a", ""}},
                                                            {" a / b", {" a ", " b"}},
                                                            {"//", {"", ""}}};
    for (const auto& [text, items] : rows) {
        EXPECT_EQ(listItems(text), items) << text.toStdString();
        EXPECT_EQ(listItems(listText(items)), items) << text.toStdString();
    }
    EXPECT_EQ(listText({"a", "", "c"}), "a//c/");
    EXPECT_TRUE(canBeListItem("5 %") && canBeListItem("") && !canBeListItem("mg/dL"));
}

} // namespace Korvane

#include <korvane/controls/nippanel/TypedDate.h>

#include <gtest/gtest.h>

namespace Korvane {

TEST(TypedDate, ReadsAWholeDateAndKeepsTheTimeThatWasShown) {
    const QDateTime shown(QDate(2026, 1, 2), QTime(15, 4, 5));
    const std::pair<const char*, const char*> dates[] = {{"3/4/2025", "2025-03-04T15:04:05"},
                                                         {" 3 / 4 / 2025 ", "2025-03-04T15:04:05"},
                                                         {"3/4/2025 3:04 PM", "2025-03-04T15:04:05"},
                                                         {"3/4/2025 3:04:00 PM", "2025-03-04T15:04:00"},
                                                         {"3/4/2025 9:30am", "2025-03-04T09:30:00"},
                                                         {"3/4/2025 12:05 a", "2025-03-04T00:05:00"},
                                                         {"3/4/2025 12:05 PM", "2025-03-04T12:05:00"},
                                                         {"3/4/2025 23:59", "2025-03-04T23:59:00"},
                                                         {"2/29/2024", "2024-02-29T15:04:05"},
                                                         {"3/4/29", "2029-03-04T15:04:05"},
                                                         {"3/4/30", "1930-03-04T15:04:05"},
                                                         {"3/4/0100", "0100-03-04T15:04:05"}};
    for (const auto& [text, expected] : dates) {
        const auto date = typedDate(text, shown);
        EXPECT_EQ(date ? date->toString(Qt::ISODate).toStdString() : "", expected) << text;
    }
    for (const char* text :
         {"3/4/0099", "2/29/2026", "13/4/2025", "3/4/2", "3/4/202", "3/4/20256", "3/4", "", "3/4/2025 9",
          "3/4/2025 9:3", "3/4/2025 13:00 PM", "3/4/2025 24:00", "3/4/2025 0:30 AM", "3/4/2025 soon"})
        EXPECT_FALSE(typedDate(text, shown)) << text;
}

} // namespace Korvane

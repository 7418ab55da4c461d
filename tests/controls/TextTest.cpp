#include <korvane/controls/container/Text.h>

#include <gtest/gtest.h>

#include <ctime>

namespace Korvane {

TEST(ControlText, DatesKeepTheirClockToTheSecond) {
    for (const Date date :
         {Date::of(2026, 11, 15, 17, 21, 51), Date(), Date(-1.25), Date::of(9999, 12, 31, 23, 59, 59)}) {
        EXPECT_EQ(fromQt(qt(date)).isoText(), date.isoText());
    }
    EXPECT_EQ(qt(Date::of(2026, 11, 15, 17, 21, 51)).toString("yyyy-MM-dd HH:mm:ss"), "2026-11-15 17:21:51");
}

TEST(ControlText, ATimeThatTheLocalZoneSkipsBecomesTheOneAnHourLater) {
    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "Europe/Berlin");
    tzset();
    const QDateTime shown = qt(Date::of(2026, 3, 29, 2, 30));
    EXPECT_TRUE(shown.isValid());
    EXPECT_EQ(shown.toString("yyyy-MM-dd HH:mm"), "2026-03-29 03:30");
    zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
    tzset();
}

} // namespace Korvane

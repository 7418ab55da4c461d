#include "gallery/BagBox.h"

#include "support/ScratchDir.h"

#include <korvane/controls/buttons/movebtn.h>

#include <QLabel>

#include <gtest/gtest.h>

namespace Gallery {

TEST(BagBox, CarriesWhatIsKeptFromOneControlToAnotherInAFile) {
    const Korvane::Testing::ScratchDir dir;
    const QString file = QString::fromStdString(dir.file("movebtn.json"));
    Korvane::movebtn from, to;
    from.Caption("Visits");
    BagBox(from).save(file);
    BagBox box(to);
    int reads = 0;
    QObject::connect(&box, &BagBox::hasRead, [&] { ++reads; });
    box.open(file);
    EXPECT_EQ(to.Caption(), "Visits");
    EXPECT_EQ(reads, 1);
    auto& problems = *box.findChild<QLabel*>("lblProblems");
    EXPECT_TRUE(problems.isHidden()) << problems.text().toStdString();
    for (const char* nowhere : {"missing.json", "below/movebtn.json"}) {
        const QString place = QString::fromStdString(dir.file(nowhere));
        nowhere[0] == 'm' ? box.open(place) : box.save(place);
        EXPECT_FALSE(problems.isHidden()) << nowhere;
    }
    EXPECT_EQ(to.Caption(), "Visits") << "a file that is not there changes nothing";
}

} // namespace Gallery

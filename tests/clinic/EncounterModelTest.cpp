#include "clinic/EncounterModel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>

#include <gtest/gtest.h>

namespace Clinic {

namespace {

using Korvane::Date;

/// 5 (May), 3 and 2 (both on one day of March), 1 (January).
class FourEncounters : public testing::Test {
  protected:
    FourEncounters() {
        model.setEncounters({{5, Date::of(2026, 5, 4, 8), "Five", "A"},
                             {3, Date::of(2026, 3, 2, 14, 30), "Three", "A"},
                             {2, Date::of(2026, 3, 2, 9), "", "B"},
                             {1, Date::of(2026, 1, 8), "One", ""}});
    }

    QString cell(int row, int column, int role = Qt::DisplayRole) const {
        return model.index(row, column).data(role).toString();
    }

    EncounterModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(FourEncounters, ShowTheTimeOnlyWhereItTellsTwoApart) {
    EXPECT_EQ(cell(0, EncounterModel::Date), "5/4/2026");
    EXPECT_EQ(cell(0, EncounterModel::Date, Qt::ToolTipRole), "5/4/2026 8:00 AM");
    EXPECT_EQ(cell(1, EncounterModel::Date), "3/2/2026 2:30 PM");
    EXPECT_EQ(cell(2, EncounterModel::Date), "3/2/2026 9:00 AM");
    EXPECT_EQ(cell(3, EncounterModel::Date), "1/8/2026");
    EXPECT_EQ(cell(2, EncounterModel::Description), "(no description)");
}

TEST_F(FourEncounters, MoveToWhereANewDateBelongsAndStayChosen) {
    struct Move {
        qint32 id;
        Date date;
        int row;
    };
    const std::vector<Move> moves{{5, Date::of(2025, 1, 1), 3},       // to the end
                                  {1, Date::of(2026, 12, 1), 0},      // to the front
                                  {3, Date::of(2026, 3, 2, 8), 2},    // one down
                                  {2, Date::of(2026, 3, 2, 8), 2},    // behind the later one of that minute
                                  {2, Date::of(2026, 3, 2, 8), 2},    // nowhere
                                  {99, Date::of(2026, 3, 2, 8), -1}}; // not in the list
    for (const auto& [id, date, row] : moves) {
        const QPersistentModelIndex chosen = model.index(model.rowOf(id), 0);
        model.rename(id, "Renamed", date);
        EXPECT_EQ(model.rowOf(id), row) << id;
        EXPECT_EQ(chosen.row(), row) << id;
        EXPECT_EQ(cell(row, EncounterModel::Description), row < 0 ? QString() : QString("Renamed"));
    }
    EXPECT_EQ(model.rowCount(), 4);
}

} // namespace Clinic

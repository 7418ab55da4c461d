#include "shared/SignalListener.h"

#include <korvane/controls/nippanel/ucNIPPanel.h>

#include <QDateTime>

#include <gtest/gtest.h>

namespace Apps {

TEST(SignalListener, HearsEverySignalOfAClassWithItsArguments) {
    QStringList heard;
    Korvane::ucNIPPanel panel;
    new SignalListener(panel, QWidget::staticMetaObject, [&](const QString& name, const QString& arguments) {
        heard << (name + ' ' + arguments);
    });
    panel.setWindowTitle("not heard: it is any widget's");
    emit panel.CloseNipPanel();
    emit panel.CreatedNip(12);
    emit panel.RenamedNip(12, "the patient's \"visit\"", QDateTime({2026, 11, 16}, {9, 30}));
    emit panel.modifiedChanged(true);
    panel.CustomizeOnly(false);
    EXPECT_EQ(heard, (QStringList{"CloseNipPanel ", "CreatedNip 12",
                                  "RenamedNip 12, \"the patient's \"visit\"\", 11/16/2026 9:30 AM",
                                  "modifiedChanged True", "PropertyChanged \"CustomizeOnly\""}));
}

} // namespace Apps

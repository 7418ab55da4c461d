#include "gallery/PropertyModel.h"

#include <korvane/controls/buttons/funcPanel.h>

#include <QColor>

#include <gtest/gtest.h>

#include <vector>

namespace Gallery {

namespace {

/// The value of a property of a model, found by the property's name.
QModelIndex valueOf(const PropertyModel& model, const char* property) {
    for (int row = 0; row < model.rowCount(); ++row)
        if (model.index(row, PropertyModel::Name).data() == property)
            return model.index(row, PropertyModel::Value);
    throw std::runtime_error(std::string("there is no property ") + property);
}

} // namespace

TEST(PropertyModel, ChangesAPropertyInTheWayOfItsKind) {
    Korvane::funcPanel panel;
    PropertyModel model(panel);
    struct Case {
        const char* property;
        QVariant value;
        int role;
        bool taken;
        QString shown;
    };
    const std::vector<Case> cases{
        {"buttonStyle", "Flat", Qt::EditRole, true, "Flat (0)"},
        {"buttonStyle", "Round", Qt::EditRole, false, "Flat (0)"},
        {"btnsFontBold", Qt::Checked, Qt::CheckStateRole, true, "True"},
        {"buttonCount", 2, Qt::EditRole, true, "2"},
        {"FrameCaption", "Orders", Qt::EditRole, true, "Orders"},
        {"BackColor", "#102030", Qt::EditRole, true, "#102030"},
        {"BackColor", "no colour", Qt::EditRole, false, "#102030"},
        {"BackColor", "", Qt::EditRole, true, panel.palette().color(QPalette::Window).name()}};
    QStringList refused;
    QObject::connect(&model, &PropertyModel::refused,
                     [&](const QString& property, const QString& value) { refused << property << value; });
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.property) + ' ' + c.value.toString().toStdString());
        const QModelIndex index = valueOf(model, c.property);
        EXPECT_EQ(model.setData(index, c.value, c.role), c.taken);
        EXPECT_EQ(index.data().toString(), c.shown);
    }
    EXPECT_EQ(refused, (QStringList{"buttonStyle", "Round", "BackColor", "no colour"}));
    EXPECT_EQ(panel.buttonStyle(), 0);
    EXPECT_EQ(panel.BackColor(), Korvane::buttonFace);
}

} // namespace Gallery

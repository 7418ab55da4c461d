#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace Korvane::Testing {

/// Whether a part has the room for its text.
inline bool hasRoom(const QWidget& part) {
    if (const auto* label = qobject_cast<const QLabel*>(&part))
        return label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                 : label->sizeHint().width() <= label->width();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&part))
        return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() <= button->width();
    return true;
}

/// Every part stands whole in its parent beside the others, with the room for its text.
inline void expectNothingIsClipped(const QWidget& window) {
    QList<QWidget*> parts;
    for (QWidget* part : window.findChildren<QWidget*>()) {
        const bool isPart = qobject_cast<QLabel*>(part) || qobject_cast<QAbstractButton*>(part) ||
                            qobject_cast<QComboBox*>(part) || qobject_cast<QLineEdit*>(part) ||
                            qobject_cast<QDateTimeEdit*>(part) || qobject_cast<QAbstractItemView*>(part);
        if (!isPart || !part->isVisibleTo(&window)) continue;
        SCOPED_TRACE(part->objectName().toStdString());
        const QRect place = part->geometry();
        EXPECT_TRUE(part->parentWidget()->rect().contains(place));
        EXPECT_GE(place.height(), part->fontMetrics().height());
        EXPECT_TRUE(hasRoom(*part));
        for (const QWidget* other : parts)
            EXPECT_FALSE(other->parent() == part->parent() && other->geometry().intersects(place))
                << other->objectName().toStdString();
        parts << part;
    }
}

} // namespace Korvane::Testing

#pragma once

#include "support/InFront.h"
#include "support/RecordingInteraction.h"

#include <korvane/controls/buttons/ButtonPanel.h>
#include <korvane/controls/container/Twips.h>
#include <korvane/runtime/RuntimeError.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTest>

#include <gmock/gmock.h>

#include <cstdlib>
#include <utility>
#include <vector>

namespace Korvane::Testing {

using Clicks = std::vector<int>;

/// A form in front: a text box, a button panel, a text box. The clicks of the panel are heard in their order.
template <typename Panel, typename Form = QWidget>
class ButtonForm {
  public:
    RecordedInteraction user;
    Form form;
    QLineEdit* before = new QLineEdit;
    Panel* panel = new Panel;
    QLineEdit* after = new QLineEdit;

    ButtonForm() {
        auto* rows = new QVBoxLayout(&form);
        for (QWidget* each : std::initializer_list<QWidget*>{before, panel, after})
            rows->addWidget(each);
        QObject::connect(panel, &Panel::btnClick, [this](qint16 index) { mClicks.push_back(index); });
        Testing::bringToFront(form);
        before->setFocus();
    }

    QAbstractButton& button(int index) const { return buttonOf(*panel, index); }

    /// The button that has the focus; -1 and 9 for the text box before and after, else -2.
    int focus() const {
        for (int i = 0; i < panel->template findChildren<QAbstractButton*>().size(); ++i)
            if (button(i).hasFocus()) return i;
        return before->hasFocus() ? -1 : after->hasFocus() ? 9 : -2;
    }

    /// Where the focus is after that key.
    int press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        return focus();
    }

    /// What was heard since this was last asked.
    Clicks heard() { return std::exchange(mClicks, {}); }

    static QAbstractButton& buttonOf(const QWidget& panel, int index) {
        const auto all = panel.findChildren<QAbstractButton*>(
            QRegularExpression(QString("^cmd(Button|Move)\\(%1\\)$").arg(index)));
        EXPECT_EQ(all.size(), 1);
        return *all.front();
    }

  private:
    Clicks mClicks;
};

/// A panel of its own, of a size in twips.
template <typename Panel>
class SizedPanel {
  public:
    Panel panel;

    SizedPanel(int width, int height) {
        resize(width, height);
        panel.show();
    }

    void resize(int width, int height) { panel.resize(twips().px(width), twips().px(height)); }
    QAbstractButton& button(int index) const { return ButtonForm<Panel>::buttonOf(panel, index); }
    QGroupBox& frame() const { return *panel.template findChild<QGroupBox*>("frame1"); }
    Twips twips() const { return Twips(panel); }
    /// Whether a part is where it belongs in its parent, in twips that are right to a pixel.
    testing::AssertionResult isAt(const QWidget& part, int left, int top, int width, int height) const {
        const QRect here = part.geometry();
        const Twips scale = twips();
        const QRect place(scale.px(left), scale.px(top), scale.px(width), scale.px(height));
        const auto near = [](int one, int other) { return std::abs(one - other) <= 1; };
        if (near(here.x(), place.x()) && near(here.y(), place.y()) && near(here.width(), place.width()) &&
            near(here.height(), place.height()))
            return testing::AssertionSuccess();
        return testing::AssertionFailure()
               << QTest::toString(here) << " instead of " << QTest::toString(place);
    }
};

} // namespace Korvane::Testing

#pragma once

#include "support/InFront.h"
#include "support/RecordingInteraction.h"

#include <korvane/controls/axdate/axDate.h>
#include <korvane/controls/container/Text.h>

#include <QApplication>
#include <QBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::Testing {

using Heard = std::vector<std::string>;

/// A form in front: a text box, the date control, a text box, and a button that asks for no validation. It
/// is worked by keys and clicks; the events of the date control are heard in their order, `changed` for an
/// `OnChange`.
class DateForm {
  public:
    RecordedInteraction user;
    QWidget form;
    QLineEdit* before = new QLineEdit;
    axDate* date = new axDate;
    QLineEdit* after = new QLineEdit;
    QPushButton* help = new QPushButton("Help");
    Heard heard;

    explicit DateForm(const QString& wholeDate = {}) {
        auto* rows = new QVBoxLayout(&form);
        for (QWidget* each : std::initializer_list<QWidget*>{before, date, after, help})
            rows->addWidget(each);
        help->setProperty("CausesValidation", false);
        date->wholeDate(wholeDate);
        QObject::connect(date, &axDate::OnIndexChange, [this](int i) { hear("index " + std::to_string(i)); });
        QObject::connect(date, &axDate::Exception, [this](const QString& text) { hear(utf8(text)); });
        QObject::connect(date, &axDate::SystemMessage, [this](const QString& text) { hear(utf8(text)); });
        QObject::connect(date, &axDate::OnChange, [this] { hear("changed"); });
        Testing::bringToFront(form);
        before->setFocus();
    }

    QLineEdit& box(int index) { return *date->findChild<QLineEdit*>(QString("txtDate(%1)").arg(index)); }
    QLineEdit& whole() { return *date->findChild<QLineEdit*>("txtWholeDate"); }
    std::string wholeDate() const { return utf8(date->wholeDate()); }
    std::string boxes() { return utf8(box(0).text() + '|' + box(1).text() + '|' + box(2).text()); }

    /// What has the focus: the box's index, "before", "after" or "help".
    std::string focus() {
        for (int i = 0; i < 3; ++i)
            if (box(i).hasFocus()) return std::to_string(i);
        return before->hasFocus() ? "before" : after->hasFocus() ? "after" : help->hasFocus() ? "help" : "?";
    }

    /// Keys for whatever has the focus; \t, \n (Enter), < (back with Shift and Tab), \b, and ^ v { } for the
    /// arrows up, down, left, right.
    void press(const char* keys) {
        static const std::map<char, Qt::Key> named{
            {'\t', Qt::Key_Tab}, {'\n', Qt::Key_Return}, {'<', Qt::Key_Backtab}, {'\b', Qt::Key_Backspace},
            {'^', Qt::Key_Up},   {'v', Qt::Key_Down},    {'{', Qt::Key_Left},    {'}', Qt::Key_Right}};
        for (; *keys; ++keys) {
            const auto found = named.find(*keys);
            if (found == named.end())
                QTest::keyClick(QApplication::focusWidget(), *keys);
            else
                QTest::keyClick(QApplication::focusWidget(), found->second,
                                *keys == '<' ? Qt::ShiftModifier : Qt::NoModifier);
            QCoreApplication::processEvents(); // the keys that it sent
        }
    }

    /// What was heard since this was last asked.
    Heard take() { return std::exchange(heard, {}); }

    /// Lets the control read its properties with one that is not the default.
    void read(const char* property, const QVariant& value) {
        PropertyBag bag;
        date->WriteProperties(bag);
        bag.WriteProperty(property, value, {});
        date->ReadProperties(bag);
    }

    void require4(bool on) { read("requireFourDigitYear", on ? "True" : "False"); }

  private:
    void hear(std::string event) { heard.push_back(std::move(event)); }
};

} // namespace Korvane::Testing

#pragma once

#include "dateform/VoiceBox.h"
#include "shared/EventList.h"

#include <korvane/controls/axdate/axDate.h>

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

namespace DateForm {

/// The date control between two text boxes, its bounds and switches, and a list of the events it raises.
///
/// What the form adds is the host's part: a date outside the bounds is told in a box "Date Error" once the
/// control has been left, and the focus goes back to its month; what is dictated is placed; what the control
/// refuses is shown below it.
class TestForm : public QWidget {
    Q_OBJECT

  public:
    explicit TestForm(QWidget* parent = nullptr);

  private:
    QWidget* makeForm();
    QWidget* makeSettings();
    void listen();
    void checkBounds();
    void readAnew(const QString& property, const QVariant& value, const QVariant& usual);
    void placeDictated(const QString& words);

    QLineEdit* mName;
    Korvane::axDate* mDate;
    QLabel* mRefusal;
    VoiceBox* mVoice;
    Apps::EventList* mEvents;
};

} // namespace DateForm

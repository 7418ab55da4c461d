#pragma once

#include <korvane/controls/container/UserControl.h>

#include <QGroupBox>

class QLabel;
class QPlainTextEdit;

namespace Gallery {

/// What a host keeps of a control, as JSON: written by the control, changed by hand, read again. What was
/// wrong with it is told below.
class BagBox : public QGroupBox {
    Q_OBJECT

  public:
    explicit BagBox(Korvane::UserControl& control);

    /// What the control would keep now.
    void write();
    /// Lets the control read what is shown. Raises `hasRead`.
    void read();

    /// What is shown goes into a file, or a file is shown and read. A file that cannot be used is told like
    /// any other problem.
    void save(const QString& file);
    void open(const QString& file);

  signals:
    void hasRead();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void addButtons(QLayout& row);
    void tell(const QString& text);
    void makeRoom();

    Korvane::UserControl& mControl;
    QPlainTextEdit* mText;
    QLabel* mProblems;
};

} // namespace Gallery

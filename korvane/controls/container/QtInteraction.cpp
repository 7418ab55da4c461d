#include <korvane/controls/container/QtInteraction.h>

#include <korvane/controls/container/Text.h>
#include <korvane/controls/container/Translations.h>

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>

namespace Korvane {

namespace {

/// The ordinary pointer while a box waits for an answer, also in the middle of long work.
class OrdinaryPointer {
  public:
    OrdinaryPointer() : mActive(QGuiApplication::overrideCursor() != nullptr) {
        if (mActive) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~OrdinaryPointer() {
        if (mActive) QGuiApplication::restoreOverrideCursor();
    }
    OrdinaryPointer(const OrdinaryPointer&) = delete;
    OrdinaryPointer& operator=(const OrdinaryPointer&) = delete;

  private:
    bool mActive;
};

QMessageBox::StandardButtons buttonsOf(int style) {
    constexpr int buttonSet = 15;
    switch (style & buttonSet) {
    case MsgBoxStyle::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgBoxStyle::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon iconOf(int style) {
    constexpr int icons = 112;
    switch (style & icons) {
    case MsgBoxStyle::Critical:
        return QMessageBox::Critical;
    case MsgBoxStyle::Question:
        return QMessageBox::Question;
    case MsgBoxStyle::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxStyle::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButton defaultOf(int style, QMessageBox::StandardButtons buttons) {
    const bool first = (style & MsgBoxStyle::DefaultButton2) == 0;
    if (buttons.testFlag(QMessageBox::No)) return first ? QMessageBox::Yes : QMessageBox::No;
    if (buttons.testFlag(QMessageBox::Cancel)) return first ? QMessageBox::Ok : QMessageBox::Cancel;
    return QMessageBox::Ok;
}

Answer answerOf(int button, QMessageBox::StandardButtons buttons) {
    if (button == QMessageBox::Yes) return Answer::Yes;
    if (button == QMessageBox::Ok || buttons == QMessageBox::Ok) return Answer::Ok;
    return buttons.testFlag(QMessageBox::No) ? Answer::No : Answer::Cancel;
}

} // namespace

Answer QtInteraction::MsgBox(std::string_view text, int style, std::string_view title) {
    const OrdinaryPointer pointer;
    const auto buttons = buttonsOf(style);
    // The parent may be deleted while the box is open, and would take the box with it.
    const QPointer<QMessageBox> box =
        new QMessageBox(iconOf(style), qt(title), qt(text), buttons, QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    box->setDefaultButton(defaultOf(style, buttons));
    const int button = box->exec();
    delete box;
    return answerOf(button, buttons);
}

std::optional<std::string> QtInteraction::InputBox(std::string_view prompt, std::string_view title) {
    const OrdinaryPointer pointer;
    const QPointer<QInputDialog> dialog = new QInputDialog(QApplication::activeWindow());
    dialog->setWindowTitle(qt(title));
    dialog->setLabelText(qt(prompt));
    for (QLabel* label : dialog->findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    const bool accepted = dialog->exec() == QDialog::Accepted && dialog;
    const std::string answer = accepted ? utf8(dialog->textValue()) : std::string();
    delete dialog;
    if (!accepted) return std::nullopt;
    return answer;
}

void QtInteraction::installOnce() {
    if (isDefault()) install(std::make_shared<QtInteraction>());
    letQtTranslate();
}

} // namespace Korvane

#include <korvane/controls/dbxadmin/CodeBox.h>

#include <korvane/controls/container/Twips.h>

#include <QSignalBlocker>

namespace Korvane {

namespace {

constexpr int least = 800;

} // namespace

CodeBox::CodeBox(const QStringList& texts, QWidget* parent) : PageCombo(parent) {
    addItems(texts);
    connect(this, &QComboBox::currentIndexChanged, this, [this] { setAccessibleDescription({}); });
}

qint16 CodeBox::code() const {
    return currentIndex() < 0 ? mCode : static_cast<qint16>(currentIndex());
}

void CodeBox::setCode(qint16 code) {
    const QSignalBlocker quiet(this);
    mCode = code;
    const bool hasText = code >= 0 && code < count();
    setCurrentIndex(hasText ? code : -1);
    // Without a placeholder, Qt would choose the first one in the place of none.
    const QString number = hasText || code == -1 ? QString() : QString::number(code);
    setPlaceholderText(number.isEmpty() ? QStringLiteral(" ") : number);
    setAccessibleDescription(number);
}

QSize CodeBox::minimumSizeHint() const {
    return {Twips(*this).px(least), sizeHint().height()};
}

} // namespace Korvane

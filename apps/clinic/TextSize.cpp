#include "clinic/TextSize.h"

#include "shared/ScaledFont.h"

#include <QApplication>
#include <QSettings>

#include <algorithm>
#include <array>

namespace Clinic {

namespace {

constexpr std::array steps{70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

QString key() {
    return QStringLiteral("view/textSize");
}

} // namespace

TextSize::TextSize(QObject* parent) : QObject(parent), mUsual(QApplication::font()) {
    mPercent = std::clamp(QSettings().value(key(), 100).toInt(), steps.front(), steps.back());
    apply();
}

void TextSize::setPercent(int percent) {
    mPercent = std::clamp(percent, steps.front(), steps.back());
    QSettings().setValue(key(), mPercent);
    apply();
    emit changed(mPercent);
}

void TextSize::larger() {
    const auto* next = std::upper_bound(steps.begin(), steps.end(), mPercent);
    setPercent(next == steps.end() ? steps.back() : *next);
}

void TextSize::smaller() {
    const auto* next = std::lower_bound(steps.begin(), steps.end(), mPercent);
    setPercent(next == steps.begin() ? steps.front() : *(next - 1));
}

void TextSize::usual() {
    setPercent(100);
}

void TextSize::apply() {
    const QFont font = Apps::scaled(mUsual, mPercent);
    if (font != QApplication::font()) QApplication::setFont(font);
}

} // namespace Clinic

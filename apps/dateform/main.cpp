// korvane-dateform: a form to try the date control on.

#include "dateform/TestForm.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFont>

#include <cstdio>
#include <optional>

namespace {

/// Nothing when it is not a number from 70 to 300.
std::optional<int> percent(const QString& text) {
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    if (!isNumber || value < 70 || value > 300) return std::nullopt;
    return value;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("korvane-dateform"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("The date control on a form, with every event it raises."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption scale(QStringLiteral("font-scale"),
                                   QStringLiteral("Text size in percent, 70 to 300."),
                                   QStringLiteral("percent"), QStringLiteral("100"));
    parser.addOption(scale);
    parser.process(application);
    const auto size = percent(parser.value(scale));
    if (!size) {
        std::fputs("korvane-dateform: --font-scale takes a number from 70 to 300.\n", stderr);
        return 1;
    }
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * *size / 100);
    QApplication::setFont(font);
    DateForm::TestForm form;
    form.show();
    return QApplication::exec();
}

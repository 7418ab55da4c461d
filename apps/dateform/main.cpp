// korvane-dateform: a form to try the date control on.

#include "dateform/TestForm.h"
#include "dateform/Tour.h"
#include "dateform/engine/Engine.h"
#include "shared/CommandLine.h"
#include "shared/ScaledFont.h"
#include "shared/Start.h"

#include <QApplication>

namespace {

struct Options {
    QString tourDirectory;
    QString soundFile;
    int fontScale = 100;

    Q_DECLARE_TR_FUNCTIONS(DateForm::Options)
};

Options readOptions() {
    QCommandLineParser parser;
    parser.setApplicationDescription(Options::tr("The date control on a form, with every event it raises."));
    parser.addOptions(
        {Apps::tourOption(Options::tr("Drive the form by itself, and leave a picture of each step in this "
                                      "directory.")),
         {QStringLiteral("sound"),
          Options::tr("Listen to this sound file (WAV, 16 bits) instead of the microphone."),
          Options::tr("file")},
         Apps::fontScaleOption()});
    Apps::readOptions(parser, QCoreApplication::arguments());
    return {Apps::tourDirectory(parser), parser.value(QStringLiteral("sound")), Apps::fontScale(parser, 100)};
}

int run(const Options& options) {
    if (!options.tourDirectory.isEmpty()) return DateForm::runTour(options.tourDirectory, options.fontScale);
    QApplication::setFont(Apps::scaled(QApplication::font(), options.fontScale));
    const DateForm::InstalledEngine engine(DateForm::soundFrom(options.soundFile));
    DateForm::TestForm form;
    form.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    return Apps::start(
        "korvane-dateform", argc, argv, [&] { options = readOptions(); }, [&] { return run(options); });
}

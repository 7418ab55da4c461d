// korvane-gallery: every control of the library, its properties and its events.

#include "gallery/GalleryWindow.h"
#include "gallery/Tour.h"
#include "shared/CommandLine.h"
#include "shared/ScaledFont.h"
#include "shared/Start.h"

#include <QApplication>

namespace {

struct Options {
    QString tourDirectory;
    int fontScale = 100;

    Q_DECLARE_TR_FUNCTIONS(Gallery::Options)
};

Options readOptions() {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Options::tr("Every control of the library, with its properties to change and the events it raises."));
    parser.addOptions(
        {Apps::tourOption(Options::tr("Drive the window by itself, and leave a picture of each step in this "
                                      "directory.")),
         Apps::fontScaleOption()});
    Apps::readOptions(parser, QCoreApplication::arguments());
    return {Apps::tourDirectory(parser), Apps::fontScale(parser, 100)};
}

int run(const Options& options) {
    if (!options.tourDirectory.isEmpty()) return Gallery::runTour(options.tourDirectory, options.fontScale);
    QApplication::setFont(Apps::scaled(QApplication::font(), options.fontScale));
    Gallery::GalleryWindow window;
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    return Apps::start(
        "korvane-gallery", argc, argv, [&] { options = readOptions(); }, [&] { return run(options); });
}

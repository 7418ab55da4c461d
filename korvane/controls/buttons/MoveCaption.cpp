#include <korvane/controls/buttons/MoveCaption.h>

#include <korvane/controls/buttons/PanelButton.h>
#include <korvane/controls/buttons/movebtn.h>

namespace Korvane {

const QStringList& moveCaptions() {
    static const QStringList texts{"|<", "<", ">", ">|"};
    return texts;
}

void showMoveCaption(PanelButton& button, int index, const QString& text) {
    const QStringList meanings{movebtn::tr("First record"), movebtn::tr("Previous record"),
                               movebtn::tr("Next record"), movebtn::tr("Last record")};
    const bool symbol = text == moveCaptions()[index];
    button.setText(text);
    button.setSymbol(symbol ? std::optional(static_cast<MoveSymbol>(index)) : std::nullopt);
    button.setAccessibleName(symbol ? meanings[index] : QString());
    button.setToolTip(symbol ? meanings[index] : QString());
}

} // namespace Korvane

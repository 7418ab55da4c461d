#include <korvane/controls/nippanel/FieldMark.h>

#include <korvane/controls/container/Twips.h>

#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QWidget>

namespace Korvane {

namespace {

constexpr int lineWidth = 30;
constexpr int distance = 45;

class Frame : public QWidget {
  public:
    explicit Frame(QWidget* parent) : QWidget(parent) {
        setObjectName("markNipField");
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        constexpr int tint = 40;
        const int width = Twips(*this).px(lineWidth);
        QColor colour = palette().color(QPalette::Highlight);
        QPainter painter(this);
        painter.setPen(QPen(colour, width));
        colour.setAlpha(tint);
        painter.setBrush(colour);
        painter.drawRect(rect().adjusted(width / 2, width / 2, -(width + 1) / 2, -(width + 1) / 2));
    }
};

void scrollTo(QWidget& widget) {
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(parent)) return area->ensureWidgetVisible(&widget, 0);
}

} // namespace

void FieldMark::frame(QWidget* label, QWidget* entry) {
    clear();
    if (!label || !entry) return;
    mLabel = label;
    mEntry = entry;
    mFrame = new Frame(entry->parentWidget());
    mEntry->setAccessibleDescription(tr("This field is being customized"));
    label->installEventFilter(this);
    entry->installEventFilter(this);
    place();
    mFrame->lower();
    mFrame->show();
    scrollTo(*entry);
}

void FieldMark::clear() {
    if (mLabel) mLabel->removeEventFilter(this);
    if (mEntry) {
        mEntry->removeEventFilter(this);
        mEntry->setAccessibleDescription(QString());
    }
    delete mFrame;
    mLabel.clear();
    mEntry.clear();
}

void FieldMark::place() {
    if (!mLabel || !mEntry || !mFrame) return;
    const int around = Twips(*mFrame).px(distance);
    const QRect field = mLabel->geometry().united(mEntry->geometry());
    mFrame->setGeometry(field.adjusted(-around, -around, around, around));
}

bool FieldMark::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) place();
    return false;
}

} // namespace Korvane

#include <korvane/controls/nippanel/TextEntry.h>

#include <QLineEdit>
#include <QSignalBlocker>
#include <QValidator>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

/// Lets a text that is longer than the limit only be shortened: what is left of it may be longer than the
/// limit, anything else may not.
class ShorteningOnly : public QValidator {
  public:
    ShorteningOnly(QString loaded, int limit, QObject* parent)
        : QValidator(parent), mLoaded(std::move(loaded)), mLimit(limit) {}

    State validate(QString& input, int&) const override {
        return input.size() <= mLimit || isPartOf(input, mLoaded) ? Acceptable : Invalid;
    }

  private:
    /// Whether deletions alone lead from `whole` to `part`.
    static bool isPartOf(const QString& part, const QString& whole) {
        auto next = part.begin();
        for (QChar c : whole)
            if (next != part.end() && *next == c) ++next;
        return next == part.end();
    }

    QString mLoaded;
    int mLimit;
};

} // namespace

TextEntry::TextEntry(EntrySite entrySite)
    : EntryControl(std::move(entrySite)), mBox(new QLineEdit(site().parent)) {
    identify(*mBox);
    QObject::connect(mBox, &QLineEdit::textChanged, mBox, [this] { site().edited(); });
}

QWidget* TextEntry::widget() const {
    return mBox;
}

void TextEntry::fill() {
    const QString stored = site().storedText();
    const QSignalBlocker quiet(mBox);
    limitLength(stored);
    mBox->setText(stored);
    mBox->setCursorPosition(0);
    mShown = mBox->text();
}

void TextEntry::limitLength(const QString& loaded) {
    const int limit = site().nip.maxLength(site().group, site().field);
    const int length = static_cast<int>(loaded.size());
    const bool isLonger = limit > 0 && length > limit;
    delete mBox->validator();
    if (isLonger) mBox->setValidator(new ShorteningOnly(loaded, limit, mBox));
    mBox->setMaxLength(limit > 0 ? std::max(limit, length) : std::numeric_limits<int>::max());
}

void TextEntry::collect() {
    const QString text = mBox->text();
    if (text == mShown) return;
    site().store(text);
    mShown = text;
}

} // namespace Korvane

#include <korvane/controls/nippanel/TextEntry.h>

#include <QLineEdit>
#include <QSignalBlocker>
#include <QValidator>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

/// Keeps a text within the limit where the box itself does not: a loaded text that is longer may be
/// shortened, and what is left of it may be longer than the limit; anything else may not. What was just put
/// in ends at the cursor, so what is too much of it is taken away there, in whole characters.
class LengthLimit : public QValidator {
  public:
    LengthLimit(QString loaded, int limit, QObject* parent)
        : QValidator(parent), mLoaded(std::move(loaded)), mLimit(limit) {}

    State validate(QString& input, int& cursor) const override {
        const int excess = excessBefore(cursor, input);
        cursor -= excess;
        input.remove(cursor, excess);
        // A box that is given back another text than it has forgets what it could undo.
        if (excess > 0 && input == mAccepted) return Invalid;
        mAccepted = input;
        return Acceptable;
    }

  private:
    /// The fewest characters to take away before the cursor. The more go, the rather is the rest allowed.
    int excessBefore(int cursor, const QString& input) const {
        int tooFew = -1;
        int enough = cursor;
        for (int next = 0; enough - tooFew > 1; next = (tooFew + enough) / 2)
            (isAllowedWithout(next, cursor, input) ? enough : tooFew) = next;
        const bool halvesOne = enough < cursor && input.at(cursor - enough - 1).isHighSurrogate();
        return halvesOne ? enough + 1 : enough;
    }

    bool isAllowedWithout(int count, int cursor, QString input) const {
        input.remove(cursor - count, count);
        return input.size() <= mLimit || isPartOf(input, mLoaded);
    }

    /// Whether deletions alone lead from `whole` to `part`.
    static bool isPartOf(const QString& part, const QString& whole) {
        auto next = part.begin();
        for (QChar c : whole)
            if (next != part.end() && *next == c) ++next;
        return next == part.end();
    }

    QString mLoaded;
    mutable QString mAccepted; ///< what the box held last
    int mLimit;
};

} // namespace

TextEntry::TextEntry(EntrySite entrySite)
    : EntryControl(std::move(entrySite)), mBox(new QLineEdit(site().parent)) {
    QObject::connect(mBox, &QLineEdit::textChanged, mBox, [this] { site().edited(); });
}

QWidget* TextEntry::widget() const {
    return mBox;
}

void TextEntry::showValue() {
    const QString stored = site().storedText();
    const QSignalBlocker quiet(mBox);
    limitLength(stored);
    mBox->setText(stored);
    mBox->setCursorPosition(0);
}

void TextEntry::limitLength(const QString& loaded) {
    const int limit = site().nip.maxLength(site().group, site().field);
    const int length = static_cast<int>(loaded.size());
    delete mBox->validator();
    if (limit > 0) mBox->setValidator(new LengthLimit(loaded, limit, mBox));
    mBox->setMaxLength(limit > 0 ? std::max(limit, length) : std::numeric_limits<int>::max());
}

QStringList TextEntry::content() const {
    return {mBox->text()};
}

} // namespace Korvane

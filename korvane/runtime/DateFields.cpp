#include <korvane/runtime/DateFields.h>

#include <korvane/runtime/Text.h>
#include <korvane/runtime/WhiteSpace.h>

namespace Korvane {

namespace {

constexpr std::array<std::string_view, 12> monthNames = {"January",   "February", "March",    "April",
                                                         "May",       "June",     "July",     "August",
                                                         "September", "October",  "November", "December"};

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// 1 to 12 for a month's name or the first three letters of it, else 0.
int monthNumber(std::string_view word) {
    for (std::size_t i = 0; i < monthNames.size(); ++i) {
        if (sameName(word, monthNames[i]) || sameName(word, monthNames[i].substr(0, 3)))
            return static_cast<int>(i) + 1;
    }
    return 0;
}

/// Reads the fields one after the other; each step is false when the text is no date.
class Reader {
  public:
    explicit Reader(std::string_view text) : mRest(text) {}

    bool readAll() {
        skipWhiteSpace(mRest);
        while (!mRest.empty()) {
            if (!readNext()) return false;
            skipWhiteSpace(mRest);
        }
        return mFields.count > 0 && !mMark;
    }

    const DateFields& fields() const { return mFields; }

  private:
    bool readNext() {
        const char c = mRest[0];
        if (isDigit(c)) return addField(takeNumber(), false);
        if (isLetter(c)) return readWord();
        return readMark(c);
    }

    template <typename Belongs>
    std::string_view takeWhile(Belongs belongs) {
        std::size_t length = 0;
        while (length < mRest.size() && belongs(mRest[length]))
            ++length;
        const std::string_view taken = mRest.substr(0, length);
        mRest.remove_prefix(length);
        return taken;
    }

    int takeNumber() {
        constexpr int beyondAnyYear = 10000;
        int value = 0;
        for (const char c : takeWhile(isDigit))
            value = value >= beyondAnyYear ? value : value * 10 + (c - '0');
        return value;
    }

    bool addField(int value, bool isMonthName) {
        if (mFields.count == DateFields::maxFields) return false;
        mFields.fields[mFields.count++] = {value, isMonthName, mJoint};
        mJoint = DateFields::Joint::Blank;
        mMark = false;
        return true;
    }

    bool readWord() {
        const std::string_view word = takeWhile(isLetter);
        mFields.hasColonOrName = true;
        if (const int month = monthNumber(word)) {
            if (!mRest.empty() && mRest[0] == '.') mRest.remove_prefix(1);
            return addField(month, true);
        }
        const bool am = sameName(word, "AM") || sameName(word, "A");
        const bool pm = sameName(word, "PM") || sameName(word, "P");
        if ((!am && !pm) || mFields.count == 0 || mMark || mFields.half != DateFields::Half::None)
            return false;
        mFields.half = am ? DateFields::Half::Am : DateFields::Half::Pm;
        mFields.halfAt = mFields.count - 1;
        return true;
    }

    /// One mark at most between two fields, none before the first.
    bool readMark(char c) {
        if (mMark || mFields.count == 0) return false;
        if (c == '/' || c == '-')
            mJoint = DateFields::Joint::Date;
        else if (c == ':' || c == '.')
            mJoint = DateFields::Joint::Time;
        else if (c != ',')
            return false;
        if (c == ':') mFields.hasColonOrName = true;
        mMark = true;
        mRest.remove_prefix(1);
        return true;
    }

    std::string_view mRest;
    DateFields mFields;
    DateFields::Joint mJoint = DateFields::Joint::Blank;
    bool mMark = false; ///< a mark was read and its field is still to come
};

} // namespace

std::optional<DateFields> readDateFields(std::string_view text) {
    Reader reader(text);
    if (!reader.readAll()) return std::nullopt;
    return reader.fields();
}

} // namespace Korvane

#include <korvane/controls/nippanel/FieldDraft.h>

#include <korvane/controls/container/Text.h>
#include <korvane/nip/cNIP.h>

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <optional>

namespace Korvane {

namespace {

constexpr int largest = std::numeric_limits<std::int16_t>::max();
/// In bytes: what every engine takes as the name of a column.
constexpr int longestColumnName = 63;

int characters(const QString& text) {
    return static_cast<int>(text.toUcs4().size());
}

bool isTooLong(const QString& text, std::int32_t limit) {
    return limit > 0 && characters(text) > limit;
}

/// The number that digits stand for, the largest there is for more of them; nothing for any other text.
std::optional<int> wholeNumber(const QString& text) {
    const QString digits = text.trimmed();
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isDigit)) return std::nullopt;
    bool fits = false;
    const int number = digits.toInt(&fits);
    return fits ? number : std::numeric_limits<int>::max();
}

using Fault = std::optional<DraftFault>;

/// Checks one draft, input by input.
class Check {
    Q_DECLARE_TR_FUNCTIONS(Korvane::FieldDraft)

  public:
    Check(const FieldDraft& draft, const FieldDraft& original, const StructureLimits& limits)
        : mDraft(draft), mOriginal(original), mLimits(limits) {}

    std::variant<FieldDefinition, DraftFault> run() {
        for (const Fault& fault : {name(), caption(), width(), row(), choices(), room()})
            if (fault) return *fault;
        return definition();
    }

  private:
    Fault name() const {
        if (mDraft.name == mOriginal.name) return {};
        if (mLimits.fieldName < longestColumnName && isTooLong(mDraft.name, mLimits.fieldName))
            return DraftFault{
                FieldDraft::Name,
                tr("The field name is too long.  It can have %1 characters.").arg(mLimits.fieldName)};
        if (utf8(mDraft.name).size() > longestColumnName)
            return DraftFault{FieldDraft::Name,
                              tr("The field name is too long.  It can have %1 letters, fewer when there "
                                 "are accents or other alphabets in it.")
                                  .arg(longestColumnName)};
        return {};
    }

    Fault caption() const {
        if (mDraft.caption == mOriginal.caption || !isTooLong(mDraft.caption, mLimits.caption)) return {};
        return DraftFault{
            FieldDraft::Caption,
            tr("The field caption is too long.  It can have %1 characters.").arg(mLimits.caption)};
    }

    Fault width() {
        mWidth = mDraft.width.toInt();
        if (mDraft.width == mOriginal.width) return {};
        const std::optional<int> number = wholeNumber(mDraft.width);
        if (!number || *number < 1 || *number > largest)
            return DraftFault{FieldDraft::Width,
                              tr("The width must be a whole number from 1 to %1.").arg(largest)};
        mWidth = *number;
        return {};
    }

    Fault row() {
        if (mDraft.row == mOriginal.row || mDraft.row.trimmed().isEmpty()) return {};
        const std::optional<int> number = wholeNumber(mDraft.row);
        if (!number || *number < 1)
            return DraftFault{FieldDraft::Row,
                              tr("The row position must be a whole number from 1, or empty to "
                                 "leave the field where it stands.")};
        mRow = std::min(*number, largest);
        return {};
    }

    Fault choices() const {
        if (mDraft.choices == mOriginal.choices) return {};
        if (mDraft.choices.size() > largest)
            return fault(tr("A field can have no more than %1 choices.").arg(largest));
        for (const QString& choice : mDraft.choices) {
            if (choice.isEmpty()) return fault(tr("A choice must not be empty."));
            if (choice.contains(u'|'))
                return fault(tr("The choice [%1] must not have a \"|\" in it.").arg(choice));
            if (isTooLong(choice, mLimits.choice))
                return fault(tr("The choice [%1] is too long.  It can have %2 characters.")
                                 .arg(choice.left(40), QString::number(mLimits.choice)));
        }
        if (QStringList(mDraft.choices).removeDuplicates() > 0)
            return fault(tr("Two of the choices are the same."));
        return {};
    }

    /// What a user may choose has to fit in, all at once where all can be chosen.
    Fault room() const {
        const bool asBefore = mDraft.choices == mOriginal.choices && mDraft.width == mOriginal.width &&
                              mDraft.displayType == mOriginal.displayType;
        if (asBefore || mWidth < 1) return {};
        const bool allAtOnce = mDraft.displayType == "LIST-MULTIPLE";
        int needed = allAtOnce ? characters(mDraft.choices.join(u'|')) : 0;
        for (const QString& choice : mDraft.choices)
            needed = std::max(needed, characters(choice));
        if (needed <= mWidth) return {};
        return DraftFault{FieldDraft::Width,
                          (allAtOnce ? tr("The choices do not fit when all of them are chosen.  Together "
                                          "they need a width of %1.")
                                     : tr("The longest choice does not fit.  It needs a width of %1."))
                              .arg(needed)};
    }

    static DraftFault fault(const QString& message) { return {FieldDraft::Choices, message}; }

    FieldDefinition definition() const {
        FieldDefinition definition;
        definition.fieldName = utf8(mDraft.name);
        definition.caption = utf8(mDraft.caption);
        definition.maxLength = static_cast<std::int16_t>(mWidth);
        definition.displayType = utf8(mDraft.displayType);
        definition.initialValueRule = static_cast<std::int16_t>(mDraft.rule);
        for (const QString& choice : mDraft.choices)
            definition.values.push_back(utf8(choice));
        definition.defaultValue = utf8(mDraft.choices.value(mDraft.selected));
        definition.rowIndex = static_cast<std::int16_t>(mRow);
        return definition;
    }

    const FieldDraft& mDraft;
    const FieldDraft& mOriginal;
    const StructureLimits& mLimits;
    int mWidth = 0;
    int mRow = 0;
};

} // namespace

FieldDraft draftOf(const cNIP& nip, std::int16_t group, std::int16_t field) {
    FieldDraft draft;
    draft.name = qt(nip.fieldName(group, field));
    draft.caption = qt(nip.Caption(group, field));
    draft.displayType = qt(nip.displayType(group, field));
    draft.width = QString::number(nip.maxLength(group, field));
    draft.rule = nip.InitialValueRule(group, field);
    draft.row = QString::number(nip.RowIndex(group, field));
    const int count = nip.ValueListCount(group, field);
    for (int i = 1; i <= count; ++i)
        draft.choices << qt(nip.ValueList(group, field).array().at(i).textOrEmpty());
    const QString byDefault = qt(nip.DefaultValue(group, field).textOrEmpty());
    draft.selected = byDefault.isEmpty() ? -1 : static_cast<int>(draft.choices.indexOf(byDefault));
    return draft;
}

FieldDraft broughtUp(const FieldDraft& written, const FieldDraft& begun, const FieldDraft& now) {
    FieldDraft draft = now;
    for (const auto text : {&FieldDraft::name, &FieldDraft::caption, &FieldDraft::displayType,
                            &FieldDraft::width, &FieldDraft::row})
        if (written.*text != begun.*text) draft.*text = written.*text;
    if (written.rule != begun.rule) draft.rule = written.rule;
    if (written.choices != begun.choices || written.selected != begun.selected) {
        draft.choices = written.choices;
        draft.selected = written.selected;
    }
    return draft;
}

std::variant<FieldDefinition, DraftFault> definitionOf(const FieldDraft& draft, const FieldDraft& original,
                                                       const StructureLimits& limits) {
    return Check(draft, original, limits).run();
}

} // namespace Korvane

#include <korvane/controls/nippanel/StructurePlan.h>

#include <korvane/controls/container/Text.h>
#include <korvane/data/ErrLog.h>
#include <korvane/runtime/RuntimeError.h>

#include <QCoreApplication>

#include <limits>
#include <map>

namespace Korvane {

namespace {

/// How many elements of each control array are given away.
class ControlArrays {
  public:
    /// The first of `count` new elements. Overflow above 32767.
    std::int16_t take(std::string_view array, std::int16_t count = 1) {
        std::int16_t& next = mNext[array];
        if (next > std::numeric_limits<std::int16_t>::max() - count)
            throw RuntimeError(RuntimeError::Overflow);
        const std::int16_t first = next;
        next = static_cast<std::int16_t>(next + count);
        return first;
    }

  private:
    std::map<std::string_view, std::int16_t> mNext;
};

class Planner {
    Q_DECLARE_TR_FUNCTIONS(Korvane::StructurePlan)

  public:
    explicit Planner(cNIP& nip) : mNip(nip) {}

    StructurePlan run() {
        for (int group = 1; group <= mNip.GroupCount(); ++group)
            mPlan.groups.push_back(planGroup(static_cast<std::int16_t>(group)));
        return std::move(mPlan);
    }

  private:
    std::vector<PlannedField> planGroup(std::int16_t group) {
        std::vector<PlannedField> fields;
        for (int i = 1; i <= mNip.FieldCount(group); ++i) {
            const auto field = static_cast<std::int16_t>(i);
            const DisplayType* type = findDisplayType(mNip.displayType(group, field));
            if (type)
                fields.push_back(planField(group, field, *type));
            else
                report(group, field);
        }
        return fields;
    }

    PlannedField planField(std::int16_t group, std::int16_t field, const DisplayType& type) {
        PlannedField planned{field, &type, mArrays.take(type.array), mArrays.take("lblNip"), 0};
        if (type.buttons > 0) planned.button = mArrays.take("cmdNip", type.buttons);
        mNip.ControlIndex(group, field, planned.control);
        mNip.ControlIndexLabel(group, field, planned.label);
        return planned;
    }

    void report(std::int16_t group, std::int16_t field) {
        const std::string& name = mNip.fieldName(group, field);
        const std::string& type = mNip.displayType(group, field);
        mNip.ControlIndex(group, field, std::int16_t{-1});
        mNip.ControlIndexLabel(group, field, std::int16_t{-1});
        mPlan.problems += utf8(tr("%1 has unrecognized display type:%2").arg(qt(name), qt(type))) + "\n";
        ErrLog("ucNipPanel.CreateNipControls: Could not understand Nip field DisplayType'" + name +
               "' Display Type: '" + type + "'");
    }

    cNIP& mNip;
    ControlArrays mArrays;
    StructurePlan mPlan;
};

} // namespace

StructurePlan planStructure(cNIP& nip) {
    return Planner(nip).run();
}

} // namespace Korvane

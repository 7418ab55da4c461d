#include <korvane/nip/StructureSteps.h>

#include <set>

namespace Korvane {

namespace {

class Plan {
  public:
    explicit Plan(const SchemaFacts& schema) : mSchema(schema) {}

    void add(FieldPlace place, const GroupRecord& group, const FieldRecord& field) {
        if (!field.pending && !field.changed) return;
        if (field.pending)
            addNew(place, group.tableName);
        else
            addChanged(place, group.tableName, field);
        step(StructureStep::WriteValues, place);
    }

    std::vector<StructureStep> take() { return std::move(mSteps); }

  private:
    void step(StructureStep::Kind kind, FieldPlace place) { mSteps.push_back({kind, place}); }

    void addNew(FieldPlace place, const std::string& table) {
        if (!mMade.contains(table) && !mSchema.hasTable(table)) {
            step(StructureStep::CreateTable, place);
            mMade.insert(table);
        }
        step(StructureStep::AddColumn, place);
        step(StructureStep::InsertField, place);
    }

    void addChanged(FieldPlace place, const std::string& table, const FieldRecord& field) {
        const bool isLonger = field.maxLength > field.storedLength;
        const std::int32_t size = isLonger ? mSchema.sizeOf(table, field.fieldName) : 0;
        if (!field.newFieldName.empty()) step(StructureStep::RenameColumn, place);
        if (size > 0 && size < field.maxLength) step(StructureStep::WidenColumn, place);
        step(StructureStep::UpdateField, place);
    }

    const SchemaFacts& mSchema;
    std::set<std::string> mMade;
    std::vector<StructureStep> mSteps;
};

} // namespace

std::vector<StructureStep> planStructureSave(const std::vector<GroupRecord>& groups,
                                             const SchemaFacts& schema) {
    Plan plan(schema);
    for (std::size_t group = 1; group < groups.size(); ++group) {
        if (!groups[group].hasChanges) continue;
        for (std::int16_t field = 1; field <= groups[group].fieldCount; ++field) {
            const FieldPlace place{static_cast<std::int16_t>(group), field};
            plan.add(place, groups[group], groups[group].fields[static_cast<std::size_t>(field)]);
        }
    }
    return plan.take();
}

} // namespace Korvane

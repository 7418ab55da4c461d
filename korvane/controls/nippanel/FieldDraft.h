#pragma once

#include <korvane/controls/nippanel/StructureLimits.h>
#include <korvane/nip/FieldDefinition.h>

#include <QString>
#include <QStringList>

#include <cstdint>
#include <variant>

namespace Korvane {

class cNIP;

/// A field as it stands in the customize pane: what the user wrote, whether it makes sense or not.
struct FieldDraft {
    /// The inputs of the pane, from top to bottom.
    enum Input { Name, Caption, Type, Width, Rule, Row, Choices };

    QString name;
    QString caption;
    QString displayType = "TEXT";
    QString width = "50";
    int rule = 0; ///< 1 cascades
    QString row;
    QStringList choices;
    int selected = -1; ///< the choice that is the default value; -1: none

    bool operator==(const FieldDraft&) const = default;
};

/// What is wrong with a draft, in words for the user, and where.
struct DraftFault {
    FieldDraft::Input input;
    QString message;
};

/// A field of the model.
FieldDraft draftOf(const cNIP& nip, std::int16_t group, std::int16_t field);

/// A draft that was begun with `begun`, for the field as it is `now`: what was written stays, the rest is as
/// it is now. The choices and their default are one thing.
FieldDraft broughtUp(const FieldDraft& written, const FieldDraft& begun, const FieldDraft& now);

/// The definition that a draft stands for, or the first thing that is wrong with it, beside what
/// `isValidFieldName` says. What is as it was in `original` is never wrong: a field that other programs made
/// keeps a width of 0 (no limit), an unknown display type, choices that do not fit. An empty row, and one
/// that is as it was, leaves the field where it stands.
std::variant<FieldDefinition, DraftFault> definitionOf(const FieldDraft& draft, const FieldDraft& original,
                                                       const StructureLimits& limits);

} // namespace Korvane

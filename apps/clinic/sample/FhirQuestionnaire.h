#pragma once

#include "clinic/sample/FormDefinition.h"

#include <QByteArray>

namespace Clinic {

/// Reads a FHIR R4 Questionnaire as the group of that name. A choice becomes a restricted combo box where the
/// form asks for a drop-down, otherwise a list (of several where it repeats); an open choice a combo box;
/// text, numbers and dates a text box, which the form's own length limits; the items of a group stand in its
/// place. An answer that the form selects is the default; an item with an observation link period is carried
/// forward. Items that nothing can be entered into are left out. A RuntimeError when it is no questionnaire.
FormDefinition readFhirQuestionnaire(const QByteArray& json, const std::string& group);

} // namespace Clinic

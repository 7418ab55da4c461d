#pragma once

#include "clinic/tour/Journey.h"

#include <QStringList>

namespace Clinic {

/// A field as a user writes it into the customize pane.
struct FieldSketch {
    QString name, caption;
    QString displayType; ///< as it is stored
    QStringList choices;
};

/// Presses the button of the toolbar for groups; `id` is the tool's.
void clickTool(Journey& j, const char* id);

/// Makes a field of the group in view, and looks at what is written before it is stored.
void makeField(Journey& j, const FieldSketch& field, const QString& picture);

/// Clicks a field in the form, which brings it into the pane.
void chooseInForm(Journey& j, const FieldName& name);

/// Clicks a field in the pane's own list.
void chooseInList(Journey& j, const FieldName& name);

/// Fails unless the pane says that this field is being edited.
void requireEditing(Journey& j, const FieldName& name);

/// Puts a text in the place of what an input of the pane holds.
void writeInput(Journey& j, const char* input, const QString& text);

/// Presses "Save" and reads the structure anew. Fails when the field is still being edited.
void storeField(Journey& j);

} // namespace Clinic

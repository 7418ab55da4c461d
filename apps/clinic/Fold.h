#pragma once

#include <QString>

namespace Clinic {

/// A text as it is searched: without case and without accents.
///
///     fold("Müller-Łoś")   // "muller-los"
QString fold(const QString& text);

} // namespace Clinic

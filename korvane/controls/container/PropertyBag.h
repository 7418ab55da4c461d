#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

namespace Korvane {

/// The properties of a control as its host keeps them, by name. A property at its default takes no room.
///
///     bag.WriteProperty("AllowClosePanel", AllowClosePanel(), true);
///     AllowClosePanel(bag.ReadProperty("AllowClosePanel", true).toBool());
class PropertyBag {
  public:
    /// The default when the bag has no such name, or holds something that cannot be turned into the default's
    /// type.
    QVariant ReadProperty(const QString& name, const QVariant& defaultValue) const;
    void WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue);

    const QMap<QString, QVariant>& values() const { return mValues; }

  private:
    QMap<QString, QVariant> mValues;
};

} // namespace Korvane

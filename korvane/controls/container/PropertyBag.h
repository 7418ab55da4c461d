#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

class QSettings;

namespace Korvane {

/// The properties of a control as its host keeps them, by name. A property at its default takes no room.
///
///     bag.WriteProperty("AllowClosePanel", AllowClosePanel(), true);
///     AllowClosePanel(bag.ReadProperty("AllowClosePanel", true).toBool());
///
/// A host keeps a bag as JSON, in a group of its settings, or as bytes:
///
///     PropertyBag bag;
///     panel->WriteProperties(bag);
///     bag.save(settings, "OrderForm/panel");
///
///     const auto bag = PropertyBag::load(settings, "OrderForm/panel");
///     panel->ReadProperties(bag);
///     for (const QString& problem : bag.problems())
///         qWarning() << problem;
///
/// A bag may be written by hand: what is missing or cannot be used is taken at its default, and what was
/// wrong with it is told by `problems`, in the user's language. Nothing is raised for it.
class PropertyBag {
    Q_DECLARE_TR_FUNCTIONS(Korvane::PropertyBag)

  public:
    /// The value in the type of the default. The default itself when the bag has no such name, or holds
    /// something that is not of that type: a text that reads as a number is one, so is "True" or "False" a
    /// Boolean; a number with a fraction, or one that is too large, is no whole number.
    QVariant ReadProperty(const QString& name, const QVariant& defaultValue) const;
    /// Keeps the value in place of what the bag has of that name; at its default it keeps none.
    void WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue);

    /// What the bag keeps, by name.
    const QMap<QString, QVariant>& values() const { return mValues; }

    /// What was wrong with the bag, a line each, by name, once a control has read it: values that were not
    /// used, and names that it did not ask for (misspelled ones, most likely).
    QStringList problems() const;
    /// For a control that cannot use what it has read: `why` completes the line "<name> holds <value>: ".
    void addProblem(const QString& name, const QString& why) const;

    /// The bag as an object with a member for each property.
    QJsonObject toJson() const;
    static PropertyBag fromJson(const QJsonObject& object);

    /// The bag as bytes (JSON in UTF-8). Bytes that are none give an empty bag that has that for its problem;
    /// of a name that stands there more than once the last value is taken, which is a problem too.
    QByteArray Contents() const;
    void Contents(const QByteArray& bytes);

    /// Keeps the bag in a group of settings, and reads it from there. The group is the bag's alone: what was
    /// in it goes. An empty name raises `RuntimeError::InvalidProcedureCall`. Whether it could be written,
    /// `settings.status()` tells after a `sync()`.
    void save(QSettings& settings, const QString& group) const;
    /// Lines of the settings that cannot be read, and groups inside the bag's, are problems of the bag.
    static PropertyBag load(QSettings& settings, const QString& group);

  private:
    QMap<QString, QVariant> mValues;
    mutable QSet<QString> mAskedFor;
    mutable QMap<QString, QString> mProblems;
};

} // namespace Korvane

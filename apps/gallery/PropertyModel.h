#pragma once

#include <korvane/controls/container/UserControl.h>

#include <QAbstractTableModel>
#include <QMetaProperty>

#include <vector>

namespace Gallery {

/// The properties of a control, a row each, as its class declares them: the name, the value, and whether a
/// host keeps it. Those that can be written are edited in place: a flag by its check box, a code by the
/// names of its values, a colour as "#rrggbb" or empty for the usual one.
class PropertyModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { Name, Value, Kept, columns };
    /// The names that the value of an enumeration can have; an empty list for any other property.
    static constexpr int choicesRole = Qt::UserRole;

    explicit PropertyModel(Korvane::UserControl& control);

    /// Shows the values as they are now. An editor that is open keeps what was typed.
    void refresh();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  signals:
    /// What was written is no value of the property, which is as it was.
    void refused(const QString& property, const QString& value);

  private:
    const QMetaProperty& propertyAt(const QModelIndex& index) const;
    QVariant valueOf(const QMetaProperty& property, int role) const;

    Korvane::UserControl& mControl;
    std::vector<QMetaProperty> mProperties;
};

} // namespace Gallery

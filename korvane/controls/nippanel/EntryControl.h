#pragma once

#include <korvane/nip/cNIP.h>

#include <QList>
#include <QRect>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <utility>

class QWidget;

namespace Korvane {

class Twips;

/// Where a field stands in the structure, and with that the numbers of its control.
struct EntryPlace {
    std::int16_t group = 0;
    std::int16_t field = 0;
    std::int16_t index = 0;  ///< the control's element in its control array
    std::int16_t button = 0; ///< its first element of `cmdNip`, where it has buttons
};

/// The field that an entry control is for, and what the control is given by its page.
struct EntrySite : EntryPlace {
    cNIP& nip;
    const char* array = ""; ///< the control array, "txtNip"
    QWidget* parent = nullptr;
    std::function<void()> edited; ///< to be called whenever the user changed the content

    QString caption() const;
    /// The field's value, and the way back.
    QString storedText() const;
    void store(const QString& text) const;
    /// The field's `ChoiceList`.
    QStringList storedEntries() const;
    /// The field's `ValueList`, without its empty element 0.
    QStringList allowedValues() const;
    /// "<group>::<field>", which a control carries as its property "Tag".
    QString tag() const;
    /// The name of an element of a control array: "txtNip(0)".
    static QString elementName(const char* controlArray, int element);
};

/// The entry control of one field: made once, filled and collected often. What the user did not touch is not
/// collected, so that the model keeps it exactly as it was loaded.
///
/// Its widgets belong to the page (`EntrySite::parent`).
class EntryControl {
  public:
    explicit EntryControl(EntrySite site) : mSite(std::move(site)) {}
    virtual ~EntryControl() = default;
    EntryControl(const EntryControl&) = delete;
    EntryControl& operator=(const EntryControl&) = delete;

    /// The widget that stands for the field: it carries the element's name and the tag, and the label is its
    /// buddy.
    virtual QWidget* widget() const = 0;

    /// The widgets that take the focus, in tab order.
    virtual QList<QWidget*> tabOrder() const { return {widget()}; }

    /// Shows the model's value. Does not call `edited`.
    void fill();

    /// Copies the content into the model where it is not what was last shown or collected.
    void collect();

    /// Stands for its field at another place of the same model, which may have been loaded anew.
    void moveTo(const EntryPlace& place);

    /// Brings what is shown up to the model, and leaves everything as it is, also what was typed since, when
    /// the model has the value, the allowed values and the length that were last shown.
    void refresh();

    /// In pixels; `tabHeight` is the height there is for the entries of a tab.
    virtual int height(const Twips& twips, int tabHeight) const;

    /// Whether it takes all the width there is.
    virtual bool isWide() const { return false; }

    virtual void place(const QRect& area, const Twips& twips);

  protected:
    const EntrySite& site() const { return mSite; }

    /// Gives the widgets their names, tags and accessible names.
    virtual void identify();

    virtual void showValue() = 0;
    /// What the control holds now: its text, or its entries.
    virtual QStringList content() const = 0;
    /// Puts a content into the model; here its first text, empty when there is none, as the value.
    virtual void store(const QStringList& content);

  private:
    /// What the model says of the field, as far as it is shown.
    struct Known {
        QString text;
        QStringList entries;
        QStringList allowed;
        std::int16_t maxLength = 0;

        bool hasValueOf(const Known& other) const { return text == other.text && entries == other.entries; }
        friend bool operator==(const Known&, const Known&) = default;
    };
    Known known() const;

    EntrySite mSite;
    QStringList mShown;
    Known mKnown; ///< when it was last shown or collected
};

} // namespace Korvane

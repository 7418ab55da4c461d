#pragma once

#include <korvane/controls/container/Code.h>
#include <korvane/controls/container/UserControl.h>

#include <QString>
#include <QVariant>

class QGroupBox;

namespace Korvane {

class AdminForm;

/// A control with which a form edits the definition of one field of a database: its name, its caption, how it
/// is entered, whether it is required, and the values of its list. It runs no SQL: it tells when the user
/// wants another record (`RecordMove`) or wants this one stored (`UpdateClick`), and the form does it.
///
///     auto* admin = new dbxadmin(form);
///     admin->InitProperties();
///     connect(admin, &dbxadmin::RecordMove, form, [=](qint16& index) { form->moveTo(index); });
///     connect(admin, &dbxadmin::UpdateClick, form, [=] { form->store(admin->fldName(), ...); });
///
/// Setting a property never counts as a change of the user's (`DataChanged`), and is never checked: what was
/// set and not touched since is what is got. The list (`txtAddtoList`, `cmdAddtoList`, `lstAddtoList`) can be
/// edited only while the display type is "List box".
///
/// In the list, the button adds once the user goes to the entry box or types there, and removes once a value
/// is selected; Enter in the entry box adds, Delete in the list removes. A value cannot hold a "/", which
/// separates the values: none can be typed, and what holds one is not added; the box says so.
///
/// The record number is written to the bag as "RecNum" and read as "RecNumber": one that was saved does not
/// come back, and every load starts from "1".
///
/// Its slots delete it with `deleteLater` only. In design mode no button does anything.
class dbxadmin : public UserControl {
    Q_OBJECT
    Q_PROPERTY(bool DataChanged READ DataChanged WRITE DataChanged STORED false)
    Q_PROPERTY(QString fldCaption1 READ fldCaption1 WRITE fldCaption1)
    Q_PROPERTY(QString fldCaption2 READ fldCaption2 WRITE fldCaption2)
    Q_PROPERTY(QString fldCaption3 READ fldCaption3 WRITE fldCaption3)
    Q_PROPERTY(QString fldCaption4 READ fldCaption4 WRITE fldCaption4)
    Q_PROPERTY(QVariant fldCode READ fldCode WRITE fldCode DESIGNABLE false STORED false)
    Q_PROPERTY(QString ListBoxText READ ListBoxText WRITE ListBoxText)
    Q_PROPERTY(QString ListData READ ListData WRITE ListData)
    Q_PROPERTY(QString fldName READ fldName WRITE fldName)
    Q_PROPERTY(QString fieldCaption READ fieldCaption WRITE fieldCaption)
    Q_PROPERTY(DisplayType displayType READ displayTypeCode WRITE displayTypeCode)
    Q_PROPERTY(Requirement FieldRequired READ requirementCode WRITE requirementCode)
    Q_PROPERTY(QString FrameName READ FrameName WRITE FrameName)
    Q_PROPERTY(ListAction ListMode READ listActionCode WRITE listActionCode)
    Q_PROPERTY(QString RecNumber READ RecNumber WRITE RecNumber STORED false)
    Q_PROPERTY(bool UpdateEnabled READ UpdateEnabled WRITE UpdateEnabled)

  public:
    /// How the field is entered: the codes of `displayType`.
    enum DisplayType : int {
        Unspecified = 0,
        TextBox = 1,
        DateControl = 2,
        ListBox = 3,
        SpecialFormat = 4,
        PhoneNumber = 5,
        SSNumber = 6,
        ZipCode = 7,
        Email = 8
    };
    Q_ENUM(DisplayType)
    /// Whether the field has to be filled in.
    enum Requirement : int { NotRequired = 0, Required = 1, JustAReminder = 2 };
    Q_ENUM(Requirement)
    /// What the button of the list does: the codes of `ListMode`.
    enum ListAction : int { AddToList = 0, RemoveFromList = 1 };
    Q_ENUM(ListAction)

    /// As read from an empty bag, but with the display type 0.
    explicit dbxadmin(QWidget* parent = nullptr);

    /// Whether the user has changed something, a text in the list's entry box included. False again once
    /// `UpdateClick` has been heard, unless one of its slots has set it, the user has changed something
    /// meanwhile, or what was typed for the list has not been added to it; the form may set and clear it.
    /// Not kept in the host's bag.
    bool DataChanged() const { return mDataChanged; }
    void DataChanged(bool changed);

    /// The captions of the entries, from the name on. Default "Field Name", "Field Caption", "Input Display"
    /// and "Required". An ampersand marks the key that leads to the entry.
    QString fldCaption1() const { return caption(0); }
    void fldCaption1(const QString& text) { caption(0, text); }
    QString fldCaption2() const { return caption(1); }
    void fldCaption2(const QString& text) { caption(1, text); }
    QString fldCaption3() const { return caption(2); }
    void fldCaption3(const QString& text) { caption(2, text); }
    QString fldCaption4() const { return caption(3); }
    void fldCaption4(const QString& text) { caption(3, text); }

    /// Anything that the form wants to know the field by. Not shown, and not kept in the host's bag.
    QVariant fldCode() const { return mFldCode; }
    void fldCode(const QVariant& code);

    /// The text in the entry box of the list.
    QString ListBoxText() const;
    void ListBoxText(const QString& text);

    /// The values of the list as one text. To set: joined by "/", with or without one after the last. To get:
    /// what was set; once the user has changed the list, each value followed by "/".
    ///
    /// Setting selects the first value, unless the user is in the list and sees these values already. An
    /// empty text is kept, but leaves the list that is shown as it is: a form that goes on to a field without
    /// values calls `ClearList`.
    QString ListData() const;
    void ListData(const QString& text);
    /// No values, neither shown nor in `ListData`.
    void ClearList();

    /// Lets the user edit the list, or not. Default on. On or off, it can be edited only while the display
    /// type is "List box" and updates are enabled.
    ///
    /// With any other display type, off empties the list that is shown: another field's values do not stay
    /// there. `ListData` is kept, and shown again once the list can be used.
    void EnableAddToList() { setAddToList(true); }
    void disableAddToList() { setAddToList(false); }

    /// The texts in the entry boxes. Default empty.
    QString fldName() const;
    void fldName(const QString& text);
    QString fieldCaption() const;
    void fieldCaption(const QString& text);

    /// A `DisplayType` and a `Requirement`. Default 0 when made, from a bag 1 and 0. A code that is none of
    /// them is shown as a number, -1 as nothing; it is kept until the user chooses another one.
    qint16 displayType() const;
    void displayType(qint16 code);
    qint16 FieldRequired() const;
    void FieldRequired(qint16 code);

    /// The caption of the frame. Default empty.
    QString FrameName() const;
    void FrameName(const QString& text);

    /// What the list's button does: 0 adds, anything else removes. Default 0. The user changes it, see above.
    qint16 ListMode() const;
    void ListMode(qint16 mode);

    /// What is shown as the number of the record. Default "1".
    QString RecNumber() const;
    void RecNumber(const QString& text);

    /// Whether the user can change and update the record. Default true. Moving to another one is always
    /// possible.
    bool UpdateEnabled() const { return mUpdateEnabled; }
    void UpdateEnabled(bool on);

    /// The captions, and the list "Item 1/Item 2/Item 3/Etc."
    void InitProperties() override;

    void ReadProperties(const PropertyBag& bag) override;
    void WriteProperties(PropertyBag& bag) const override;

    QSize minimumSizeHint() const override;

  signals:
    /// Move button `index` was clicked: 0 first, 1 previous, 2 next, 3 last. A slot may change the index for
    /// the slots after it; the control does nothing with it. It is a reference: no queued connections.
    void RecordMove(qint16& index);
    /// The update button was clicked. Afterwards `DataChanged` is cleared, unless a slot has set it or the
    /// user has changed something meanwhile.
    void UpdateClick();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    DisplayType displayTypeCode() const { return static_cast<DisplayType>(displayType()); }
    void displayTypeCode(DisplayType type) { takeCode(*this, &dbxadmin::displayType, type, "displayType"); }
    Requirement requirementCode() const { return static_cast<Requirement>(FieldRequired()); }
    void requirementCode(Requirement required) {
        takeCode(*this, &dbxadmin::FieldRequired, required, "FieldRequired");
    }
    ListAction listActionCode() const { return static_cast<ListAction>(ListMode()); }
    void listActionCode(ListAction action) { takeCode(*this, &dbxadmin::ListMode, action, "ListMode"); }

    QString caption(int index) const;
    void caption(int index, const QString& text);
    void showCaption(int index, const QString& text);
    void setAddToList(bool on);
    void enableEntries();
    void enableList();
    void hearUser();
    void changedByUser(const QString& property);
    void moveClicked(int index);
    void updateClicked();

    QGroupBox* frame1;
    AdminForm* mForm;
    QVariant mFldCode;
    bool mDataChanged = false;
    unsigned mChanges = 0; ///< how often `DataChanged` was set, by whomever
    bool mAddToList = true;
    bool mUpdateEnabled = true;
};

} // namespace Korvane

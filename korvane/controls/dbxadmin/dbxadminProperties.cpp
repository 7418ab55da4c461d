#include <korvane/controls/dbxadmin/dbxadmin.h>

#include <korvane/controls/dbxadmin/AdminForm.h>
#include <korvane/controls/dbxadmin/CodeBox.h>
#include <korvane/controls/dbxadmin/GivenText.h>
#include <korvane/controls/dbxadmin/MoveRow.h>
#include <korvane/controls/dbxadmin/ValueList.h>

#include <QGroupBox>
#include <QLineEdit>

namespace Korvane {

namespace {

const QStringList& captions() {
    static const QStringList texts{"Field Name", "Field Caption", "Input Display", "Required"};
    return texts;
}

QString captionName(int index) {
    return QStringLiteral("fldCaption%1").arg(index + 1);
}

} // namespace

void dbxadmin::DataChanged(bool changed) {
    mDataChanged = changed;
    ++mChanges;
    emit PropertyChanged(QStringLiteral("DataChanged"));
}

QString dbxadmin::caption(int index) const {
    return mForm->caption(index).text();
}

void dbxadmin::showCaption(int index, const QString& text) {
    mForm->caption(index).setText(text);
    mForm->contentChanged();
}

void dbxadmin::caption(int index, const QString& text) {
    showCaption(index, text);
    emit PropertyChanged(captionName(index));
}

void dbxadmin::fldCode(const QVariant& code) {
    mFldCode = code;
    emit PropertyChanged(QStringLiteral("fldCode"));
}

QString dbxadmin::ListBoxText() const {
    return mForm->values().entryText();
}

void dbxadmin::ListBoxText(const QString& text) {
    mForm->values().setEntryText(text);
    emit PropertyChanged(QStringLiteral("ListBoxText"));
}

QString dbxadmin::ListData() const {
    return mForm->values().data();
}

void dbxadmin::ListData(const QString& text) {
    mForm->values().setData(text);
    emit PropertyChanged(QStringLiteral("ListData"));
}

void dbxadmin::ClearList() {
    mForm->values().clear();
    emit PropertyChanged(QStringLiteral("ListData"));
}

QString dbxadmin::fldName() const {
    return mForm->name().text();
}

void dbxadmin::fldName(const QString& text) {
    showGivenText(mForm->name(), text);
    emit PropertyChanged(QStringLiteral("fldName"));
}

QString dbxadmin::fieldCaption() const {
    return mForm->fieldCaption().text();
}

void dbxadmin::fieldCaption(const QString& text) {
    showGivenText(mForm->fieldCaption(), text);
    emit PropertyChanged(QStringLiteral("FieldCaption"));
}

qint16 dbxadmin::displayType() const {
    return mForm->inputDisplay().code();
}

void dbxadmin::displayType(qint16 code) {
    mForm->inputDisplay().setCode(code);
    enableList();
    emit PropertyChanged(QStringLiteral("DisplayType"));
}

qint16 dbxadmin::FieldRequired() const {
    return mForm->required().code();
}

void dbxadmin::FieldRequired(qint16 code) {
    mForm->required().setCode(code);
    emit PropertyChanged(QStringLiteral("FieldRequired"));
}

QString dbxadmin::FrameName() const {
    return frame1->title();
}

void dbxadmin::FrameName(const QString& text) {
    frame1->setTitle(text);
    emit PropertyChanged(QStringLiteral("FrameName"));
}

qint16 dbxadmin::ListMode() const {
    return mForm->values().removes() ? RemoveFromList : AddToList;
}

void dbxadmin::ListMode(qint16 mode) {
    mForm->values().setRemoves(mode != AddToList);
    emit PropertyChanged(QStringLiteral("ListMode"));
}

QString dbxadmin::RecNumber() const {
    return mForm->moves().number().text();
}

void dbxadmin::RecNumber(const QString& text) {
    mForm->moves().number().setText(text);
    mForm->contentChanged();
    emit PropertyChanged(QStringLiteral("RecNumber"));
}

void dbxadmin::UpdateEnabled(bool on) {
    mUpdateEnabled = on;
    enableEntries();
    emit PropertyChanged(QStringLiteral("UpdateEnabled"));
}

void dbxadmin::InitProperties() {
    ListData(QStringLiteral("Item 1/Item 2/Item 3/Etc."));
    for (int i = 0; i < captions().size(); ++i)
        caption(i, captions()[i]);
}

void dbxadmin::ReadProperties(const PropertyBag& bag) {
    bag.ReadProperty("RecNum", ""); // known, and not to come back
    mForm->moves().number().setText(bag.ReadProperty("RecNumber", "1").toString());
    mForm->inputDisplay().setCode(readCode(bag, "DisplayType", TextBox));
    mForm->required().setCode(readCode(bag, "FieldRequired", NotRequired));
    frame1->setTitle(bag.ReadProperty("FrameName", "").toString());
    showGivenText(mForm->name(), bag.ReadProperty("fldName", "").toString());
    showGivenText(mForm->fieldCaption(), bag.ReadProperty("FieldCaption", "").toString());
    mForm->values().clear();
    mForm->values().setData(bag.ReadProperty("ListData", "").toString());
    mForm->values().setRemoves(readCode(bag, "ListMode", AddToList) != AddToList);
    mForm->values().setEntryText(bag.ReadProperty("ListBoxText", "").toString());
    mUpdateEnabled = bag.ReadProperty("UpdateEnabled", true).toBool();
    for (int i = 0; i < captions().size(); ++i)
        showCaption(i, bag.ReadProperty(captionName(i), captions()[i]).toString());
    enableEntries();
}

void dbxadmin::WriteProperties(PropertyBag& bag) const {
    bag.WriteProperty("RecNum", RecNumber(), "1");
    bag.WriteProperty("DisplayType", int{displayType()}, int{TextBox});
    bag.WriteProperty("FieldRequired", int{FieldRequired()}, int{NotRequired});
    bag.WriteProperty("FrameName", FrameName(), "");
    bag.WriteProperty("fldName", fldName(), "");
    bag.WriteProperty("FieldCaption", fieldCaption(), "");
    bag.WriteProperty("ListData", ListData(), "");
    bag.WriteProperty("ListMode", int{ListMode()}, int{AddToList});
    bag.WriteProperty("ListBoxText", ListBoxText(), "");
    bag.WriteProperty("UpdateEnabled", UpdateEnabled(), true);
    for (int i = 0; i < captions().size(); ++i)
        bag.WriteProperty(captionName(i), caption(i), captions()[i]);
}

} // namespace Korvane

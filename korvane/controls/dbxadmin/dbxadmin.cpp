#include <korvane/controls/dbxadmin/dbxadmin.h>

#include <korvane/controls/buttons/CommandButton.h>
#include <korvane/controls/buttons/PanelFrame.h>
#include <korvane/controls/dbxadmin/AdminForm.h>
#include <korvane/controls/dbxadmin/CodeBox.h>
#include <korvane/controls/dbxadmin/MoveRow.h>
#include <korvane/controls/dbxadmin/ValueList.h>

#include <QEvent>
#include <QPointer>
#include <QVBoxLayout>

namespace Korvane {

dbxadmin::dbxadmin(QWidget* parent)
    : UserControl(parent), frame1(new PanelFrame(this)), mForm(new AdminForm(*this, frame1)) {
    frame1->setObjectName(QStringLiteral("frame1"));
    (new QVBoxLayout(frame1))->addWidget(mForm);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(frame1);
    // Without a policy of its own it would have no place in a tab order. Later on it would be its proxy's.
    setFocusPolicy(Qt::TabFocus);
    ReadProperties(PropertyBag());
    mForm->inputDisplay().setCode(Unspecified);
    enableList();
    hearUser();
    resize(sizeHint());
}

void dbxadmin::hearUser() {
    const auto marks = [this](const char* property) {
        return [this, property] { changedByUser(QString::fromLatin1(property)); };
    };
    connect(&mForm->name(), &QLineEdit::textChanged, this, marks("fldName"));
    connect(&mForm->fieldCaption(), &QLineEdit::textChanged, this, marks("FieldCaption"));
    connect(&mForm->inputDisplay(), &QComboBox::currentIndexChanged, this, &dbxadmin::enableList);
    connect(&mForm->inputDisplay(), &QComboBox::currentIndexChanged, this, marks("DisplayType"));
    connect(&mForm->required(), &QComboBox::currentIndexChanged, this, marks("FieldRequired"));
    connect(&mForm->values(), &ValueList::entryChanged, this, marks("ListBoxText"));
    connect(&mForm->values(), &ValueList::listChanged, this, marks("ListData"));
    connect(&mForm->moves(), &MoveRow::clicked, this, &dbxadmin::moveClicked);
    connect(&mForm->updateButton(), &QPushButton::clicked, this, &dbxadmin::updateClicked);
}

void dbxadmin::changedByUser(const QString& property) {
    mDataChanged = true;
    ++mChanges;
    emit PropertyChanged(property);
}

void dbxadmin::moveClicked(int index) {
    auto which = static_cast<qint16>(index);
    if (!designMode()) emit RecordMove(which);
}

void dbxadmin::updateClicked() {
    if (designMode()) return;
    const QPointer<dbxadmin> self = this;
    const unsigned before = mChanges;
    emit UpdateClick();
    if (self && mChanges == before) mDataChanged = mForm->values().hasTyped();
}

/// From the last part to the first, see `ValueList::setEditable`. The update button does not pass the focus
/// on to what is behind the control: that may be the OK of a dialog, and another Enter follow.
void dbxadmin::enableEntries() {
    if (!mUpdateEnabled && mForm->updateButton().hasFocus()) mForm->moves().setFocus();
    mForm->updateButton().setEnabled(mUpdateEnabled);
    enableList();
    for (QWidget* part : std::initializer_list<QWidget*>{&mForm->required(), &mForm->inputDisplay(),
                                                         &mForm->fieldCaption(), &mForm->name()})
        part->setEnabled(mUpdateEnabled);
    setFocusProxy(mUpdateEnabled ? static_cast<QWidget*>(&mForm->name()) : &mForm->moves());
}

void dbxadmin::enableList() {
    const bool used = mAddToList && displayType() == ListBox;
    if (used) mForm->values().showData();
    mForm->values().setEditable(mUpdateEnabled && used);
}

void dbxadmin::setAddToList(bool on) {
    mAddToList = on;
    if (!on && displayType() != ListBox) mForm->values().hideData();
    enableList();
}

QSize dbxadmin::minimumSizeHint() const {
    return layout()->minimumSize();
}

void dbxadmin::changeEvent(QEvent* event) {
    UserControl::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
        mForm->contentChanged();
        updateGeometry();
        break;
    default:
        break;
    }
}

} // namespace Korvane

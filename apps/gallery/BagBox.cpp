#include "gallery/BagBox.h"

#include <QFile>
#include <QFileDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

namespace Gallery {

namespace {

QString kindOfFile() {
    return BagBox::tr("Kept properties (*.json)");
}

QFont fixedFont(QFont form) {
    form.setFamilies(QFontDatabase::systemFont(QFontDatabase::FixedFont).families());
    return form;
}

} // namespace

BagBox::BagBox(Korvane::UserControl& control)
    : QGroupBox(tr("What the host keeps")), mControl(control), mText(new QPlainTextEdit),
      mProblems(new QLabel) {
    setObjectName(QStringLiteral("bag"));
    mText->setObjectName(QStringLiteral("txtBag"));
    mText->setAccessibleName(tr("Kept properties as JSON"));
    mText->setTabChangesFocus(true);
    mText->setFont(fixedFont(font()));
    mText->setMinimumHeight(fontMetrics().lineSpacing() * 4);
    mProblems->setObjectName(QStringLiteral("lblProblems"));
    mProblems->setTextFormat(Qt::PlainText);
    mProblems->setWordWrap(true);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(mText, 1);
    rows->addWidget(mProblems);
    auto* row = new QHBoxLayout;
    addButtons(*row);
    rows->addLayout(row);
    write();
}

void BagBox::addButtons(QLayout& row) {
    const auto add = [&](const char* name, const QString& text, const QString& help, auto work) {
        auto* button = new QPushButton(text);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(help);
        row.addWidget(button);
        connect(button, &QPushButton::clicked, this, work);
    };
    add("cmdWrite", tr("W&rite"), tr("Shows what the control writes"), &BagBox::write);
    add("cmdRead", tr("Re&ad"), tr("Lets the control read what is shown here"), &BagBox::read);
    add("cmdSave", tr("Sa&ve..."), tr("Writes what is shown here into a file"), [this] {
        const QString file =
            QFileDialog::getSaveFileName(this, {}, mControl.objectName() + ".json", kindOfFile());
        if (!file.isEmpty()) save(file);
    });
    add("cmdOpen", tr("&Open..."), tr("Shows a file, and lets the control read it"), [this] {
        const QString file = QFileDialog::getOpenFileName(this, {}, {}, kindOfFile());
        if (!file.isEmpty()) open(file);
    });
}

void BagBox::write() {
    Korvane::PropertyBag bag;
    mControl.WriteProperties(bag);
    mText->setPlainText(QString::fromUtf8(bag.Contents()));
    tell({});
}

void BagBox::read() {
    Korvane::PropertyBag bag;
    bag.Contents(mText->toPlainText().toUtf8());
    mControl.ReadProperties(bag);
    tell(bag.problems().join(u'\n'));
    emit hasRead();
}

void BagBox::save(const QString& file) {
    QSaveFile target(file);
    const bool done = target.open(QIODevice::WriteOnly) && target.write(mText->toPlainText().toUtf8()) >= 0 &&
                      target.commit();
    tell(done ? QString() : target.errorString());
}

void BagBox::open(const QString& file) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) return tell(source.errorString());
    mText->setPlainText(QString::fromUtf8(source.readAll()));
    read();
}

void BagBox::tell(const QString& text) {
    mProblems->setText(text);
    mProblems->setVisible(!text.isEmpty());
    makeRoom();
}

/// A splitter does not ask how many lines a text has in its width.
void BagBox::makeRoom() {
    mProblems->setMinimumHeight(qMax(0, mProblems->heightForWidth(layout()->contentsRect().width())));
}

void BagBox::resizeEvent(QResizeEvent* event) {
    QGroupBox::resizeEvent(event);
    makeRoom();
}

} // namespace Gallery

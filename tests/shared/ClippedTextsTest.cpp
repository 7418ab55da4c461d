#include "shared/ClippedTexts.h"
#include "shared/DoubledShortcuts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

#include <gtest/gtest.h>

namespace Apps {
namespace {

/// One of each, as large as it likes to be, with "Medication" for its text.
std::vector<QWidget*> oneOfEach(QWidget& window) {
    const QString text = QStringLiteral("Medication");
    auto* line = new QLineEdit(&window);
    line->setPlaceholderText(text);
    auto* tool = new QToolButton(&window);
    tool->setText(text);
    auto* tabs = new QTabBar(&window);
    tabs->setUsesScrollButtons(false);
    tabs->setElideMode(Qt::ElideRight);
    tabs->addTab(text);
    auto* table = new QTableWidget(0, 1, &window);
    table->setHorizontalHeaderLabels({text});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    auto* wrapped = new QLabel(text + QStringLiteral(" for the night"), &window);
    wrapped->setWordWrap(true);
    return {new QLabel(text, &window),
            new QPushButton(text, &window),
            new QCheckBox(text, &window),
            new QGroupBox(text, &window),
            line,
            tool,
            tabs,
            table,
            wrapped};
}

TEST(ClippedTexts, AreThoseOfWidgetsThatAreTooSmallForThem) {
    QWidget window;
    window.resize(2000, 2000);
    const auto widgets = oneOfEach(window);
    for (QWidget* widget : widgets)
        widget->resize(400, 100);
    window.show();
    EXPECT_EQ(clippedTexts(window), QStringList());
    for (QWidget* widget : widgets) {
        const QString name = QString::fromLatin1(widget->metaObject()->className());
        widget->resize(50, 12);
        QCoreApplication::processEvents();
        const QStringList clipped = clippedTexts(window);
        ASSERT_EQ(clipped.size(), 1) << name.toStdString();
        EXPECT_TRUE(clipped.first().contains(QStringLiteral("Medication"))) << name.toStdString();
        widget->hide();
    }
}

TEST(ClippedTexts, AreThoseCutOffByWhatTheyStandInButNotWhatCanBeScrolledTo) {
    QWidget window;
    window.resize(300, 300);
    QWidget pane(&window);
    pane.resize(100, 100);
    QPushButton button(QStringLiteral("Save"), &pane);
    button.setObjectName(QStringLiteral("cmdSave"));
    button.setGeometry(60, 10, 80, 30);
    QScrollArea area(&window);
    area.setGeometry(150, 0, 100, 100);
    auto* page = new QWidget;
    page->resize(90, 1000);
    auto* far = new QLabel(QStringLiteral("Far"), page);
    far->setGeometry(0, 900, 80, 30);
    area.setWidget(page);
    window.show();
    EXPECT_EQ(clippedTexts(window), QStringList(QStringLiteral("QPushButton cmdSave: Save")));
}

TEST(DoubledShortcuts, AreTheLettersThatTwoOfWhatIsShownAnswerTo) {
    QWidget window;
    QPushButton save(QStringLiteral("&Save"), &window), search(QStringLiteral("&Search"), &window);
    QLabel date(QStringLiteral("&Date"), &window), described(QStringLiteral("&Description"), &window);
    date.setBuddy(&save);
    window.show();
    EXPECT_EQ(doubledShortcuts(window), QStringList(QStringLiteral("S: &Save, &Search")));
    search.hide();
    EXPECT_EQ(doubledShortcuts(window), QStringList());
}

} // namespace
} // namespace Apps

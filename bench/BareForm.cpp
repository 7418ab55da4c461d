#include "BareForm.h"

#include "SyntheticNip.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QStandardItemModel>

namespace Korvane::Bench {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QWidget* comboBox(int group, int field, bool editable) {
    auto* box = new QComboBox;
    box->setEditable(editable);
    for (const std::string& value : allowedValues(group, field))
        box->addItem(text(value));
    box->setCurrentText(text(valueOf(group, field, 1)));
    return box;
}

QWidget* list(int group, int field) {
    constexpr int height = 76;
    auto* view = new QListView;
    auto* model = new QStandardItemModel(view);
    const QStringList chosen = text(valueOf(group, field, 1)).split(QLatin1Char('|'));
    QStringList entries = chosen;
    if (const auto allowed = allowedValues(group, field); !allowed.empty()) {
        entries.clear();
        for (const std::string& value : allowed)
            entries += text(value);
    }
    for (const QString& entry : entries) {
        auto* item = new QStandardItem(entry);
        item->setCheckable(true);
        item->setCheckState(chosen.contains(entry) ? Qt::Checked : Qt::Unchecked);
        model->appendRow(item);
    }
    view->setModel(model);
    view->setFixedHeight(height);
    return view;
}

void addField(QGridLayout& layout, int group, int field) {
    const std::string_view type = displayType(group, field);
    QWidget* control = nullptr;
    if (type == "TEXT")
        control = new QLineEdit(text(valueOf(group, field, 1)));
    else if (type.starts_with("COMBOBOX"))
        control = comboBox(group, field, type == "COMBOBOX");
    else
        control = list(group, field);
    auto* label = new QLabel(QStringLiteral("Caption of field %1").arg(field));
    label->setBuddy(control);
    const int row = layout.rowCount();
    layout.addWidget(label, row, 0);
    layout.addWidget(control, row, 1);
    if (type != "LIST-EDITCONTENT") return;
    layout.addWidget(new QPushButton(QStringLiteral("Add")), row + 1, 1);
    layout.addWidget(new QPushButton(QStringLiteral("Remove")), row + 2, 1);
}

} // namespace

std::unique_ptr<QTabWidget> bareForm(const Size& size) {
    auto tabs = std::make_unique<QTabWidget>();
    for (int group = 1; group <= size.groups; ++group) {
        auto* area = new QScrollArea;
        auto* page = new QWidget;
        auto* layout = new QGridLayout(page);
        for (int field = 1; field <= size.fields; ++field)
            addField(*layout, group, field);
        area->setWidgetResizable(true);
        area->setWidget(page);
        tabs->addTab(area, QStringLiteral("Group %1").arg(group));
    }
    return tabs;
}

} // namespace Korvane::Bench

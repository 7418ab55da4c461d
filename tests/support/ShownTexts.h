#pragma once

#include <korvane/controls/container/Text.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMetaProperty>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>

namespace Korvane::Testing {

/// A language in which each text of the system stands in brackets: "«Save»". In force while it lives.
class BracketLanguage : public QTranslator {
  public:
    BracketLanguage() { QCoreApplication::installTranslator(this); }

    QString translate(const char* context, const char* text, const char*, int) const override {
        return std::string_view(context).starts_with("Korvane") ? u'«' + qt(text) + u'»' : QString();
    }
    bool isEmpty() const override { return false; }
};

/// What stands outside of all brackets; empty where that has no letters.
inline QString outsideBrackets(const QString& text) {
    QString outside;
    int depth = 0;
    for (const QChar c : text) {
        if (c == u'»') --depth;
        if (depth == 0 && c != u'«' && c != u'»') outside += c;
        if (c == u'«') ++depth;
    }
    const bool says = std::any_of(outside.begin(), outside.end(), [](QChar c) { return c.isLetter(); });
    return says ? outside.trimmed() : QString();
}

/// Gathers the words that nobody translated from what a window shows and tells a screen reader. What the
/// user enters is not among them.
class UntranslatedTexts {
  public:
    void read(const QString& text) {
        if (const QString outside = outsideBrackets(text); !outside.isEmpty()) mFound.insert(utf8(outside));
    }

    void read(const QObject& root) {
        readProperties(root);
        for (const QObject* each : root.findChildren<QObject*>())
            readProperties(*each);
    }

    const std::set<std::string>& found() const { return mFound; }

  private:
    void readProperties(const QObject& object) {
        for (const char* name : {"text", "title", "windowTitle", "toolTip", "statusTip", "whatsThis",
                                 "accessibleName", "accessibleDescription", "placeholderText"})
            if (std::string_view(name) != "text" || !isEntry(object)) read(object.property(name).toString());
        if (const auto* combo = qobject_cast<const QComboBox*>(&object)) readModel(*combo->model());
        const auto* view = qobject_cast<const QAbstractItemView*>(&object);
        if (view && view->model()) readModel(*view->model());
    }

    static bool isEntry(const QObject& object) {
        return qobject_cast<const QLineEdit*>(&object) || object.inherits("QAbstractSpinBox");
    }

    void readModel(const QAbstractItemModel& model) {
        for (int column = 0; column < model.columnCount(); ++column) {
            read(model.headerData(column, Qt::Horizontal).toString());
            for (int row = 0; row < model.rowCount(); ++row)
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                    read(model.index(row, column).data(role).toString());
        }
    }

    std::set<std::string> mFound;
};

} // namespace Korvane::Testing

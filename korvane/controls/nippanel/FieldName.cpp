#include <korvane/controls/nippanel/FieldName.h>

#include <algorithm>

namespace Korvane {

namespace {

bool isForbidden(QChar c) {
    return QStringLiteral(" '\"$()[]@#%").contains(c);
}

bool isForbiddenFirst(QChar c) {
    return QStringLiteral("0123456789_").contains(c);
}

} // namespace

bool isValidFieldName(const QString& name) {
    return std::none_of(name.begin(), name.end(), isForbidden) &&
           (name.isEmpty() || !isForbiddenFirst(name.front()));
}

QString cleanedFieldName(const QString& text) {
    QString name;
    std::copy_if(text.begin(), text.end(), std::back_inserter(name), [](QChar c) { return !isForbidden(c); });
    const auto first = std::find_if_not(name.begin(), name.end(), isForbiddenFirst);
    name.remove(0, static_cast<int>(first - name.begin()));
    return name;
}

} // namespace Korvane

#include "shared/SignalListener.h"

#include <korvane/controls/container/PropertyValue.h>

#include <QDateTime>
#include <QStringList>

#include <utility>

namespace Apps {

namespace {

QString shown(const QVariant& value) {
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(QStringLiteral("M/d/yyyy h:mm AP"));
    return Korvane::shownValue(value);
}

/// A slot may be given a reference; what it refers to lies where a value would.
QMetaType typeOf(const QMetaMethod& method, int parameter) {
    QByteArray name = method.parameterTypeName(parameter);
    if (name.endsWith('&')) name.chop(1);
    return QMetaType::fromName(name);
}

QString shownArguments(const QMetaMethod& method, void** arguments) {
    QStringList texts;
    for (int i = 0; i < method.parameterCount(); ++i)
        texts << shown(QVariant(typeOf(method, i), arguments[i + 1]));
    return texts.join(QStringLiteral(", "));
}

} // namespace

SignalListener::SignalListener(QObject& source, const QMetaObject& below, Heard heard)
    : QObject(&source), mHeard(std::move(heard)) {
    const QMetaObject& type = *source.metaObject();
    for (int i = below.methodCount(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.methodType() != QMetaMethod::Signal) continue;
        const int slot = QObject::staticMetaObject.methodCount() + static_cast<int>(mSignals.size());
        if (QMetaObject::connect(&source, i, this, slot, Qt::DirectConnection)) mSignals.push_back(method);
    }
}

int SignalListener::qt_metacall(QMetaObject::Call call, int id, void** arguments) {
    const int own = QObject::qt_metacall(call, id, arguments);
    if (own < 0 || call != QMetaObject::InvokeMetaMethod) return own;
    const QMetaMethod& method = mSignals.at(static_cast<std::size_t>(own));
    mHeard(QString::fromLatin1(method.name()), shownArguments(method, arguments));
    return -1;
}

} // namespace Apps

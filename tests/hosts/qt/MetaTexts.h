#pragma once

#include <QDebug>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPointF>

#include <gtest/gtest.h>

#include <array>

namespace zorvane {

// Properties and methods of an object by name, with their values as texts.

inline QString TextOf(const QVariant& value) {
    if (value.canConvert<QString>()) return value.toString();
    QString text; // "QVariant(QRect, QRect(1,2 3x4))"
    QDebug(&text) << value;
    return text.mid(text.indexOf(", ") + 2).chopped(2);
}
/// Lists have commas; an empty text is what the type has by default.
inline QVariant ValueOf(const QString& text, QMetaType type) {
    if (text.isEmpty()) return QVariant(type);
    QVariant value = text;
    if (type == QMetaType::fromType<QList<int>>()) {
        QList<int> numbers;
        for (const QString& number : text.split(','))
            numbers += number.toInt();
        return QVariant::fromValue(numbers);
    }
    if (type == QMetaType::fromType<QPointF>())
        return QPointF(text.section(',', 0, 0).toDouble(), text.section(',', 1).toDouble());
    EXPECT_TRUE(value.convert(type)) << qPrintable(text);
    return value;
}

inline QString TextOf(const QMetaProperty& property, const QObject& object) {
    const QVariant value = property.read(&object);
    return property.isFlagType() ? property.enumerator().valueToKeys(value.toInt()) : TextOf(value);
}

inline bool Write(const QMetaProperty& property, QObject& object, const QString& text) {
    const bool asText = property.isFlagType() && !text.isEmpty();
    return property.write(&object, asText ? text : ValueOf(text, property.metaType()));
}

/// Calls a slot or another method with arguments read from texts, and returns what it
/// gives.
inline QString Call(QObject& object, const QString& name, const QStringList& texts) {
    const QMetaObject& type = *object.metaObject();
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.name() != name || method.parameterCount() != texts.size()) continue;
        std::array<QVariant, 7> values;
        std::array<QGenericArgument, 7> arguments;
        for (int at = 0; at < texts.size(); ++at) {
            QVariant& value = values.at(static_cast<std::size_t>(at));
            value = ValueOf(texts[at], method.parameterMetaType(at));
            arguments.at(static_cast<std::size_t>(at)) = {value.typeName(), value.constData()};
        }
        QVariant result(method.returnMetaType());
        const QGenericReturnArgument given(method.typeName(), result.data());
        std::apply([&](auto... all) { method.invoke(&object, given, all...); }, arguments);
        return result.isValid() ? TextOf(result) : QString();
    }
    ADD_FAILURE() << "no such method: " << qPrintable(name);
    return {};
}

} // namespace zorvane

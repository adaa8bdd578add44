// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAudioDevice>
#include <QJsonObject>
#include <QJsonValue>
#include <QMetaEnum>
#include <QMetaType>
#include <QPointer>
#include <QVariant>

#include <functional>
#include <optional>

namespace control {

/// Makes values of a wanted type out of JSON, as the control protocol defines it. GUI thread.
///
/// What does not fit throws RequestError (WrongValue) with a message that names the value and what is wanted.
class ValueReader
{
public:
    using AudioLookup = std::function<QAudioDevice(const QString& id)>;

    /// @param root object whose "colorModeList" has the colour modes, and from which paths of objects start.
    /// @param owner object whose properties are searched first for an object of an id; may be null.
    ValueReader(QObject* root, QObject* owner) : m_root(root), m_owner(owner) {}

    /// How an audio device is found by its id; null for one that is not there. By itself the outputs of the
    /// system.
    static void setAudioLookup(AudioLookup lookup);

    /// A value of exactly @p type. @p what names the value in messages, such as "state".
    QVariant read(const QJsonValue& json, QMetaType type, const QString& what,
                  QMetaEnum enumerator = {}) const;

    /// A value of the type that the JSON suggests, for stores and maps that take any.
    static QVariant readAny(const QJsonValue& json);

private:
    QVariant readEnumeration(const QJsonValue& json, QMetaType type, const QString& what,
                             QMetaEnum enumerator) const;
    QVariant readStructured(const QJsonValue& json, QMetaType type, const QString& what) const;
    QVariant readAudioDevice(const QJsonValue& json, const QString& what) const;
    QVariant readObject(const QJsonValue& json, QMetaType type, const QString& what) const;
    QObject* findNode(const QString& name) const;
    QObject* findById(const QString& id, const QMetaObject* wanted) const;
    QVariant readList(const QJsonValue& json, QMetaType type, const QString& what) const;
    QVariant readMap(const QJsonValue& json, QMetaType type, const QString& what) const;
    QVariant readGadget(const QJsonValue& json, QMetaType type, const QString& what) const;

    QPointer<QObject> m_root;
    QPointer<QObject> m_owner;
};

} // namespace control

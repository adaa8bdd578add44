// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SimulatedBed.h"

#include <qml/LumenQml.h>

#include <QJSValue>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <memory>
#include <utility>

/// Warnings that QML files gave: each is a fault.
class QmlWarnings
{
public:
    static void watch() { previous() = qInstallMessageHandler(keep); }
    static QStringList take() { return std::exchange(list(), {}); }

private:
    static QStringList& list()
    {
        static QStringList warnings;
        return warnings;
    }
    static QtMessageHandler& previous()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }
    static void keep(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type == QtWarningMsg && text.contains(QLatin1String(".qml")))
            list().append(text);
        if (previous())
            previous()(type, context, text);
    }
};

inline QVariant plainValue(const QVariant& value)
{
    return value.canConvert<QJSValue>() ? value.value<QJSValue>().toVariant() : value;
}

/// The item of that type and text below @p from, or null.
inline QQuickItem* findControl(QQuickItem* from, const QByteArray& type, const QString& text)
{
    const QList<QQuickItem*> children = from->childItems();
    for (QQuickItem* child : children) {
        if (QByteArray(child->metaObject()->className()).startsWith(type) &&
            child->property("text").toString() == text)
            return child;
        if (QQuickItem* found = findControl(child, type, text))
            return found;
    }
    return nullptr;
}

/// An editor of a flow action over a simulated monitor.
class FlowEditor
{
public:
    FlowEditor(SimulatedBed& bed, const QString& name, const QVariantMap& stored)
    {
        lumenQmlInit(&m_engine, {QStringLiteral("TKPackage")});
        m_window.resize(340, 600);
        m_window.show();
        QQmlComponent component(
            &m_engine, QUrl(QStringLiteral("qrc:///TKPackage/qml/TKPackage/Popups/%1.qml").arg(name)));
        m_item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
            {{QStringLiteral("monitor"), QVariant::fromValue<QObject*>(&bed.model())},
             {QStringLiteral("storedProperties"), stored},
             {QStringLiteral("parent"), QVariant::fromValue(m_window.contentItem())}})));
        if (!m_item)
            qFatal("%s", qPrintable(component.errorString()));
        m_accepted = std::make_unique<QSignalSpy>(m_item.get(), SIGNAL(accepted(QVariant, QVariant)));
        QMetaObject::invokeMethod(m_item.get(), "open");
    }

    /// Presses the control of that type and text, if it is enabled.
    bool press(const QByteArray& type, const QString& text)
    {
        QQuickItem* control = findControl(m_item.get(), type, text);
        return control && control->isEnabled() && QMetaObject::invokeMethod(control, "assistivePress");
    }
    /// Chooses a value of the control of that type and text, if it is enabled.
    bool setTo(const QByteArray& type, const QString& text, const QVariant& value)
    {
        QQuickItem* control = findControl(m_item.get(), type, text);
        return control && control->isEnabled() &&
               QMetaObject::invokeMethod(control, "assistiveSet", Q_ARG(QVariant, value));
    }
    QQuickItem* control(const QByteArray& type, const QString& text)
    {
        return findControl(m_item.get(), type, text);
    }
    QString title() const { return m_item->property("title").toString(); }
    /// What the block of present values shows.
    QStringList info() const
    {
        QStringList result;
        const QList<QObject*> all = m_item->findChildren<QObject*>();
        for (const QObject* each : all) {
            if (!QByteArray(each->metaObject()->className()).startsWith("LuInfoBlock"))
                continue;
            const QVariantList entries = plainValue(each->property("entries")).toList();
            for (const QVariant& entry : entries)
                result.append(entry.toMap().value(QStringLiteral("name")).toString() + QLatin1Char('=') +
                              entry.toMap().value(QStringLiteral("value")).toString());
        }
        return result;
    }
    int acceptedCount() const { return int(m_accepted->count()); }
    /// What was handed over last, empty before.
    QVariantMap accepted() const
    {
        return m_accepted->isEmpty() ? QVariantMap() : plainValue(m_accepted->last().at(1)).toMap();
    }

    /// The module for which it was handed over.
    QObject* acceptedModule() const { return plainValue(m_accepted->last().at(0)).value<QObject*>(); }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_item;
    std::unique_ptr<QSignalSpy> m_accepted;
};

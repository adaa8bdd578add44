// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SimulatedBed.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <vector>

class SignalRecorder;

/// Stands at one signal of a SignalRecorder: who sent it cannot be asked on another thread.
class SignalNote : public QObject
{
    Q_OBJECT

public:
    SignalNote(const QString& name, SignalRecorder& recorder) : m_name(name), m_recorder(recorder) {}

public Q_SLOTS:
    void fire();

private:
    const QString m_name;
    SignalRecorder& m_recorder;
};

/// Notes the names of an object's signals in the order in which they are raised, on the thread that raises
/// them.
class SignalRecorder
{
public:
    using Hook = std::function<void(const QString& name)>;

    /// Listens to every signal that @p source declares beside those of a module; @p hook is called with each.
    explicit SignalRecorder(QObject* source, Hook hook = {});

    void note(const QString& name);
    /// What has come since the last call.
    QStringList take();

private:
    const Hook m_hook;
    QMutex m_mutex;
    QStringList m_names;
    std::vector<std::unique_ptr<SignalNote>> m_notes; ///< Last: they disconnect before the rest goes.
};

/// Feature rows of a model that differ from those it ships with, for the life of the object.
class SchemaOverride
{
public:
    struct Row
    {
        QString category;
        QString type;
        QString value; ///< Empty: the row is absent.
    };

    SchemaOverride(const QString& model, const QList<Row>& rows);
    ~SchemaOverride();

private:
    QTemporaryDir m_directory;
};

/// The entries of a wire log that are writes: "0x7D 2".
QStringList writesIn(const QStringList& wire);
/// Those of one code.
QStringList writesOf(const QString& code, const QStringList& wire);

/// Launches the bed's monitor as one that is known, and waits for rest.
bool launchAndForget(SimulatedBed& bed);

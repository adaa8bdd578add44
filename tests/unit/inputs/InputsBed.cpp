// SPDX-License-Identifier: Apache-2.0
#include "InputsBed.h"

#include <lushared/LuHostOptions.h>

#include <QFile>
#include <QMetaMethod>
#include <QRegularExpression>

void SignalNote::fire()
{
    m_recorder.note(m_name);
}

SignalRecorder::SignalRecorder(QObject* source, Hook hook) : m_hook(std::move(hook))
{
    const QMetaObject* meta = source->metaObject();
    const QMetaMethod slot =
        SignalNote::staticMetaObject.method(SignalNote::staticMetaObject.indexOfSlot("fire()"));
    for (int i = LuModelModuleInterface::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
        m_notes.push_back(std::make_unique<SignalNote>(QString::fromLatin1(method.name()), *this));
        QObject::connect(source, method, m_notes.back().get(), slot, Qt::DirectConnection);
    }
}

void SignalRecorder::note(const QString& name)
{
    if (m_hook)
        m_hook(name);
    const QMutexLocker lock(&m_mutex);
    m_names.append(name);
}

QStringList SignalRecorder::take()
{
    const QMutexLocker lock(&m_mutex);
    return std::exchange(m_names, {});
}

SchemaOverride::SchemaOverride(const QString& model, const QList<Row>& rows)
{
    TestBed::instance();
    const QString name = model + QStringLiteral("_ext.xml");
    QFile shipped(QStringLiteral(":/schema/model/") + name);
    if (!shipped.open(QIODevice::ReadOnly))
        qFatal("no schema of %s", qPrintable(model));
    QString text = QString::fromUtf8(shipped.readAll());
    for (const Row& row : rows) {
        const QRegularExpression present(
            QStringLiteral("    <VCPcode Type=\"%1\" Name=\"[^\"]*\" Category=\"%2\"[^\n]*\n")
                .arg(QRegularExpression::escape(row.type), QRegularExpression::escape(row.category)));
        text.remove(present);
        if (!row.value.isEmpty())
            text.replace(
                QStringLiteral("  </VCPList>"),
                QStringLiteral("    <VCPcode Type=\"%1\" Name=\"%1\" Category=\"%2\" Value=\"%3\"/>\n"
                               "  </VCPList>")
                    .arg(row.type, row.category, row.value));
    }
    QFile file(m_directory.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(file.fileName()));
    LuHostOptions::instance().schemaDirectory = m_directory.path();
}

SchemaOverride::~SchemaOverride()
{
    LuHostOptions::instance().schemaDirectory.clear();
}

QStringList writesIn(const QStringList& wire)
{
    QStringList result;
    for (const QString& entry : wire) {
        if (entry.startsWith(QLatin1String("set ")))
            result.append(entry.mid(4));
    }
    return result;
}

QStringList writesOf(const QString& code, const QStringList& wire)
{
    return writesIn(wire).filter(QRegularExpression(QStringLiteral("^") + code));
}

bool launchAndForget(SimulatedBed& bed)
{
    bed.launch();
    if (!bed.idle())
        return false;
    bed.forget();
    return true;
}

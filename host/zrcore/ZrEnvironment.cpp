// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrEnvironment.h"

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>

#include <mutex>
#include <optional>

static void initializeResources()
{
    Q_INIT_RESOURCE(zrcore_data);
}

namespace {

using Values = QMap<QString, QVariant>;

// An environment is written by hand; what is larger is some other file.
constexpr qint64 LargestFile = 1024 * 1024;

bool isChoice(const QJsonObject& object)
{
    static const QSet<QString> classes{QStringLiteral("default"), QStringLiteral("linux"),
                                       QStringLiteral("windows"), QStringLiteral("osx")};
    const QStringList keys = object.keys();
    return !keys.isEmpty() &&
           std::all_of(keys.begin(), keys.end(), [](const QString& key) { return classes.contains(key); });
}

void flatten(const QJsonObject& object, const QString& prefix, Values* values)
{
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString key = prefix + it.key();
        if (it->isObject() && !isChoice(it->toObject()))
            flatten(it->toObject(), key + u'.', values);
        else if (!it->isNull())
            values->insert(key, it->toVariant());
    }
}

std::optional<Values> readFile(const QString& name, QString* error)
{
    const auto fail = [&](const QString& reason) {
        if (error)
            *error = QStringLiteral("%1: %2").arg(name, reason);
        return std::nullopt;
    };
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    const QByteArray text = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError)
        return fail(file.errorString());
    if (text.size() > LargestFile)
        return fail(QStringLiteral("larger than 1 MiB"));
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        const auto line = text.left(parseError.offset).count('\n') + 1;
        return fail(QStringLiteral("line %1: %2").arg(line).arg(parseError.errorString()));
    }
    if (!document.isObject())
        return fail(QStringLiteral("no JSON object"));
    Values values;
    flatten(document.object(), QString(), &values);
    return values;
}

Values builtIn()
{
    initializeResources();
    QString error;
    const auto values = readFile(QStringLiteral(":/lumen-desk/environment.json"), &error);
    if (!values)
        qFatal("built-in environment: %s", qPrintable(error));
    return *values;
}

struct Environment
{
    std::mutex mutex;
    Values values = builtIn();
};

Environment& environment()
{
    static auto* const instance = new Environment;
    return *instance;
}

} // namespace

QVariant ZrEnvironment::var(const QString& key)
{
    const std::lock_guard lock(environment().mutex);
    return environment().values.value(key);
}

QVariant ZrEnvironment::varDeviceChoice(const QString& key)
{
    const QVariant value = var(key);
    if (value.typeId() != QMetaType::QVariantMap)
        return value;
    const QVariantMap choice = value.toMap();
    return choice.value(deviceClass(), choice.value(QStringLiteral("default")));
}

bool ZrEnvironment::addLayer(const QString& file, QString* error)
{
    const auto values = readFile(file, error);
    if (!values)
        return false;
    const std::lock_guard lock(environment().mutex);
    for (auto it = values->begin(); it != values->end(); ++it)
        environment().values.insert(it.key(), it.value());
    return true;
}

void ZrEnvironment::clear()
{
    Values values = builtIn();
    const std::lock_guard lock(environment().mutex);
    environment().values.swap(values);
}

QStringList ZrEnvironment::keys()
{
    const std::lock_guard lock(environment().mutex);
    return environment().values.keys();
}

QString ZrEnvironment::deviceClass()
{
#if defined(Q_OS_WIN)
    return QStringLiteral("windows");
#elif defined(Q_OS_MACOS)
    return QStringLiteral("osx");
#else
    return QStringLiteral("linux");
#endif
}

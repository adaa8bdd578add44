// SPDX-License-Identifier: Apache-2.0
#include "ModelCatalog.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

// The macro needs a function outside of every namespace.
static void initSimulatorModels()
{
    Q_INIT_RESOURCE(simulator_models);
}

namespace sim {

namespace {

/// Lays @p over upon @p base: objects are merged, null removes, anything else replaces.
QJsonObject merged(QJsonObject base, const QJsonObject& over)
{
    for (auto it = over.begin(); it != over.end(); ++it) {
        if (it.value().isNull())
            base.remove(it.key());
        else if (it.value().isObject() && base.value(it.key()).isObject())
            base.insert(it.key(), merged(base.value(it.key()).toObject(), it.value().toObject()));
        else
            base.insert(it.key(), it.value());
    }
    return base;
}

/// Joins a file with those that it extends. A file that is reached twice counts once.
class Merger
{
public:
    explicit Merger(const QMap<QString, QJsonObject>& files) : m_files(files) {}

    std::optional<QJsonObject> merge(const QString& name, QString* error)
    {
        m_done.clear();
        m_open.clear();
        QJsonObject result;
        QJsonArray behaviours;
        if (!add(name, &result, &behaviours, error))
            return std::nullopt;
        result.insert(QLatin1String("behaviours"), behaviours);
        return result;
    }

private:
    bool add(const QString& name, QJsonObject* result, QJsonArray* behaviours, QString* error)
    {
        if (m_open.contains(name)) {
            *error = QStringLiteral("\"%1\" extends itself").arg(name);
            return false;
        }
        if (!m_files.contains(name)) {
            *error = QStringLiteral("extends \"%1\", which cannot be read").arg(name);
            return false;
        }
        if (m_done.contains(name))
            return true;
        m_open.insert(name);
        QJsonObject own = m_files.value(name);
        for (const QJsonValue& parent : own.value(QLatin1String("extends")).toArray())
            if (!add(parent.toString(), result, behaviours, error))
                return false;
        m_open.remove(name);
        m_done.insert(name);
        // Behaviours of all files act together; everything else is overlaid.
        for (const QJsonValue& behaviour : own.value(QLatin1String("behaviours")).toArray())
            behaviours->append(behaviour);
        for (const char* key : {"behaviours", "extends", "abstract", "fallback"})
            own.remove(QLatin1String(key));
        *result = merged(*result, own);
        return true;
    }

    const QMap<QString, QJsonObject>& m_files;
    QSet<QString> m_done;
    QSet<QString> m_open;
};

} // namespace

const ModelCatalog& ModelCatalog::instance()
{
    static const ModelCatalog catalog = [] {
        initSimulatorModels();
        return ModelCatalog(QStringLiteral(":/lumen-desk/simulator/models"));
    }();
    return catalog;
}

ModelCatalog::ModelCatalog(const QString& folder)
{
    const QDir dir(folder);
    QMap<QString, QJsonObject> files;
    const QStringList names = dir.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    if (names.isEmpty())
        m_errors.append(QStringLiteral("%1: no model files").arg(folder));
    for (const QString& fileName : names) {
        QFile file(dir.filePath(fileName));
        QJsonParseError parse;
        if (!file.open(QIODevice::ReadOnly)) {
            m_errors.append(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
            continue;
        }
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parse);
        if (!document.isObject()) {
            m_errors.append(QStringLiteral("%1: not a JSON object (%2 at byte %3)")
                                .arg(fileName, parse.errorString(), QString::number(parse.offset)));
            continue;
        }
        files.insert(fileName.chopped(5), document.object());
    }
    Merger merger(files);
    for (auto it = files.cbegin(); it != files.cend(); ++it) {
        if (it->value(QLatin1String("abstract")).toBool())
            continue;
        QString error;
        const auto json = merger.merge(it.key(), &error);
        const auto description = json ? ModelDescription::fromJson(*json, &error) : std::nullopt;
        if (!description)
            m_errors.append(QStringLiteral("%1.json: %2").arg(it.key(), error));
        else if (it->value(QLatin1String("fallback")).toBool())
            m_generic = std::make_shared<const ModelDescription>(*description);
        else
            m_models.insert(description->name, std::make_shared<const ModelDescription>(*description));
    }
}

QStringList ModelCatalog::names() const
{
    return m_models.keys();
}

bool ModelCatalog::contains(const QString& name) const
{
    return m_models.contains(name);
}

std::shared_ptr<const ModelDescription> ModelCatalog::lookup(const QString& name) const
{
    if (const auto found = m_models.value(name))
        return found;
    ModelDescription description = m_generic ? *m_generic : ModelDescription();
    description.name = name;
    return std::make_shared<const ModelDescription>(description);
}

} // namespace sim

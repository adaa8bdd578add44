// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuModelModuleInterface.h>

#include "LuEventLog.h"
#include "LuMonitorModelPrivate.h"
#include "LuSchemaReader.h"
#include "LuSettings.h"

#include <LuShared/LuUtils.h>

#include <QMetaProperty>
#include <QPointer>

struct LuModelModuleInterface::Private
{
    explicit Private(LuMonitorModel* owner) : model(owner) {}

    LuMonitorModel* const model;
    ZrShared<bool> syncEnable{false};
    enum class Mark {
        Unknown, ///< Nobody has asked the settings yet.
        No,
        Yes,
    };
    ZrShared<Mark> mark{Mark::Unknown}; ///< Skipped at the next launch.
    QHash<QString, QVariant> snapshot;
    bool hasSnapshot = false;
};

LuModelModuleInterface::LuModelModuleInterface(LuMonitorModel* model) : QObject(model), d(new Private(model))
{
    LuMonitorModelPrivate::of(model).modules.append(this);
}

LuModelModuleInterface::~LuModelModuleInterface() = default;

LuMonitorModel* LuModelModuleInterface::model() const
{
    return d->model;
}

void LuModelModuleInterface::onInitialSync() {}

void LuModelModuleInterface::loadSettings() {}

void LuModelModuleInterface::applyValues() {}

void LuModelModuleInterface::registerShortcutActions() {}

void LuModelModuleInterface::onForceSyncRequested()
{
    forceSyncHardwareState(false);
}

void LuModelModuleInterface::onFireUpdateSettingEventRequested(const QHash<QString, QVariant>&,
                                                               LuDataCollection::TriggerSource)
{
}

void LuModelModuleInterface::fireExitEvent() {}

QList<QString> LuModelModuleInterface::parametersStrings() const
{
    return {};
}

bool LuModelModuleInterface::syncEnable() const
{
    return d->syncEnable;
}

void LuModelModuleInterface::setSyncEnable(bool enable)
{
    if (!d->syncEnable.set(enable))
        return;
    if (enable)
        LuMonitorModelPrivate::of(d->model).engine.wake();
    Q_EMIT syncEnableChanged();
}

void LuModelModuleInterface::registerShortcutAction(LuShortcutAction::ActionName name,
                                                    std::function<bool(const QKeyEvent&)> handler)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(d->model);
    for (LuShortcutAction* action : std::as_const(host.shortcutActions)) {
        if (action->name() == name) {
            action->setHandler(std::move(handler));
            return;
        }
    }
    auto* action = new LuShortcutAction(name, d->model);
    action->setHandler(std::move(handler));
    host.shortcutActions.append(action);
}

void LuModelModuleInterface::registerShortcutKeys(LuShortcutAction::ActionName name,
                                                  const QSet<QKeyCombination>& keys)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(d->model);
    // An action that this monitor lacks gets no keys: they belong to monitors that have it.
    for (LuShortcutAction* action : std::as_const(host.shortcutActions)) {
        if (action->name() == name)
            action->setKeys(keys);
    }
    host.refreshDuplicates();
}

void LuModelModuleInterface::unregisterFlowAction(const QString& id)
{
    d->model->unregisterFlowActions(id, this);
}

void LuModelModuleInterface::fireOnOffEvent(LuDataCollection::Action action, bool on,
                                            LuDataCollection::TriggerSource source,
                                            const QList<QString>& parameters)
{
    LuEvent event;
    event.monitor = d->model->id();
    event.module = LuUtils::className(this);
    event.action = action;
    event.onOff = true;
    event.on = on;
    event.source = source;
    event.parameters = parameters;
    LuEventLog::instance().record(std::move(event));
}

void LuModelModuleInterface::fireCustomEvent(LuDataCollection::Action action, const QString& text,
                                             LuDataCollection::TriggerSource source,
                                             const QList<QString>& parameters)
{
    LuEvent event;
    event.monitor = d->model->id();
    event.module = LuUtils::className(this);
    event.action = action;
    event.event = text;
    event.source = source;
    event.parameters = parameters;
    LuEventLog::instance().record(std::move(event));
}

void LuModelModuleInterface::forceSyncHardwareState(bool initial)
{
    if (initial)
        ZrDispatch::main()->postUnique(this, QStringLiteral("onInitialSync"), [this] { onInitialSync(); });
    LuMonitorModelPrivate::of(d->model).engine.force(this);
}

void LuModelModuleInterface::takePropertySnapshot()
{
    d->snapshot.clear();
    const QMetaObject* meta = metaObject();
    for (int i = LuModelModuleInterface::staticMetaObject.propertyOffset(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        d->snapshot.insert(QString::fromLatin1(property.name()), property.read(this));
    }
    d->hasSnapshot = true;
}

void LuModelModuleInterface::fireUpdateSettingEvent()
{
    if (!d->hasSnapshot)
        return;
    d->hasSnapshot = false;
    const QHash<QString, QVariant> recorded = std::exchange(d->snapshot, {});
    onFireUpdateSettingEventRequested(recorded, LuDataCollection::SOURCE_USER);
}

bool LuModelModuleInterface::getVCP(int code, int& value)
{
    return d->model->getVCP(code, value);
}

bool LuModelModuleInterface::setVCP(int code, int value)
{
    return d->model->setVCP(code, value);
}

bool LuModelModuleInterface::setVCP(int code, int value, bool& outOfTime)
{
    return d->model->setVCP(code, value, outOfTime);
}

void LuModelModuleInterface::postUniqueAtFront(QObject* context, const QString& key,
                                               std::function<void()>&& job)
{
    LuMonitorModelPrivate& host = LuMonitorModelPrivate::of(d->model);
    host.dispatch->postUniqueAtFront(context, key, std::move(job));
    host.engine.noteUserAction();
}

bool LuModelModuleInterface::isChanging(const QString& key)
{
    const QSharedPointer<ZrDispatch> queue = dispatch();
    queue->remove(this, key, false);
    return queue->isRunning(this, key);
}

QSharedPointer<ZrDispatch> LuModelModuleInterface::dispatch() const
{
    return d->model->dispatch();
}

QSharedPointer<MonitorInfo> LuModelModuleInterface::handler() const
{
    return d->model->info();
}

QString LuModelModuleInterface::settingSection() const
{
    return LuMonitorModelPrivate::of(d->model).sectionKey(QString::fromLatin1(metaObject()->className()));
}

QVariant LuModelModuleInterface::moduleSetting(const QString& key, const QVariant& defaultValue) const
{
    const QVariant stored =
        LuSettings::instance().value(settingSection() + QLatin1Char('/') + key, defaultValue);
    // A value of another type, from a hand-edited file say, is no value.
    if (!defaultValue.isValid() || stored.metaType() == defaultValue.metaType())
        return stored;
    QVariant converted = stored;
    return converted.convert(defaultValue.metaType()) ? converted : defaultValue;
}

void LuModelModuleInterface::markSkipped(bool skip)
{
    d->mark = skip ? Private::Mark::Yes : Private::Mark::No;
}

void LuModelModuleInterface::setModuleSetting(const QString& key, const QVariant& value)
{
    if (d->mark.set(Private::Mark::No))
        LuMonitorModelPrivate::of(d->model).setSkipped(LuUtils::className(this), false);
    LuSettings::instance().setValue(settingSection() + QLatin1Char('/') + key, value);
}

bool LuModelModuleInterface::hasModuleSetting(const QString& key) const
{
    return LuSettings::instance().contains(settingSection() + QLatin1Char('/') + key);
}

QVariant LuModelModuleInterface::monitorSetting(const QString& key, const QVariant& defaultValue) const
{
    return LuSettings::instance().value(LuMonitorModelPrivate::of(d->model).sectionKey(key), defaultValue);
}

bool LuModelModuleInterface::hasMonitorSetting(const QString& key) const
{
    return LuSettings::instance().contains(LuMonitorModelPrivate::of(d->model).sectionKey(key));
}

void LuModelModuleInterface::removeMonitorSetting(const QString& key)
{
    LuSettings::instance().remove(LuMonitorModelPrivate::of(d->model).sectionKey(key));
}

namespace {

constexpr QLatin1String CategoryAttribute("Category");
constexpr QLatin1String ValueAttribute("Value");
constexpr QLatin1String TypeAttribute("Type");
constexpr QLatin1String OnValue("on");

/// The first entry of a category.
bool findEntry(const QByteArray& schema, const QString& category, QString& value)
{
    bool found = false;
    (void)LuSchemaReader::forEachEntry(schema, [&](const QXmlStreamAttributes& attributes) {
        if (attributes.value(CategoryAttribute) != category)
            return true;
        value = attributes.value(ValueAttribute).toString();
        found = true;
        return false;
    });
    return found;
}

} // namespace

bool LuModelModuleInterface::loadVCPFunctionOnOffByCategory(const QByteArray& schema, const QString& category)
{
    QString value;
    return findEntry(schema, category, value) && value == OnValue;
}

void LuModelModuleInterface::loadVCPFunctionsOnOffByCategory(const QByteArray& schema,
                                                             const QString& category,
                                                             QHash<QString, bool>& result)
{
    (void)LuSchemaReader::forEachEntry(schema, [&](const QXmlStreamAttributes& attributes) {
        if (attributes.value(CategoryAttribute) == category)
            result.insert(attributes.value(TypeAttribute).toString(),
                          attributes.value(ValueAttribute) == OnValue);
        return true;
    });
}

QList<QString> LuModelModuleInterface::loadVCPFunctionTypesByCategory(const QByteArray& schema,
                                                                      const QString& category)
{
    QList<QString> result;
    (void)LuSchemaReader::forEachEntry(schema, [&](const QXmlStreamAttributes& attributes) {
        if (attributes.value(CategoryAttribute) == category && attributes.value(ValueAttribute) == OnValue)
            result.append(attributes.value(TypeAttribute).toString());
        return true;
    });
    return result;
}

bool LuModelModuleInterface::loadVCPFunctionStringByCategory(const QByteArray& schema,
                                                             const QString& category, QString& result)
{
    return findEntry(schema, category, result);
}

bool LuModelModuleInterface::loadVCPFunctionValueByCategory(const QByteArray& schema, const QString& category,
                                                            int& result)
{
    QString text;
    bool isNumber = false;
    const int number = findEntry(schema, category, text) ? text.toInt(&isNumber) : 0;
    if (isNumber)
        result = number;
    return isNumber;
}

// SPDX-License-Identifier: Apache-2.0
#include "LuMonitorModelPrivate.h"

#include "LuHostOptions.h"
#include "LuSchemaReader.h"
#include "LuSettings.h"

#include <LuShared/LuUtils.h>
#include <ZrCore/ZrQueueGate.h>
#include <panelcore/MonitorLink.h>

#include <QDebug>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int ColorModeCode = 0xDC;
const QString VersionsKey = QStringLiteral("connectedVersions");
const QString SkipKey = QStringLiteral("skippedAtLaunch");

/// The part of the id behind the model name, as one component of a settings key.
QString sectionOf(const MonitorInfo& info)
{
    const QString serial = info.id().mid(info.id().indexOf(QLatin1Char('@')) + 1);
    const auto encoded = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return encoded(info.modelName()) + QLatin1Char('_') + encoded(serial);
}

} // namespace

LuMonitorModelPrivate::LuMonitorModelPrivate(LuMonitorModel* model, LuMonitorModel::NodeFactory factory)
    : q(model), nodeFactory(std::move(factory)),
      dispatch(QSharedPointer<ZrDispatch>::create(model->info()->id(), model->info()->id())),
      section(sectionOf(*model->info())), engine(*this)
{
    nickName = LuSettings::instance().value(sectionKey(QStringLiteral("nickName"))).toString();
    zr::setQueueGate(model->info()->id(), [handle = model->info().toWeakRef()] {
        if (const QSharedPointer<MonitorInfo> info = handle.toStrongRef())
            MonitorLink::of(*info).awaitReady();
    });
}

LuMonitorModelPrivate::~LuMonitorModelPrivate()
{
    zr::setQueueGate(dispatch->name(), {});
}

QHash<QString, QStringList>& LuMonitorModelPrivate::packageWidgets()
{
    static QHash<QString, QStringList> widgets;
    return widgets;
}

MonitorLink& LuMonitorModelPrivate::link() const
{
    return MonitorLink::of(*q->info());
}

QString LuMonitorModelPrivate::schemaPath(const QString& suffix) const
{
    // The name comes from the monitor: nothing but a plain word names a file.
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_-]{1,32}$"));
    if (!plain.match(q->modelName()).hasMatch())
        return {};
    return LuUtils::schemaFile(QStringLiteral(":/schema/model/%1%2.xml").arg(q->modelName(), suffix));
}

void LuMonitorModelPrivate::readColorModes()
{
    if (q->isModelBuiltIn())
        return;
    const LuSchemaReader::Result schema = LuSchemaReader::readFile(schemaPath({}));
    if (schema.missing) {
        qInfo().noquote() << "[LuMonitorModel] no schema for" << q->modelName();
        return;
    }
    if (!schema.problem.isEmpty()) {
        qWarning().noquote() << "[LuMonitorModel] damaged schema, the model is not supported:"
                             << schema.problem;
        return;
    }
    for (const QXmlStreamAttributes& attributes : schema.entries) {
        if (!q->attributeConditionCheck(attributes))
            continue;
        const int code = LuSchemaReader::hexByte(attributes.value(QLatin1String("Code")));
        const QString name = attributes.value(QLatin1String("Name")).toString();
        if (code < 0 || name.isEmpty()) {
            qWarning().noquote() << "[LuMonitorModel] colour mode without a name or a code left out:"
                                 << q->modelName() << name;
            continue;
        }
        VCPNode* node =
            nodeFactory(q, code, qMax(0, LuSchemaReader::hexByte(attributes.value(QLatin1String("SHCode")))),
                        attributes.value(QLatin1String("Type")).toString(), name,
                        attributes.value(QLatin1String("Category")).toString());
        node->loadExtraValues(attributes);
        if (auto* mode = qobject_cast<LuVCPNode*>(node))
            nodes.append(mode);
    }
    supported = !nodes.isEmpty();
    if (!supported)
        qWarning().noquote() << "[LuMonitorModel] schema without a colour mode:" << q->modelName();
}

void LuMonitorModelPrivate::learnColorMode()
{
    if (!supported || !LuHostOptions::instance().autoSync)
        return;
    if (!link().probedColorMode())
        link().probeColorMode();
    const int code = link().probedColorMode().value_or(-1);
    hasToldColorMode = code >= 0;
    takeNode(nodeOfCode(code));
}

bool LuMonitorModelPrivate::syncColorMode()
{
    int code = 0;
    if (!supported || !q->getVCP(ColorModeCode, code))
        return false;
    hasToldColorMode = true;
    makeCurrent(nodeOfCode(code));
    return true;
}

void LuMonitorModelPrivate::makeCurrent(LuVCPNode* node)
{
    const bool wasHdr = q->isHDR();
    if (!takeNode(node))
        return;
    qInfo() << "[LuMonitorModel] color mode changed:" << (node ? node->displayName() : QString());
    Q_EMIT q->colorModeChanged();
    if (q->isHDR() != wasHdr)
        Q_EMIT q->isHDRChanged();
}

bool LuMonitorModelPrivate::takeNode(LuVCPNode* node)
{
    if (node && !node->isHdr())
        lastSdrNode = node;
    return currentNode.set(node);
}

LuVCPNode* LuMonitorModelPrivate::firstNode(bool hdr) const
{
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [hdr](const LuVCPNode* node) { return node->isHdr() == hdr; });
    return found == nodes.end() ? nullptr : *found;
}

LuVCPNode* LuMonitorModelPrivate::nodeOfCode(int code) const
{
    const auto found = std::find_if(nodes.begin(), nodes.end(),
                                    [code](const LuVCPNode* node) { return node->code() == code; });
    return found == nodes.end() ? nullptr : *found;
}

QList<LuShortcutAction*> LuMonitorModelPrivate::actionsWithKey(QKeyCombination keys) const
{
    QList<LuShortcutAction*> result;
    std::copy_if(shortcutActions.begin(), shortcutActions.end(), std::back_inserter(result),
                 [keys](const LuShortcutAction* action) { return action->keys().contains(keys); });
    return result;
}

void LuMonitorModelPrivate::refreshDuplicates()
{
    for (LuShortcutAction* action : std::as_const(shortcutActions)) {
        const QSet<QKeyCombination> keys = action->keys();
        action->setDuplicated(std::any_of(keys.begin(), keys.end(), [this](QKeyCombination combination) {
            return actionsWithKey(combination).size() > 1;
        }));
    }
}

bool LuMonitorModelPrivate::mustRestore() const
{
    const LuHostOptions& options = LuHostOptions::instance();
    return metBefore && options.launching && (!supported || hasToldColorMode) &&
           options.restore.value_or(
               LuSettings::instance().value(QStringLiteral("restoreAtStart"), true).toBool());
}

bool LuMonitorModelPrivate::isMetBefore(const QString& version) const
{
    return LuSettings::instance().value(sectionKey(VersionsKey)).toStringList().contains(version);
}

void LuMonitorModelPrivate::noteMet()
{
    const QString version = metVersion.exchange({});
    if (version.isEmpty() || isMetBefore(version))
        return;
    LuSettings& settings = LuSettings::instance();
    settings.setValue(sectionKey(VersionsKey), settings.value(sectionKey(VersionsKey)).toStringList()
                                                   << version);
}

void LuMonitorModelPrivate::forgetMeeting()
{
    metVersion = QString();
    LuSettings::instance().remove(sectionKey(VersionsKey));
}

void LuMonitorModelPrivate::runInitialSync()
{
    for (LuModelModuleInterface* module : std::as_const(modules))
        module->onInitialSync();
}

QStringList LuMonitorModelPrivate::skippedModules() const
{
    return LuSettings::instance().value(sectionKey(SkipKey)).toStringList();
}

void LuMonitorModelPrivate::setSkipped(const QString& className, bool skip)
{
    QStringList names = skippedModules();
    if (names.contains(className) == skip)
        return;
    if (skip)
        names.append(className);
    else
        names.removeAll(className);
    if (names.isEmpty())
        LuSettings::instance().remove(sectionKey(SkipKey));
    else
        LuSettings::instance().setValue(sectionKey(SkipKey), names);
}

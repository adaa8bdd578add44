// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The connector that the monitor shows as its main picture, on VCP 0x60, and the one place that knows which
/// value of that code a connector's name means.
///
/// On a monitor without connectors in its schema the object is inactive: it sends nothing.
class LuInputSource : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(QStringList inputSourceList READ inputSourceList CONSTANT)
    Q_PROPERTY(QString currentMainInputSource READ currentMainInputSource WRITE setCurrentMainInputSource
                   NOTIFY currentMainInputSourceChanged)

public:
    explicit LuInputSource(LuMonitorModel* model);
    ~LuInputSource() override;

    /// The connectors of this model in schema order.
    QStringList inputSourceList() const { return m_inputSourceList; }

    /// Name of the connector on screen; empty while the monitor reports one that the model does not have.
    QString currentMainInputSource() const { return m_currentMainInputSource; }
    /// Posts a job that shows another connector. A name without a value of VCP 0x60 goes out as 0.
    void setCurrentMainInputSource(const QString& name);

    /// Value of VCP 0x60 and 0x7E for a connector's name; 0 for an unknown name. Any thread.
    static int inputSourceVcpValue(const QString& name);

    /// The name that this model uses for a value of VCP 0x60 or 0x7E; empty if it has none. Any thread.
    QString inputSourceName(int vcpValue) const;

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;

Q_SIGNALS:
    void currentMainInputSourceChanged();

private:
    bool isInert() const { return m_inputSourceList.isEmpty(); }
    void syncSource(bool firstConnection);
    void fireSource(const QString& name, LuDataCollection::TriggerSource source);

    QStringList m_inputSourceList;
    ZrShared<QString> m_currentMainInputSource;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuVolume.h"

#include <ZrCore/ZrShared.h>

#include <QHash>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The gains of the equaliser in dB by band, as panels read them.
///
/// A band that was never read or set has none and counts as 0. Jobs of the monitor's queue write it, any
/// thread reads it.
class LuFrequencyGainHash : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")

public:
    using Gains = QHash<LuVolume::Frequency, int>;

    explicit LuFrequencyGainHash(QObject* parent = nullptr);
    ~LuFrequencyGainHash() override;

    Q_INVOKABLE int get(LuVolume::Frequency key) const;

    /// One writer at a time: the module's jobs, or its loading before there are any.
    void set(LuVolume::Frequency key, int gain);
    void replace(const Gains& gains) { m_gains = gains; }
    Gains gains() const { return m_gains; }

private:
    ZrShared<Gains> m_gains;
};

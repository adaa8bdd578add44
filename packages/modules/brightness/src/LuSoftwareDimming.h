// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ZrCore/ZrShared.h>

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>

class LuBrightness;
class LuMonitorModel;
class LuQuickWindow;

/// Brightness below the back-light's minimum: a black overlay on the monitor's screen that takes no input.
///
/// Belongs to LuBrightness and lives on the GUI thread; adjustOpacity() and the getters may be called from
/// any thread.
class LuSoftwareDimming : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool active READ active NOTIFY activeChanged)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)

public:
    LuSoftwareDimming(LuBrightness* owner, LuMonitorModel* model);
    ~LuSoftwareDimming() override;

    /// Allowed and wanted: the brightness goes through the dimming table.
    bool active() const { return m_enabled && m_state; }

    /// Nothing forbids it now; the panel forbids it while an ambient feature or back-light control runs.
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    /// The user wants it; true at first on a supported model. Setting it maps the present brightness anew.
    bool state() const { return m_state; }
    void setState(bool state);

    /// Takes a stored choice: as setState(), but nothing is written, stored or reported.
    void restoreState(bool state);

    /// Lets the overlay follow the brightness, 0 to 100, if the user wants dimming. Of several calls in a row
    /// the screen shows the last.
    void adjustOpacity(int brightness);

    /// Opacity that counts now, 0 to 1: the one on its way to the overlay, else the overlay's own.
    double opacity() const { return m_opacity; }

Q_SIGNALS:
    void activeChanged();
    void enabledChanged();
    void stateChanged();

private:
    void moveToScreen();
    void showOrClose();
    void announceActive(bool before);

    LuBrightness* const m_owner;
    LuMonitorModel* const m_model;
    ZrShared<bool> m_enabled{true};
    ZrShared<bool> m_state;
    ZrShared<double> m_opacity{0}; ///< Of the latest brightness.
    double m_shown = 0;            ///< What the overlay has.
    std::unique_ptr<LuQuickWindow> m_window;
};

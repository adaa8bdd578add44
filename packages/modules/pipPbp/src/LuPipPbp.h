// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

class LuInputSource;

/// Several inputs in one picture: a small window over the main picture (PiP), or the screen divided between
/// two or four inputs (PBP).
///
/// The main picture's input belongs to LuInputSource; this module owns the layout and the other windows. A
/// model without any layout in its schema has an inactive object: it sends nothing.
class LuPipPbp : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool pipEnable READ pipEnable CONSTANT)
    Q_PROPERTY(bool pbpEnable READ pbpEnable CONSTANT)
    Q_PROPERTY(bool pbp5_9Enable READ pbp5_9Enable CONSTANT)
    Q_PROPERTY(bool pbp4Enable READ pbp4Enable CONSTANT)
    Q_PROPERTY(bool pbp3_1Enable READ pbp3_1Enable CONSTANT)
    Q_PROPERTY(bool pbp2_1Enable READ pbp2_1Enable CONSTANT)
    Q_PROPERTY(bool atLeastOnePbpEnable READ atLeastOnePbpEnable CONSTANT)
    Q_PROPERTY(bool pbpAudioSourceEnable READ pbpAudioSourceEnable CONSTANT)
    Q_PROPERTY(bool swapPipPbpEnable READ swapPipPbpEnable CONSTANT)
    Q_PROPERTY(bool isPbpMode READ isPbpMode NOTIFY isPbpModeChanged)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(PIPPBPMode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(QString pipSource READ pipSource WRITE setPipSource NOTIFY pipSourceChanged)
    Q_PROPERTY(PIPSize pipSize READ pipSize WRITE setPipSize NOTIFY pipSizeChanged)
    Q_PROPERTY(PIPPosition pipPosition READ pipPosition WRITE setPipPosition NOTIFY pipPositionChanged)
    Q_PROPERTY(QString pbpSource READ pbpSource WRITE setPbpSource NOTIFY pbpSourceChanged)
    Q_PROPERTY(QString pbp5_9Source READ pbp5_9Source WRITE setPbp5_9Source NOTIFY pbp5_9SourceChanged)
    Q_PROPERTY(QString pbp3_1Source READ pbp3_1Source WRITE setPbp3_1Source NOTIFY pbp3_1SourceChanged)
    Q_PROPERTY(QString pbp2_1Source READ pbp2_1Source WRITE setPbp2_1Source NOTIFY pbp2_1SourceChanged)
    Q_PROPERTY(QStringList pbp4SourceList READ pbp4SourceList NOTIFY pbp4SourceListChanged)
    Q_PROPERTY(PBPAudioSource pbpAudioSource READ pbpAudioSource WRITE setPbpAudioSource NOTIFY
                   pbpAudioSourceChanged)

public:
    // The numbers of these enumerations go over the wire.

    /// Another number that a monitor reports is kept as it is: a layout without windows of its own.
    enum PIPPBPMode : int {
        PIP = 1,
        PBP = 2,
        PBP4 = 5,
        PBP5_9 = 6,
        PBP3_1 = 7,
        PBP2_1 = 8,
    };
    Q_ENUM(PIPPBPMode)

    enum PIPSize : int {
        PIPSmall = 0,
        PIPMedium = 1,
        PIPLarge = 2,
    };
    Q_ENUM(PIPSize)

    enum PIPPosition : int {
        PIPUpperRight = 0,
        PIPLowerRight = 1,
        PIPUpperLeft = 2,
        PIPLowerLeft = 3,
    };
    Q_ENUM(PIPPosition)

    /// Addresses of windows. Monitors know the second window of two as WindowSelectPBP2: that is what goes
    /// out for WindowSelectPIPPBP.
    enum WindowSelect : int {
        WindowSelectDisable = 0,
        WindowSelectPIPPBP = 256,
        WindowSelectPBP2 = 512,
        WindowSelectPBP3 = 1024,
        WindowSelectPBP4 = 2048,
    };
    Q_ENUM(WindowSelect)

    enum PBPAudioSource : int {
        AudioSourceMainWindow = 4,
        AudioSourceSubWindow = 5,
    };
    Q_ENUM(PBPAudioSource)

    LuPipPbp(LuMonitorModel* model, LuInputSource* inputSource);
    ~LuPipPbp() override;

    bool pipEnable() const { return m_pipEnable; }
    bool pbpEnable() const { return m_pbpEnable; }
    bool pbp5_9Enable() const { return m_pbp5_9Enable; }
    bool pbp4Enable() const { return m_pbp4Enable; }
    bool pbp3_1Enable() const { return m_pbp3_1Enable; }
    bool pbp2_1Enable() const { return m_pbp2_1Enable; }
    bool atLeastOnePbpEnable() const
    {
        return m_pbpEnable || m_pbp5_9Enable || m_pbp4Enable || m_pbp3_1Enable || m_pbp2_1Enable;
    }
    bool pbpAudioSourceEnable() const { return m_pbpAudioSourceEnable; }
    bool swapPipPbpEnable() const { return m_swapPipPbpEnable; }

    /// The mode divides the screen, whether the layout is on or not.
    bool isPbpMode() const { return isInPbpFamily(m_mode); }

    /// The layout is on.
    bool state() const { return m_state; }
    void setState(bool state);

    /// The layout in force, or the one that turning it on brings.
    PIPPBPMode mode() const { return m_mode; }
    /// Posts a job. The monitor hears of it only while the layout is on.
    void setMode(PIPPBPMode mode);

    // Connector names of the windows, kept for each layout. The setters post jobs that reach the monitor
    // whether the layout is on or not.
    QString pipSource() const { return m_pipSource; }
    void setPipSource(const QString& source);
    QString pbpSource() const { return m_pbpSource; }
    void setPbpSource(const QString& source);
    QString pbp5_9Source() const { return m_pbp5_9Source; }
    void setPbp5_9Source(const QString& source);
    QString pbp3_1Source() const { return m_pbp3_1Source; }
    void setPbp3_1Source(const QString& source);
    QString pbp2_1Source() const { return m_pbp2_1Source; }
    void setPbp2_1Source(const QString& source);
    /// Upper right, lower left, lower right; the upper left is the main picture.
    QStringList pbp4SourceList() const { return m_pbp4SourceList; }

    PIPSize pipSize() const { return m_pipSize; }
    void setPipSize(PIPSize size);
    PIPPosition pipPosition() const { return m_pipPosition; }
    void setPipPosition(PIPPosition position);
    PBPAudioSource pbpAudioSource() const { return m_pbpAudioSource; }
    void setPbpAudioSource(PBPAudioSource source);

    /// Posts a job for one window of four; of two such calls that still wait the later one counts. A window
    /// other than the second to the fourth is refused with a warning.
    Q_INVOKABLE void setPbp4Source(LuPipPbp::WindowSelect window, const QString& source);

    /// Lets the monitor exchange its windows and reads what it shows then. Nothing without the feature or
    /// while the layout is off.
    Q_INVOKABLE void swapPipPbp();

    /// Brings up a layout of the PBP family, the last one if there was one.
    Q_INVOKABLE void forceOpenPbp();

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;
    /// Mode, size and position as words; "n/a" for the last two outside of PiP.
    QList<QString> parametersStrings() const override;

    static constexpr bool isInPbpFamily(PIPPBPMode mode)
    {
        return mode == PBP || (mode >= PBP4 && mode <= PBP2_1);
    }

Q_SIGNALS:
    void isPbpModeChanged();
    /// The member has its new value; the monitor has not been told.
    void stateAboutToBeChanged();
    void stateChanged();
    void modeAboutToBeChanged();
    void modeChanged();
    void pipSourceChanged();
    void pipSizeChanged();
    void pipPositionChanged();
    void pbpSourceChanged();
    void pbp5_9SourceChanged();
    void pbp3_1SourceChanged();
    void pbp2_1SourceChanged();
    void pbp4SourceListChanged();
    void pbpAudioSourceChanged();
    /// The monitor was told to exchange its windows.
    void swapped();

private:
    /// A window with one input of its own in a layout of two.
    struct Window
    {
        PIPPBPMode mode;
        ZrShared<QString> LuPipPbp::*source;
        const char* setting;
        const char* setter;  ///< Key of its job.
        const char* setText; ///< In the log.
        const char* syncText;
        const char* applyText;
        void (LuPipPbp::*changed)();
    };
    static const QList<Window>& windows();
    static const Window& windowOf(PIPPBPMode mode);

    bool isInert() const { return !m_pipEnable && !atLeastOnePbpEnable(); }
    static int entryOf(WindowSelect window);

    // Writing. On the queue.
    void selectWindow(WindowSelect window);
    void writeWindow(WindowSelect window, const QString& source);
    void writeMode();
    void writeSizeAndPosition();
    void setWindowSource(PIPPBPMode mode, const QString& source);
    void setPbp4SourceList(const QStringList& list);

    void applyOff();
    void applyWindows();
    void applySource(PIPPBPMode mode);
    void applyPip();
    void applyPbp4();
    void applyAudioSource();

    // Reading back. On the queue.
    struct Found
    {
        bool modeDiffers = false;
        bool sizeOrPositionDiffers = false;
    };
    void syncLayout(LuSyncTasks* tasks, bool firstConnection);
    void syncMode(LuSyncTasks* tasks, PIPPBPMode reading, Found& found);
    void syncWindows(LuSyncTasks* tasks, PIPPBPMode reading, Found& found);
    void syncSource(PIPPBPMode mode);
    void syncSizeAndPosition(Found& found);
    void syncPbp4(LuSyncTasks* tasks);
    void syncAudioSource();
    void reportSync(bool wasOn, bool firstConnection, const Found& found);

    LuInputSource* const m_inputSource;
    bool m_pipEnable = false;
    bool m_pbpEnable = false;
    bool m_pbp5_9Enable = false;
    bool m_pbp4Enable = false;
    bool m_pbp3_1Enable = false;
    bool m_pbp2_1Enable = false;
    bool m_pbpAudioSourceEnable = false;
    bool m_swapPipPbpEnable = false;
    ZrShared<bool> m_state{false};
    ZrShared<PIPPBPMode> m_mode{PIP};
    ZrShared<QString> m_pipSource;
    ZrShared<PIPSize> m_pipSize{PIPSmall};
    ZrShared<PIPPosition> m_pipPosition{PIPUpperLeft};
    ZrShared<QString> m_pbpSource;
    ZrShared<QString> m_pbp5_9Source;
    ZrShared<QString> m_pbp3_1Source;
    ZrShared<QString> m_pbp2_1Source;
    ZrShared<QStringList> m_pbp4SourceList;
    ZrShared<PBPAudioSource> m_pbpAudioSource{AudioSourceMainWindow};
};

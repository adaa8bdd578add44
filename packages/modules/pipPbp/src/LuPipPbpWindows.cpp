// SPDX-License-Identifier: Apache-2.0
// The windows of a layout: which input each shows, size and place of the small one, whose sound is heard.
#include "LuPipPbp.h"

#include "LuPipPbpCodes.h"

#include <LuInputSource.h>
#include <LuShared/LuMonitorModel.h>

#include <QDebug>

#include <algorithm>

using namespace LuPipPbpCodes;

const QList<LuPipPbp::Window>& LuPipPbp::windows()
{
    static const QList<Window> table{
        {PIP, &LuPipPbp::m_pipSource, "pipSource", "setPipSource", "[LuPipPbp] setPipSource:",
         "[LuPipPbp] sync pip source changed:", "[LuPipPbp] apply pip source:", &LuPipPbp::pipSourceChanged},
        {PBP, &LuPipPbp::m_pbpSource, "pbpSource", "setPbpSource", "[LuPipPbp] setPbpSource:",
         "[LuPipPbp] sync pbp source changed:", "[LuPipPbp] apply pbp source:", &LuPipPbp::pbpSourceChanged},
        {PBP5_9, &LuPipPbp::m_pbp5_9Source, "pbp5_9Source", "setPbp5_9Source",
         "[LuPipPbp] setPbp5_9Source:", "[LuPipPbp] sync pbp5_9 source changed:",
         "[LuPipPbp] apply pbp5_9 source:", &LuPipPbp::pbp5_9SourceChanged},
        {PBP3_1, &LuPipPbp::m_pbp3_1Source, "pbp3_1Source", "setPbp3_1Source",
         "[LuPipPbp] setPbp3_1Source:", "[LuPipPbp] sync pbp3_1 source changed:",
         "[LuPipPbp] apply pbp3_1 source:", &LuPipPbp::pbp3_1SourceChanged},
        {PBP2_1, &LuPipPbp::m_pbp2_1Source, "pbp2_1Source", "setPbp2_1Source",
         "[LuPipPbp] setPbp2_1Source:", "[LuPipPbp] sync pbp2_1 source changed:",
         "[LuPipPbp] apply pbp2_1 source:", &LuPipPbp::pbp2_1SourceChanged},
    };
    return table;
}

const LuPipPbp::Window& LuPipPbp::windowOf(PIPPBPMode mode)
{
    const QList<Window>& table = windows();
    return *std::find_if(table.begin(), table.end(),
                         [mode](const Window& window) { return window.mode == mode; });
}

int LuPipPbp::entryOf(WindowSelect window)
{
    switch (window) {
    case WindowSelectPBP2:
        return 0;
    case WindowSelectPBP3:
        return 1;
    case WindowSelectPBP4:
        return 2;
    default:
        return -1;
    }
}

void LuPipPbp::selectWindow(WindowSelect window)
{
    setVCP(WindowSelection, window == WindowSelectPIPPBP ? WindowSelectPBP2 : window);
}

void LuPipPbp::writeWindow(WindowSelect window, const QString& source)
{
    selectWindow(window);
    setVCP(WindowSource, LuInputSource::inputSourceVcpValue(source));
}

void LuPipPbp::writeSizeAndPosition()
{
    setVCP(SizeAndPosition, (m_pipPosition & ByteMask) << PositionShift | (m_pipSize & ByteMask));
}

// --- the user's choice

void LuPipPbp::setWindowSource(PIPPBPMode mode, const QString& source)
{
    const Window& window = windowOf(mode);
    const QString key = QString::fromLatin1(window.setter);
    if (isInert() || isSettled(key, this->*window.source, source))
        return;
    postUniqueAtFront(this, key, [this, &window, source] {
        qInfo() << window.setText << source;
        selectWindow(WindowSelectPIPPBP);
        const bool differs = (this->*window.source).set(source);
        setVCP(WindowSource, LuInputSource::inputSourceVcpValue(source));
        setModuleSetting(QString::fromLatin1(window.setting), source);
        if (differs)
            (this->*window.changed)();
    });
}

void LuPipPbp::setPipSource(const QString& source)
{
    setWindowSource(PIP, source);
}

void LuPipPbp::setPbpSource(const QString& source)
{
    setWindowSource(PBP, source);
}

void LuPipPbp::setPbp5_9Source(const QString& source)
{
    setWindowSource(PBP5_9, source);
}

void LuPipPbp::setPbp3_1Source(const QString& source)
{
    setWindowSource(PBP3_1, source);
}

void LuPipPbp::setPbp2_1Source(const QString& source)
{
    setWindowSource(PBP2_1, source);
}

void LuPipPbp::setPbp4Source(WindowSelect window, const QString& source)
{
    const int entry = entryOf(window);
    if (entry < 0) {
        qWarning() << "[LuPipPbp] setPbp4Source WindowSelect error.";
        return;
    }
    if (isInert())
        return;
    postUniqueAtFront(this, QStringLiteral("setPbp4Source"), [this, window, entry, source] {
        qInfo() << "[LuPipPbp] setPbp4Source:" << window << source;
        QStringList list = m_pbp4SourceList;
        if (list.at(entry) == source)
            return;
        list[entry] = source;
        writeWindow(window, source);
        setPbp4SourceList(list);
    });
}

void LuPipPbp::setPbp4SourceList(const QStringList& list)
{
    if (m_pbp4SourceList == list)
        return;
    if (list.size() != Pbp4Windows) {
        qWarning() << "[LuPipPbp] setPbp4SourceList inSourceList size incorrect.";
        return;
    }
    m_pbp4SourceList = list;
    setModuleSetting(Pbp4SourceListKey, list);
    Q_EMIT pbp4SourceListChanged();
}

void LuPipPbp::setPipSize(PIPSize size)
{
    const QString key = QStringLiteral("setPipSize");
    if (isInert() || isSettled(key, m_pipSize, size))
        return;
    postUniqueAtFront(this, key, [this, size] {
        takeAsked(m_pipSize, size, PipSizeKey, "[LuPipPbp] setPipSize:", &LuPipPbp::pipSizeChanged,
                  [this] { writeSizeAndPosition(); });
    });
}

void LuPipPbp::setPipPosition(PIPPosition position)
{
    const QString key = QStringLiteral("setPipPosition");
    if (isInert() || isSettled(key, m_pipPosition, position))
        return;
    postUniqueAtFront(this, key, [this, position] {
        takeAsked(m_pipPosition, position, PipPositionKey,
                  "[LuPipPbp] setPipPosition:", &LuPipPbp::pipPositionChanged,
                  [this] { writeSizeAndPosition(); });
    });
}

void LuPipPbp::setPbpAudioSource(PBPAudioSource source)
{
    const QString key = QStringLiteral("setPbpAudioSource");
    if (isInert() || isSettled(key, m_pbpAudioSource, source))
        return;
    postUniqueAtFront(this, key, [this, source] {
        takeAsked(m_pbpAudioSource, source, PbpAudioSourceKey,
                  "[LuPipPbp] setPbpAudioSource:", &LuPipPbp::pbpAudioSourceChanged,
                  [this, source] { setVCP(AudioSource, source); });
    });
}

// --- launch

void LuPipPbp::applyWindows()
{
    // The two layouts with a fall-through bring the windows of the following ones up to date as well: the
    // monitor keeps them for when they are shown, and ignores what it lacks.
    switch (m_mode) {
    case PIP:
        applyPip();
        break;
    case PBP:
        applySource(PBP);
        break;
    case PBP5_9:
        applySource(PBP5_9);
        break;
    case PBP3_1:
        applySource(PBP3_1);
        [[fallthrough]];
    case PBP2_1:
        applySource(PBP2_1);
        [[fallthrough]];
    case PBP4:
        applyPbp4();
        break;
    }
}

void LuPipPbp::applyPip()
{
    qInfo() << windowOf(PIP).applyText << m_pipSource << "size:" << m_pipSize << "position:" << m_pipPosition;
    writeWindow(WindowSelectPIPPBP, m_pipSource);
    writeSizeAndPosition();
    Q_EMIT pipSourceChanged();
    Q_EMIT pipSizeChanged();
    Q_EMIT pipPositionChanged();
}

void LuPipPbp::applySource(PIPPBPMode mode)
{
    const Window& window = windowOf(mode);
    const QString source = this->*window.source;
    qInfo() << window.applyText << source;
    writeWindow(WindowSelectPIPPBP, source);
    (this->*window.changed)();
}

void LuPipPbp::applyPbp4()
{
    const QStringList list = m_pbp4SourceList;
    qInfo() << "[LuPipPbp] apply pbp4 sources:" << list;
    for (const WindowSelect window : {WindowSelectPBP2, WindowSelectPBP3, WindowSelectPBP4})
        writeWindow(window, list.at(entryOf(window)));
    Q_EMIT pbp4SourceListChanged();
}

void LuPipPbp::applyAudioSource()
{
    qInfo() << "[LuPipPbp] apply pbp audio source:" << m_pbpAudioSource;
    setVCP(AudioSource, m_pbpAudioSource);
    Q_EMIT pbpAudioSourceChanged();
}

// --- read-back

void LuPipPbp::syncWindows(LuSyncTasks* tasks, PIPPBPMode reading, Found& found)
{
    switch (reading) {
    case PIP:
        tasks->addSubTask([this] { syncSource(PIP); });
        tasks->addSubTask([this, &found] { syncSizeAndPosition(found); });
        break;
    case PBP:
    case PBP5_9:
    case PBP3_1:
    case PBP2_1:
        tasks->addSubTask([this, reading] { syncSource(reading); });
        break;
    case PBP4:
        syncPbp4(tasks);
        break;
    }
}

void LuPipPbp::syncSource(PIPPBPMode mode)
{
    const Window& window = windowOf(mode);
    int value = 0;
    selectWindow(WindowSelectPIPPBP);
    if (getVCP(WindowSource, value))
        takeReported(this->*window.source, m_inputSource->inputSourceName(value),
                     QString::fromLatin1(window.setting), window.syncText, window.changed);
}

void LuPipPbp::syncSizeAndPosition(Found& found)
{
    int value = 0;
    if (!getVCP(SizeAndPosition, value))
        return;
    const bool sizeDiffers = takeReported(m_pipSize, PIPSize(value & ByteMask), PipSizeKey,
                                          "[LuPipPbp] sync pip size changed:", &LuPipPbp::pipSizeChanged);
    const bool positionDiffers =
        takeReported(m_pipPosition, PIPPosition(value >> PositionShift & ByteMask), PipPositionKey,
                     "[LuPipPbp] sync pip position changed:", &LuPipPbp::pipPositionChanged);
    found.sizeOrPositionDiffers = sizeDiffers || positionDiffers;
}

void LuPipPbp::syncPbp4(LuSyncTasks* tasks)
{
    const QStringList stored = m_pbp4SourceList;
    QStringList list;
    for (const WindowSelect window : {WindowSelectPBP2, WindowSelectPBP3, WindowSelectPBP4}) {
        tasks->addSubTask([this, window, &stored, &list] {
            int value = 0;
            selectWindow(window);
            // One window that gave no answer does not disturb what is known of it.
            list.append(getVCP(WindowSource, value) ? m_inputSource->inputSourceName(value)
                                                    : stored.value(entryOf(window)));
        });
    }
    if (stored.size() == Pbp4Windows)
        takeReported(m_pbp4SourceList, list, Pbp4SourceListKey,
                     "[LuPipPbp] sync pbp4 sources changed:", &LuPipPbp::pbp4SourceListChanged);
}

void LuPipPbp::syncAudioSource()
{
    int value = 0;
    if (getVCP(AudioSource, value))
        takeReported(m_pbpAudioSource, PBPAudioSource(value), PbpAudioSourceKey,
                     "[LuPipPbp] sync pbp audio source changed:", &LuPipPbp::pbpAudioSourceChanged);
}

// SPDX-License-Identifier: Apache-2.0
#include <PanelCore/MonitorModel.h>

#include "MonitorLink.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QThread>

namespace {

// MCCS 2.2.
constexpr int BrightnessCode = 0x10;
constexpr int VolumeCode = 0x62;
constexpr int MuteCode = 0x8D;
constexpr int Muted = 1;
constexpr int NotMuted = 2;

/// A write on the GUI thread gives up after this time, in ms.
constexpr int GuiWriteLimitMs = 150;

} // namespace

class MonitorModel::Private
{
public:
    explicit Private(MonitorModel* model, QSharedPointer<MonitorInfo> handle)
        : q(model), info(std::move(handle))
    {
    }

    void findScreen()
    {
        QScreen* found = nullptr;
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* candidate : screens) {
            if (!info->screenName().isEmpty() && candidate->name() == info->screenName())
                found = candidate;
        }
        if (found == screen)
            return;
        if (screen)
            QObject::disconnect(screen, nullptr, q, nullptr);
        screen = found;
        if (screen)
            QObject::connect(screen, &QScreen::geometryChanged, q, &MonitorModel::screenChanged);
        Q_EMIT q->screenChanged();
    }

    MonitorModel* q;
    QSharedPointer<MonitorInfo> info;
    QPointer<QScreen> screen;
};

MonitorModel::MonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info)
    : QObject(parent), d(new Private(this, std::move(info)))
{
    if (!qGuiApp)
        return;
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this] { d->findScreen(); });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this] { d->findScreen(); });
    MonitorLink::of(*d->info).setScreenObserver([this] { d->findScreen(); });
    d->findScreen();
}

MonitorModel::~MonitorModel()
{
    MonitorLink::of(*d->info).setScreenObserver({});
}

QString MonitorModel::modelName() const
{
    return d->info->modelName();
}

QSharedPointer<MonitorInfo> MonitorModel::info() const
{
    return d->info;
}

QScreen* MonitorModel::screen() const
{
    return d->screen;
}

double MonitorModel::getRefreshRate() const
{
    return d->screen ? d->screen->refreshRate() : 0.0;
}

bool MonitorModel::getVCP(int code, int& value)
{
    return MonitorLink::of(*d->info).getVCP(code, value);
}

bool MonitorModel::getVCP(int code, int& value, int& maximum)
{
    return MonitorLink::of(*d->info).getVCP(code, value, &maximum);
}

bool MonitorModel::setVCP(int code, int value)
{
    bool outOfTime = false;
    return setVCP(code, value, outOfTime);
}

bool MonitorModel::setVCP(int code, int value, bool& outOfTime)
{
    MonitorLink& link = MonitorLink::of(*d->info);
    outOfTime = false;
    if (QThread::currentThread() != thread())
        return link.setVCP(code, value);
    // The GUI thread must not wait for a bus that hangs; the queue may.
    const std::optional<bool> written = link.setVCPWithin(code, value, GuiWriteLimitMs);
    outOfTime = !written;
    return written.value_or(false);
}

bool MonitorModel::getBrightness(int& value)
{
    return getVCP(BrightnessCode, value);
}

bool MonitorModel::setBrightness(int value, int)
{
    return setVCP(BrightnessCode, value);
}

bool MonitorModel::getVolume(int& value, int& maximum)
{
    return getVCP(VolumeCode, value, maximum);
}

bool MonitorModel::setVolume(int value, int)
{
    return setVCP(VolumeCode, value);
}

bool MonitorModel::getMute(bool& muted)
{
    int value = 0;
    if (!getVCP(MuteCode, value))
        return false;
    muted = value == Muted;
    return true;
}

bool MonitorModel::setMute(bool muted, int)
{
    return setVCP(MuteCode, muted ? Muted : NotMuted);
}

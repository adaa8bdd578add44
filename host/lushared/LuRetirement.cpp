// SPDX-License-Identifier: Apache-2.0
#include "LuRetirement.h"

#include <LuShared/LuMonitorModel.h>
#include <PanelCore/MonitorInfo.h>
#include <ZrCore/ZrDispatch.h>

#include <QDebug>
#include <QElapsedTimer>

#include <algorithm>
#include <vector>

struct LuRetirement::Private
{
    struct Leaver
    {
        QSharedPointer<ZrDispatch> queue;
        QSharedPointer<MonitorInfo> info;
        LuMonitorModel* model = nullptr;
    };

    std::vector<Leaver> leavers;

    void destroyEnded()
    {
        for (auto it = leavers.begin(); it != leavers.end();) {
            if (!it->queue->hasEnded()) {
                ++it;
                continue;
            }
            const Leaver leaver = *it;
            it = leavers.erase(it);
            delete leaver.model;
        }
    }
};

LuRetirement::LuRetirement() : d(std::make_shared<Private>()) {}

LuRetirement::~LuRetirement()
{
    (void)end(0);
}

void LuRetirement::add(const QSharedPointer<ZrDispatch>& queue, const QSharedPointer<MonitorInfo>& info,
                       LuMonitorModel* model)
{
    if (model)
        model->setParent(nullptr);
    d->leavers.push_back({queue, info, model});
    queue->retire([weak = std::weak_ptr(d)] {
        if (const auto self = weak.lock())
            self->destroyEnded();
    });
    d->destroyEnded();
}

bool LuRetirement::end(qint64 limitMs)
{
    QElapsedTimer elapsed;
    elapsed.start();
    for (const Private::Leaver& leaver : d->leavers)
        (void)leaver.queue->waitForEnd(std::max<qint64>(0, limitMs - elapsed.elapsed()));
    d->destroyEnded();
    // Never destroyed.
    static auto* const left = new std::vector<Private::Leaver>;
    for (const Private::Leaver& leaver : d->leavers) {
        qWarning().noquote() << "[LuRetirement] the bus of" << leaver.info->id()
                             << "hangs; it is left to the end of the program";
        left->push_back(leaver);
    }
    const bool ended = d->leavers.empty();
    d->leavers.clear();
    return ended;
}

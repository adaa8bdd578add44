// SPDX-License-Identifier: Apache-2.0
#include "services/pulse/PulseConnection.h"

#include <QHash>

#include <algorithm>
#include <mutex>
#include <pulse/pulseaudio.h>
#include <utility>

namespace services {

namespace {

constexpr pa_usec_t FirstWait = 100'000;
constexpr pa_usec_t LongestWait = 5'000'000;

/// What PulseAudio shows while it has no output at all.
const QString NoOutput = QStringLiteral("auto_null");

void release(pa_operation* operation)
{
    if (operation)
        pa_operation_unref(operation);
}

/// Holds the server's thread still while another one talks to it. The library's own lock would do; the second
/// one lets the thread sanitizer see it, and is taken inside of the first one everywhere.
class Lock
{
public:
    Lock(pa_threaded_mainloop* loop, std::recursive_mutex& mutex) : m_loop(loop)
    {
        pa_threaded_mainloop_lock(loop);
        m_guard = std::unique_lock(mutex);
    }
    ~Lock()
    {
        m_guard.unlock();
        pa_threaded_mainloop_unlock(m_loop);
    }
    Q_DISABLE_COPY_MOVE(Lock)

private:
    pa_threaded_mainloop* m_loop;
    std::unique_lock<std::recursive_mutex> m_guard;
};

} // namespace

// Everything but the construction and the end runs on the main loop's thread or under its lock.
class PulseConnection::Private
{
public:
    explicit Private(Listener listener) : m_listener(std::move(listener)) {}

    void start();
    void stop();
    void setDefault(const QString& name);
    void setVolume(const QString& name, int percent);

    pa_threaded_mainloop* loop = nullptr;
    std::recursive_mutex mutex; ///< Over everything below.

private:
    /// What a sink's own information lacks.
    struct Sink
    {
        PulseOutput output;
        quint32 card = PA_INVALID_INDEX;
        QString port;
        pa_cvolume channels = {};
        bool muted = false;
    };

    void connectToServer();
    void disconnectFromServer();
    void connectLater();
    void onState();
    void query();
    void onSink(const pa_sink_info& info);
    void onCard(const pa_card_info& info);
    void onQueried();
    void sendVolume();
    void publish();

    Listener m_listener;
    pa_context* m_context = nullptr;
    pa_time_event* m_retry = nullptr;
    pa_usec_t m_wait = FirstWait;
    QHash<quint32, Sink> m_sinks;
    QHash<std::pair<quint32, QString>, QString> m_monitorNames; ///< By card and port.
    QString m_default;
    int m_queries = 0;    ///< Under way.
    bool m_stale = false; ///< Something changed while queries were under way.
    QHash<QString, int> m_wantedVolumes;
    QString m_settingVolumeOf;
    int m_settingPercent = 0;
    PulseState m_published;
};

void PulseConnection::Private::start()
{
    const std::lock_guard guard(mutex);
    loop = pa_threaded_mainloop_new();
    pa_threaded_mainloop_set_name(loop, "lumen-sound");
    connectToServer();
    pa_threaded_mainloop_start(loop);
}

void PulseConnection::Private::stop()
{
    // No lock: it waits for the thread, which takes it.
    pa_threaded_mainloop_stop(loop);
    const std::lock_guard guard(mutex);
    m_listener = nullptr;
    if (m_retry)
        pa_threaded_mainloop_get_api(loop)->time_free(m_retry);
    disconnectFromServer();
    pa_threaded_mainloop_free(loop);
}

void PulseConnection::Private::connectToServer()
{
    m_context = pa_context_new(pa_threaded_mainloop_get_api(loop), "Lumen Desk");
    pa_context_set_state_callback(
        m_context,
        [](pa_context*, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            self->onState();
        },
        this);
    pa_context_set_subscribe_callback(
        m_context,
        [](pa_context*, pa_subscription_event_type_t, uint32_t, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            self->query();
        },
        this);
    // A failure is told through the state.
    pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
}

void PulseConnection::Private::disconnectFromServer()
{
    pa_context_set_state_callback(m_context, nullptr, nullptr);
    pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
    m_context = nullptr;
    m_sinks.clear();
    m_monitorNames.clear();
    m_default.clear();
    m_queries = 0;
    m_stale = false;
    m_wantedVolumes.clear();
    m_settingVolumeOf.clear();
    publish();
}

void PulseConnection::Private::connectLater()
{
    const auto retry = [](pa_mainloop_api* api, pa_time_event* event, const timeval*, void* data) {
        auto* const self = static_cast<Private*>(data);
        const std::lock_guard guard(self->mutex);
        api->time_free(event);
        self->m_retry = nullptr;
        self->disconnectFromServer();
        self->connectToServer();
    };
    if (m_retry)
        return;
    m_retry = pa_context_rttime_new(m_context, pa_rtclock_now() + m_wait, retry, this);
    m_wait = std::min(m_wait * 2, LongestWait);
}

void PulseConnection::Private::onState()
{
    switch (pa_context_get_state(m_context)) {
    case PA_CONTEXT_READY:
        m_wait = FirstWait;
        release(pa_context_subscribe(m_context,
                                     pa_subscription_mask_t(PA_SUBSCRIPTION_MASK_SINK |
                                                            PA_SUBSCRIPTION_MASK_SERVER |
                                                            PA_SUBSCRIPTION_MASK_CARD),
                                     nullptr, nullptr));
        query();
        break;
    case PA_CONTEXT_FAILED:
    case PA_CONTEXT_TERMINATED:
        // The context is still in use by its caller here: it is replaced in the next turn.
        m_sinks.clear();
        m_default.clear();
        publish();
        connectLater();
        break;
    default:
        break;
    }
}

// The three lists together make one state: what changes meanwhile is asked for once more, after them.
void PulseConnection::Private::query()
{
    if (m_queries > 0) {
        m_stale = true;
        return;
    }
    m_sinks.clear();
    m_monitorNames.clear();
    m_queries = 3;
    release(pa_context_get_server_info(
        m_context,
        [](pa_context*, const pa_server_info* info, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            self->m_default = info ? QString::fromUtf8(info->default_sink_name) : QString();
            self->onQueried();
        },
        this));
    release(pa_context_get_card_info_list(
        m_context,
        [](pa_context*, const pa_card_info* info, int end, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            if (end)
                self->onQueried();
            else
                self->onCard(*info);
        },
        this));
    release(pa_context_get_sink_info_list(
        m_context,
        [](pa_context*, const pa_sink_info* info, int end, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            if (end)
                self->onQueried();
            else
                self->onSink(*info);
        },
        this));
}

void PulseConnection::Private::onSink(const pa_sink_info& info)
{
    const QString name = QString::fromUtf8(info.name);
    if (name == NoOutput)
        return;
    Sink sink;
    sink.output = {info.index, name, QString::fromUtf8(info.description),
                   percentOfVolume(pa_cvolume_max(&info.volume))};
    sink.card = info.card;
    sink.port = info.active_port ? QString::fromUtf8(info.active_port->name) : QString();
    sink.channels = info.volume;
    sink.muted = info.mute != 0;
    m_sinks.insert(info.index, sink);
}

void PulseConnection::Private::onCard(const pa_card_info& info)
{
    for (uint32_t i = 0; i < info.n_ports; ++i) {
        const pa_card_port_info& port = *info.ports[i];
        if (const char* const name = pa_proplist_gets(port.proplist, "device.product.name"))
            m_monitorNames.insert({info.index, QString::fromUtf8(port.name)}, QString::fromUtf8(name));
    }
}

void PulseConnection::Private::onQueried()
{
    if (--m_queries > 0)
        return;
    if (std::exchange(m_stale, false))
        return query();
    publish();
    sendVolume();
}

void PulseConnection::Private::publish()
{
    PulseState state;
    state.defaultName = m_default;
    for (const Sink& sink : std::as_const(m_sinks)) {
        PulseOutput output = sink.output;
        output.description = outputTitle(output.description, m_monitorNames.value({sink.card, sink.port}));
        // The last word of the person stands until the server has taken it.
        output.volume = m_wantedVolumes.value(output.name, output.volume);
        state.outputs.append(output);
    }
    std::sort(state.outputs.begin(), state.outputs.end(),
              [](const PulseOutput& one, const PulseOutput& two) { return one.index < two.index; });
    if (!m_listener || (state.outputs == m_published.outputs && state.defaultName == m_published.defaultName))
        return;
    m_published = state;
    m_listener(state);
}

void PulseConnection::Private::setDefault(const QString& name)
{
    if (m_context && pa_context_get_state(m_context) == PA_CONTEXT_READY)
        release(pa_context_set_default_sink(m_context, name.toUtf8().constData(), nullptr, nullptr));
}

void PulseConnection::Private::setVolume(const QString& name, int percent)
{
    if (!m_context || pa_context_get_state(m_context) != PA_CONTEXT_READY)
        return;
    m_wantedVolumes.insert(name, percent);
    sendVolume();
}

void PulseConnection::Private::sendVolume()
{
    if (!m_settingVolumeOf.isEmpty() || m_wantedVolumes.isEmpty() || m_queries > 0)
        return;
    const QString name = m_wantedVolumes.constBegin().key();
    const int percent = m_wantedVolumes.constBegin().value();
    const auto sink = std::find_if(m_sinks.constBegin(), m_sinks.constEnd(),
                                   [&](const Sink& each) { return each.output.name == name; });
    if (sink == m_sinks.constEnd()) {
        m_wantedVolumes.remove(name);
        return sendVolume();
    }
    pa_cvolume channels = sink->channels;
    pa_cvolume_scale(&channels, volumeOfPercent(percent));
    if (sink->muted && percent > 0)
        release(pa_context_set_sink_mute_by_index(m_context, sink->output.index, 0, nullptr, nullptr));
    m_settingVolumeOf = name;
    m_settingPercent = percent;
    release(pa_context_set_sink_volume_by_index(
        m_context, sink->output.index, &channels,
        [](pa_context*, int, void* data) {
            auto* const self = static_cast<Private*>(data);
            const std::lock_guard guard(self->mutex);
            const QString done = std::exchange(self->m_settingVolumeOf, QString());
            if (self->m_wantedVolumes.value(done, -1) == self->m_settingPercent)
                self->m_wantedVolumes.remove(done);
            // The server's own word, also where it refused; sends the next value behind it.
            self->query();
        },
        this));
}

PulseConnection::PulseConnection(Listener listener) : d(std::make_unique<Private>(std::move(listener)))
{
    d->start();
}

PulseConnection::~PulseConnection()
{
    d->stop();
}

void PulseConnection::setDefault(const QString& name)
{
    const Lock lock(d->loop, d->mutex);
    d->setDefault(name);
}

void PulseConnection::setVolume(const QString& name, int percent)
{
    const Lock lock(d->loop, d->mutex);
    d->setVolume(name, percent);
}

} // namespace services

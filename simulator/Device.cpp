// SPDX-License-Identifier: Apache-2.0
#include "Device.h"

#include "JsonNumber.h"
#include "MakeCapabilities.h"
#include "MakeEdid.h"

#include <algorithm>

namespace sim {

using ddc::BusStatus;

namespace {

// Bytes of DDC/CI. The destination 0x6E of a request and the source 0x50 of a reply are not on the wire as
// data, but count for the checksums.
constexpr std::uint8_t DisplayAddress = 0x6E;
constexpr std::uint8_t HostAddress = 0x51;
constexpr std::uint8_t ReplySource = 0x50;
constexpr std::uint8_t LengthFlag = 0x80;
constexpr std::uint8_t GetVcp = 0x01;
constexpr std::uint8_t GetVcpReply = 0x02;
constexpr std::uint8_t SetVcp = 0x03;
constexpr std::uint8_t SaveSettings = 0x0C;
constexpr std::uint8_t GetCapabilities = 0xF3;
constexpr std::uint8_t CapabilitiesReply = 0xE3;
constexpr std::uint8_t UnsupportedCode = 0x01;

QByteArray frame(std::span<const std::uint8_t> payload)
{
    QByteArray bytes;
    bytes.append(static_cast<char>(DisplayAddress));
    bytes.append(static_cast<char>(LengthFlag | payload.size()));
    for (const std::uint8_t byte : payload)
        bytes.append(static_cast<char>(byte));
    std::uint8_t sum = ReplySource;
    for (const char byte : std::as_const(bytes))
        sum ^= static_cast<std::uint8_t>(byte);
    bytes.append(static_cast<char>(sum));
    return bytes;
}

QByteArray nullMessage()
{
    return frame({});
}

QByteArray toBytes(std::span<const std::uint8_t> bytes)
{
    return QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
}

} // namespace

Device::Device(std::shared_ptr<const ModelDescription> model, const QString& serial, const Options& options)
    : m_model(std::move(model)), m_serial(serial), m_edid(makeEdid(*m_model, serial)),
      m_capabilities(makeCapabilities(*m_model)), m_strict(options.strictTiming),
      m_clock(options.clock ? options.clock : [] { return Clock::now(); }),
      m_firmware(m_model, options.roomClock ? options.roomClock : m_clock), m_faults(options.seed),
      m_log(options)
{
}

// --- I2C

BusStatus Device::write(std::uint8_t address, std::span<const std::uint8_t> bytes)
{
    std::unique_lock lock(m_mutex);
    const auto begun = now();
    BusStatus status = BusStatus::Nack;
    if (!m_plugged)
        status = BusStatus::Gone;
    else if (isDropped())
        status = refuse(bytes, begun);
    else if (address == ddc::EdidAddress)
        status = writeEdid(bytes);
    else if (address == ddc::DdcCiAddress && m_model->hasDdcCi)
        status = writeFrame(lock, bytes);
    m_log.addRaw({m_log.milliseconds(begun), address, false, toBytes(bytes), status});
    return status;
}

BusStatus Device::read(std::uint8_t address, std::span<std::uint8_t> bytes)
{
    const std::lock_guard lock(m_mutex);
    const auto begun = now();
    BusStatus status = BusStatus::Nack;
    if (!m_plugged) {
        status = BusStatus::Gone;
    } else if (isDropped()) {
        status = BusStatus::Nack;
    } else if (address == ddc::EdidAddress) {
        readEdid(bytes);
        status = BusStatus::Ok;
    } else if (address == ddc::DdcCiAddress && m_model->hasDdcCi) {
        status = readReply(bytes);
    }
    m_log.addRaw({m_log.milliseconds(begun), address, true,
                  status == BusStatus::Ok ? toBytes(bytes) : QByteArray(), status});
    return status;
}

BusStatus Device::refuse(std::span<const std::uint8_t> bytes, Clock::time_point begun)
{
    dropPending();
    const Request request = parse(bytes);
    log(request, begun, false, request.kind == Request::Kind::Set ? request.value : 0,
        m_firmware.selected(request.code));
    return BusStatus::Nack;
}

BusStatus Device::writeEdid(std::span<const std::uint8_t> bytes)
{
    // The memory is write protected: an offset is all that it takes.
    if (bytes.size() > 1)
        return BusStatus::Nack;
    if (!bytes.empty())
        m_edidOffset = bytes[0];
    return BusStatus::Ok;
}

void Device::readEdid(std::span<std::uint8_t> bytes)
{
    for (std::uint8_t& byte : bytes) {
        const bool inside = m_edidOffset < m_edid.size();
        byte = inside ? static_cast<std::uint8_t>(m_edid[m_edidOffset]) : 0xFF;
        ++m_edidOffset; // wraps as the memory's own counter does
    }
}

// --- DDC/CI

Device::Request Device::parse(std::span<const std::uint8_t> bytes)
{
    if (bytes.size() < 4 || bytes[0] != HostAddress || !(bytes[1] & LengthFlag))
        return {};
    const std::size_t length = bytes[1] & 0x7F;
    if (bytes.size() != length + 3)
        return {};
    std::uint8_t sum = DisplayAddress;
    for (const std::uint8_t byte : bytes)
        sum ^= byte;
    if (sum != 0)
        return {};
    const auto word = [&](std::size_t at) { return bytes[at] << 8 | bytes[at + 1]; };
    switch (bytes[2]) {
    case GetVcp:
        return length == 2 ? Request{Request::Kind::Get, bytes[3], 0} : Request{};
    case SetVcp:
        return length == 4 ? Request{Request::Kind::Set, bytes[3], word(4)} : Request{};
    case SaveSettings:
        return length == 1 ? Request{Request::Kind::Save, 0, 0} : Request{};
    case GetCapabilities:
        return length == 3 ? Request{Request::Kind::Capabilities, 0, word(3)} : Request{};
    default:
        return {};
    }
}

void Device::log(const Request& request, Clock::time_point begun, bool ok, int value,
                 std::optional<int> window)
{
    if (request.kind != Request::Kind::Get && request.kind != Request::Kind::Set)
        return;
    const Op op = request.kind == Request::Kind::Get ? Op::Get : Op::Set;
    m_log.add({0, m_log.milliseconds(begun), op, static_cast<std::uint8_t>(request.code),
               static_cast<std::uint16_t>(value), ok, window});
}

void Device::dropPending()
{
    if (!m_pending)
        return;
    log(m_pending->request, m_pending->begun, false, 0, m_pending->window);
    m_pending.reset();
}

bool Device::tooEarly(const QString& what)
{
    const auto left = m_busyUntil - now();
    if (!m_strict || left <= Clock::duration::zero())
        return false;
    ++m_violations.earlyFrames;
    m_violations.last = QStringLiteral("%1 came %2 ms before the monitor was ready")
                            .arg(what)
                            .arg(std::chrono::duration<double, std::milli>(left).count());
    return true;
}

BusStatus Device::hang(std::unique_lock<std::mutex>& lock, Milliseconds time)
{
    const quint64 unplugged = m_unplugged;
    // Real time, whatever clock the rules go by: the caller's thread is really held. By the system's clock,
    // since the thread sanitizer does not know waits by the steady one.
    const bool gone = m_plugChanged.wait_until(lock, std::chrono::system_clock::now() + time,
                                               [&] { return m_unplugged != unplugged; });
    return gone ? BusStatus::Gone : BusStatus::Timeout;
}

BusStatus Device::writeFrame(std::unique_lock<std::mutex>& lock, std::span<const std::uint8_t> bytes)
{
    // Empty writes and single bytes are how hosts ask whether somebody is there.
    if (bytes.size() <= 1)
        return BusStatus::Ok;
    dropPending();
    const auto begun = now();
    const Request request = parse(bytes);
    // A window or band is that of before the frame: a selection tells nothing about itself.
    const auto window = m_firmware.selected(request.code);
    const bool isSet = request.kind == Request::Kind::Set;
    const int value = isSet ? request.value : 0;
    if (tooEarly(isSet ? QStringLiteral("a set of %1").arg(codeName(request.code))
                       : QStringLiteral("a frame"))) {
        log(request, begun, false, value, window);
        return BusStatus::Nack;
    }
    if (request.kind == Request::Kind::None) {
        m_faults.endTransaction();
        return BusStatus::Ok;
    }
    const bool vcp = request.kind == Request::Kind::Get || isSet;
    const Op op = isSet || request.kind == Request::Kind::Save ? Op::Set : Op::Get;
    const auto fault = m_faults.begin({op, vcp ? request.code : -1, request.value}, begun);
    if (fault && (fault->kind == FaultKind::Nack || fault->kind == FaultKind::Timeout)) {
        const BusStatus status = fault->kind == FaultKind::Nack ? BusStatus::Nack : hang(lock, fault->blocks);
        log(request, begun, false, value, window);
        m_faults.end(false, now());
        return status;
    }
    if (op == Op::Get) {
        answer(request, fault, begun);
        return BusStatus::Ok;
    }
    // A fault of the reply that was asked for on a set: acknowledged, never understood.
    if (!fault)
        execute(request);
    log(request, begun, !fault, value, window);
    m_faults.end(!fault, now());
    return BusStatus::Ok;
}

void Device::execute(const Request& request)
{
    if (request.kind == Request::Kind::Save) {
        ++m_saved;
        m_busyUntil = now() + SaveWait;
        return;
    }
    const quint64 before = m_firmware.revision();
    m_firmware.set(request.code, static_cast<std::uint16_t>(request.value));
    const auto drop = m_model->drops.constFind(request.code);
    if (drop != m_model->drops.constEnd() && m_firmware.revision() != before)
        m_droppedUntil = now() + Milliseconds(*drop);
    m_busyUntil = now() + std::max(SetWait, Milliseconds(m_model->busy.value(request.code)));
}

QByteArray Device::reply(const Request& request, std::optional<std::uint16_t>* value)
{
    if (request.kind == Request::Kind::Capabilities) {
        const QByteArray part = m_capabilities.mid(
            request.value,
            std::max<qsizetype>(0, std::min<qsizetype>(FragmentSize, m_capabilities.size() - request.value)));
        QByteArray payload;
        payload.append(static_cast<char>(CapabilitiesReply));
        payload.append(static_cast<char>(request.value >> 8));
        payload.append(static_cast<char>(request.value & 0xFF));
        payload.append(part);
        return frame({reinterpret_cast<const std::uint8_t*>(payload.constData()),
                      static_cast<std::size_t>(payload.size())});
    }
    const auto code = static_cast<std::uint8_t>(request.code);
    if (!m_firmware.supports(code)) {
        const std::uint8_t payload[] = {GetVcpReply, UnsupportedCode, code, 0, 0, 0, 0, 0};
        return frame(payload);
    }
    const int maximum = m_firmware.maximum(code);
    const bool momentary = m_model->codes[code].type == CodeDescription::Type::Command;
    *value = m_firmware.get(code);
    const std::uint8_t payload[] = {GetVcpReply,
                                    0,
                                    code,
                                    static_cast<std::uint8_t>(momentary),
                                    static_cast<std::uint8_t>(maximum >> 8),
                                    static_cast<std::uint8_t>(maximum & 0xFF),
                                    static_cast<std::uint8_t>(**value >> 8),
                                    static_cast<std::uint8_t>(**value & 0xFF)};
    return frame(payload);
}

void Device::answer(const Request& request, const std::optional<Fault>& fault, Clock::time_point begun)
{
    Pending pending;
    pending.request = request;
    pending.begun = begun;
    pending.readyAt = m_strict ? begun + ReplyWait : begun;
    pending.window = request.kind == Request::Kind::Get ? m_firmware.selected(request.code) : std::nullopt;
    pending.reply = reply(request, &pending.value);
    if (fault) {
        pending.value.reset();
        pending.spoilt = true;
        if (fault->kind == FaultKind::Null)
            pending.reply = nullMessage();
        else if (fault->kind == FaultKind::Garbage)
            pending.reply = m_faults.garbage();
        else
            pending.reply.back() = static_cast<char>(pending.reply.back() ^ 0x55);
    }
    m_pending = pending;
}

BusStatus Device::readReply(std::span<std::uint8_t> bytes)
{
    if (bytes.empty())
        return BusStatus::Ok;
    if (!m_pending && tooEarly(QStringLiteral("a read")))
        return BusStatus::Nack;
    const auto time = now();
    QByteArray reply = nullMessage();
    if (m_pending && time < m_pending->readyAt) {
        ++m_violations.earlyReplies;
        m_violations.last =
            QStringLiteral("a reply was read %1 ms after its request")
                .arg(std::chrono::duration<double, std::milli>(time - m_pending->begun).count());
        dropPending();
        m_faults.end(false, time);
    } else if (m_pending) {
        reply = m_pending->reply;
        const bool whole = static_cast<qsizetype>(bytes.size()) >= reply.size();
        const bool ok = whole && m_pending->value;
        log(m_pending->request, m_pending->begun, ok, ok ? *m_pending->value : 0, m_pending->window);
        // An unsupported code is an answer like any other: it ends the transaction.
        m_faults.end(whole && !m_pending->spoilt, time);
        m_pending.reset();
    }
    std::fill(bytes.begin(), bytes.end(), std::uint8_t(0));
    const auto count = std::min<qsizetype>(reply.size(), static_cast<qsizetype>(bytes.size()));
    std::copy_n(reply.constData(), count, reinterpret_cast<char*>(bytes.data()));
    return BusStatus::Ok;
}

// --- the monitor's surroundings

void Device::unplug()
{
    const std::lock_guard lock(m_mutex);
    if (m_plugged) {
        dropPending();
        m_faults.endTransaction();
        m_busyUntil = {};
        m_droppedUntil = {};
        m_edidOffset = 0;
    }
    m_plugged = false;
    ++m_unplugged;
    m_plugChanged.notify_all();
}

void Device::plug()
{
    const std::lock_guard lock(m_mutex);
    m_plugged = !m_removed;
}

bool Device::isPlugged()
{
    const std::lock_guard lock(m_mutex);
    return m_plugged;
}

void Device::remove()
{
    unplug();
    const std::lock_guard lock(m_mutex);
    m_removed = true;
}

void Device::armFault(const Fault& fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.arm(fault);
}

void Device::clearFaults()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

void Device::endTransaction()
{
    const std::lock_guard lock(m_mutex);
    m_faults.endTransaction();
}

QList<TrafficEntry> Device::traffic(quint64 since)
{
    const std::lock_guard lock(m_mutex);
    return m_log.since(since);
}

void Device::setRawLogEnabled(bool enabled)
{
    const std::lock_guard lock(m_mutex);
    m_log.setRawEnabled(enabled);
}

QList<RawTransfer> Device::rawLog()
{
    const std::lock_guard lock(m_mutex);
    return m_log.raw();
}

Violations Device::violations()
{
    const std::lock_guard lock(m_mutex);
    return m_violations;
}

quint64 Device::savedSettings()
{
    const std::lock_guard lock(m_mutex);
    return m_saved;
}

} // namespace sim

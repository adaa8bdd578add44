// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Monitor.h"

#include <QByteArray>
#include <QString>
#include <QtTest>

#include <initializer_list>
#include <memory>
#include <vector>

/// A clock that stands still until a test moves it.
class TestClock
{
public:
    std::function<sim::Clock::time_point()> function()
    {
        return [this] { return m_now; };
    }
    sim::Clock::time_point epoch() const { return sim::Clock::time_point(std::chrono::hours(1)); }
    void advance(double milliseconds)
    {
        m_now += std::chrono::microseconds(static_cast<qint64>(milliseconds * 1000));
    }

private:
    sim::Clock::time_point m_now = epoch();
};

/// "6E 80 BE": bytes as a person reads them.
inline QString hex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

/// A host of its own for the tests: it sends bytes and knows nothing of the program's codec.
class WireHost
{
public:
    explicit WireHost(const sim::Monitor& monitor) : m_bus(monitor.makeBus()) {}

    ddc::BusStatus writeTo(std::uint8_t address, const QByteArray& bytes)
    {
        return m_bus->write(address, {reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                      static_cast<std::size_t>(bytes.size())});
    }

    ddc::BusStatus write(const QByteArray& bytes) { return writeTo(0x37, bytes); }
    ddc::BusStatus write(const char* hexBytes) { return write(QByteArray::fromHex(hexBytes)); }

    QByteArray readFrom(std::uint8_t address, qsizetype size, ddc::BusStatus* status = nullptr)
    {
        std::vector<std::uint8_t> buffer(static_cast<std::size_t>(size), 0xEE);
        const auto result = m_bus->read(address, buffer);
        if (status)
            *status = result;
        return QByteArray(reinterpret_cast<const char*>(buffer.data()), size);
    }

    QByteArray read(qsizetype size, ddc::BusStatus* status = nullptr) { return readFrom(0x37, size, status); }

    static QByteArray frame(std::initializer_list<int> payload)
    {
        QByteArray bytes = QByteArray(1, char(0x51)) + char(0x80 | payload.size());
        for (int byte : payload)
            bytes.append(static_cast<char>(byte));
        int sum = 0x6E;
        for (char byte : std::as_const(bytes))
            sum ^= static_cast<unsigned char>(byte);
        return bytes + static_cast<char>(sum);
    }

    ddc::BusStatus set(int code, int value) { return write(frame({0x03, code, value >> 8, value & 0xFF})); }
    ddc::BusStatus request(int code) { return write(frame({0x01, code})); }

    /// The value of a get in one try; -1 for an unsupported code, -2 for no valid reply.
    int get(int code, const std::function<void()>& wait = {})
    {
        if (request(code) != ddc::BusStatus::Ok)
            return -2;
        if (wait)
            wait();
        const QByteArray reply = read(11);
        int sum = 0x50;
        for (char byte : reply)
            sum ^= static_cast<unsigned char>(byte);
        const auto at = [&](int i) { return static_cast<unsigned char>(reply[i]); };
        if (sum != 0 || at(0) != 0x6E || at(1) != 0x88 || at(2) != 0x02 || at(4) != code)
            return -2;
        return at(3) ? -1 : at(8) << 8 | at(9);
    }

    ddc::Bus& bus() { return *m_bus; }

private:
    std::unique_ptr<ddc::Bus> m_bus;
};

inline sim::Identity identity(const char* text)
{
    const auto result = sim::Identity::parse(QString::fromLatin1(text));
    return result.value_or(sim::Identity{});
}

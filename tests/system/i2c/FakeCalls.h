// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ddc-i2c/DeviceCalls.h>
#include <ddc/Bus.h>

#include <cerrno>
#include <map>
#include <string>
#include <vector>

/// Device files of a test: each leads to a monitor that has an EDID and remembers what is written to DDC/CI.
class FakeCalls final : public ddci2c::DeviceCalls
{
public:
    struct Monitor
    {
        std::vector<std::uint8_t> edid;
        int edidError = 0; ///< Of reading at 0x50.
        std::vector<std::vector<std::uint8_t>> writes;
        int edidReads = 0;
    };

    struct Node
    {
        Monitor* monitor = nullptr; ///< Null: nobody answers.
        int openError = 0;
        int transferError = 0; ///< Of I2C_RDWR.
        int messages = 1;      ///< Result of hasMessages().
        int opens = 0;
        int plain = 0; ///< Calls of read() and write().
    };

    std::map<std::string, Node> nodes; ///< By path.

    int open(const std::string& path) override
    {
        const auto node = nodes.find(path);
        if (node == nodes.end())
            return -ENOENT;
        if (node->second.openError)
            return -node->second.openError;
        ++node->second.opens;
        m_open[++m_last] = {path, 0, 0};
        return m_last;
    }

    void close(int descriptor) override { m_open.erase(descriptor); }
    int openCount() const { return int(m_open.size()); }

    int hasMessages(int descriptor) override { return nodeOf(descriptor).messages; }

    int transfer(int descriptor, std::span<Message> messages) override
    {
        Node& node = nodeOf(descriptor);
        if (node.transferError)
            return -node.transferError;
        for (const Message& message : messages) {
            if (const int error = one(descriptor, message.address, message))
                return -error;
        }
        return 0;
    }

    int select(int descriptor, std::uint8_t address) override
    {
        m_open.at(descriptor).address = address;
        return 0;
    }

    long write(int descriptor, std::span<const std::uint8_t> bytes) override
    {
        ++nodeOf(descriptor).plain;
        const Message message{0, false, const_cast<std::uint8_t*>(bytes.data()), bytes.size()};
        const int error = one(descriptor, m_open.at(descriptor).address, message);
        return error ? -error : long(bytes.size());
    }

    long read(int descriptor, std::span<std::uint8_t> bytes) override
    {
        ++nodeOf(descriptor).plain;
        const Message message{0, true, bytes.data(), bytes.size()};
        const int error = one(descriptor, m_open.at(descriptor).address, message);
        return error ? -error : long(bytes.size());
    }

private:
    struct Open
    {
        std::string path;
        std::uint8_t address;
        std::uint8_t offset;
    };

    Node& nodeOf(int descriptor) { return nodes.at(m_open.at(descriptor).path); }

    int one(int descriptor, std::uint8_t address, const Message& message)
    {
        Monitor* monitor = nodeOf(descriptor).monitor;
        if (!monitor)
            return ENXIO;
        Open& open = m_open.at(descriptor);
        if (address == ddc::EdidAddress) {
            if (monitor->edidError)
                return monitor->edidError;
            if (!message.isRead) {
                open.offset = message.bytes[0];
                return 0;
            }
            ++monitor->edidReads;
            for (std::size_t i = 0; i < message.size; ++i, ++open.offset)
                message.bytes[i] = open.offset < monitor->edid.size() ? monitor->edid[open.offset] : 0xFF;
            return 0;
        }
        if (message.isRead)
            std::fill_n(message.bytes, message.size, std::uint8_t(0));
        else
            monitor->writes.emplace_back(message.bytes, message.bytes + message.size);
        return 0;
    }

    std::map<int, Open> m_open;
    int m_last = 2;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTemporaryDir>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

/// A folder that looks like the kernel's files, for the enumeration.
class FakeSysfs
{
public:
    static constexpr const char* Card = "sys/devices/pci0000:00/0000:00:02.0";

    FakeSysfs() { addCard(0, Card, "i915"); }

    std::filesystem::path root() const { return m_directory.path().toStdString(); }

    void write(const std::string& file, const std::string& content)
    {
        std::filesystem::create_directories((root() / file).parent_path());
        std::ofstream(root() / file, std::ios::binary) << content;
    }

    void write(const std::string& file, const std::vector<std::uint8_t>& content)
    {
        write(file, std::string(content.begin(), content.end()));
    }

    void link(const std::string& at, const std::string& target)
    {
        std::filesystem::create_directories((root() / at).parent_path());
        std::filesystem::remove(root() / at);
        std::filesystem::create_symlink(root() / target, root() / at);
    }

    void addCard(int number, const std::string& device, const std::string& driver)
    {
        write(device + "/class", "0x030000\n");
        write("sys/bus/pci/drivers/" + driver + "/uevent", "");
        link(device + "/driver", "sys/bus/pci/drivers/" + driver);
        const std::string card = "card" + std::to_string(number);
        write(device + "/drm/" + card + "/uevent", "");
        link(device + "/drm/" + card + "/device", device);
        link("sys/class/drm/" + card, device + "/drm/" + card);
    }

    /// The folder of a connector, such as "card0-DP-1", which is made with the first use.
    std::string connector(const std::string& name, const std::string& device = Card)
    {
        const std::string folder = device + "/drm/" + name.substr(0, name.find('-')) + '/' + name;
        if (!std::filesystem::exists(root() / folder)) {
            write(folder + "/status", "disconnected\n");
            write(folder + "/edid", "");
            write(folder + "/dpms", "Off\n");
            write(folder + "/enabled", "disabled\n");
            link("sys/class/drm/" + name, folder);
        }
        return folder;
    }

    void plug(const std::string& name, const std::vector<std::uint8_t>& edid,
              const std::string& device = Card)
    {
        const std::string folder = connector(name, device);
        write(folder + "/status", "connected\n");
        write(folder + "/edid", edid);
        write(folder + "/dpms", "On\n");
        write(folder + "/enabled", "enabled\n");
    }

    void unplug(const std::string& name)
    {
        const std::string folder = connector(name);
        write(folder + "/status", "disconnected\n");
        write(folder + "/edid", "");
        write(folder + "/dpms", "Off\n");
        write(folder + "/enabled", "disabled\n");
    }

    /// A bus whose adapter stands in @p parent: a card, a connector, or some other device.
    void addBus(int number, const std::string& parent = Card)
    {
        const std::string name = "i2c-" + std::to_string(number);
        write(parent + '/' + name + "/name", "bus\n");
        link("sys/bus/i2c/devices/" + name, parent + '/' + name);
        write("dev/" + name, "");
    }

    /// The connector's link to its bus.
    void linkBus(const std::string& name, int number)
    {
        link(connector(name) + "/ddc", std::string(Card) + "/i2c-" + std::to_string(number));
    }

    void addBacklight(const std::string& name, const std::string& type, const std::string& device)
    {
        write("sys/class/backlight/" + name + "/type", type + '\n');
        link("sys/class/backlight/" + name + "/device", device);
    }

private:
    QTemporaryDir m_directory;
};

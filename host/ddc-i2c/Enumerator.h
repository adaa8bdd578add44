// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DeviceCalls.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ddci2c {

/// A monitor as the kernel shows it.
struct FoundMonitor
{
    std::string connector;  ///< Of the kernel, such as "card0-DP-1"; "i2c-4" where it names none.
    std::optional<int> bus; ///< N of /dev/i2c-N; nothing for built-in panels and where none leads to it.
    std::vector<std::uint8_t> edid;      ///< At least 128 bytes; may be empty for a built-in panel.
    std::filesystem::path connectorEdid; ///< The kernel's file of it; empty where the bus was asked instead.
    std::filesystem::path connectorPath; ///< Folder of the connector; empty where the kernel names none.
    std::optional<int> connectorId;      ///< The kernel's number of it on its card; older kernels tell none.
    bool connectorIsGuessed = false; ///< Several buses may lead to it, and nothing tells which: the monitor
                                     ///< on this bus may be at an equal one's connector.
    bool builtIn = false;
    std::filesystem::path backlight; ///< Folder of a built-in panel's back-light; empty if there is none.
    bool asleep = false;             ///< The display is switched off by power management.
    bool sleepIsKnown = true;        ///< The driver tells the kernel which displays sleep.

    bool operator==(const FoundMonitor&) const = default;
};

/// A connected connector that gives no monitor to work with.
struct SkippedConnector
{
    std::string connector;
    std::string reason; ///< English, for the log.

    bool operator==(const SkippedConnector&) const = default;
};

/// What only the buses can tell: which of them leads to a connector, or what stands in the EDID.
struct BusQuestion
{
    std::string connector;
    std::vector<int> buses;         ///< Where to look, the likeliest first.
    std::vector<std::uint8_t> edid; ///< What to look for; empty: whatever is there.
    bool isSearch = false; ///< The buses are not the connector's own: others' monitors are there too.

    bool operator==(const BusQuestion&) const = default;
};

/// The answer to a BusQuestion.
struct BusAnswer
{
    /// A monitor that fits.
    struct Sighting
    {
        int bus = 0;
        std::vector<std::uint8_t> edid;

        bool operator==(const Sighting&) const = default;
    };

    BusQuestion question;
    std::vector<Sighting> sightings; ///< In the order of the buses; of a search all, else the first.
    std::string problem;             ///< What there was instead on the other buses.

    bool operator==(const BusAnswer&) const = default;
};

using BusAnswers = std::map<std::string, BusAnswer>; ///< By connector.

struct Enumeration
{
    std::vector<FoundMonitor> monitors; ///< In natural order of their connectors.
    std::vector<SkippedConnector> skipped;
    std::vector<BusQuestion> questions; ///< All that only the buses can tell, also what has been answered.
    std::vector<std::filesystem::path>
        sleepers; ///< Folders of skipped connectors that tell more when they wake.
    bool lacksDeviceFiles =
        false; ///< There are adapters but no /dev/i2c-N: the module i2c-dev is not loaded.
};

/// Finds monitors: outputs of graphics cards with docks and MST hubs behind them, built-in panels, and buses
/// of drivers that show no outputs.
///
/// The scan reads the kernel's files only, which takes a few milliseconds and disturbs no monitor; ask()
/// transfers on buses and may take as long as an adapter takes. Any thread; an object keeps no state.
class Enumerator
{
public:
    /// @p root stands for "/", so that tests can have a system of their own. @p calls null: those of the
    /// system.
    explicit Enumerator(std::filesystem::path root = "/", std::shared_ptr<DeviceCalls> calls = {});

    Enumeration scan(const BusAnswers& answers = {}) const;
    BusAnswer ask(const BusQuestion& question) const;

    /// Whether power management has switched the display at that connector off. Only a file is read.
    bool isAsleep(const std::filesystem::path& connectorPath) const;

    /// The device file of a bus: "/dev/i2c-4", whatever the root is.
    static std::string devicePath(int bus);

private:
    struct Card;
    struct Buses;
    struct Scan;

    std::filesystem::path below(const char* path) const { return m_root / path; }
    void scanConnector(const std::string& name, const Card& card, Scan& scan) const;
    void resolve(Scan& scan) const;
    void scanNakedBuses(const Buses& buses, const std::vector<Card>& cards, const BusAnswers& answers,
                        Enumeration& result) const;
    BusQuestion candidates(const std::string& name, const Card& card, const Buses& buses) const;
    std::filesystem::path backlightOf(const std::filesystem::path& connector, const Card& card) const;

    const std::filesystem::path m_root;
    const std::shared_ptr<DeviceCalls> m_calls;
};

} // namespace ddci2c

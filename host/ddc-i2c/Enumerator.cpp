// SPDX-License-Identifier: Apache-2.0
#include "Enumerator.h"

#include "I2cBus.h"
#include "Sysfs.h"

#include <ddc/Edid.h>

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

namespace ddci2c {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view BuiltInTypes[] = {"eDP-", "LVDS-", "DSI-"};
constexpr std::string_view DisplayClass = "0x03"; ///< PCI class of graphics cards.
/// Manufacturer in the EDIDs that the kernel itself puts in a monitor's place.
constexpr const char* KernelsOwnEdid = "LNX";
/// Kinds of back-light control, the most reliable first, as the kernel's documentation orders them.
constexpr std::string_view BacklightTypes[] = {"firmware", "platform", "raw"};
constexpr int EdidTries = 3;

bool isBelow(const fs::path& path, const fs::path& folder)
{
    if (folder.empty())
        return false;
    const auto [end, rest] = std::mismatch(folder.begin(), folder.end(), path.begin(), path.end());
    return end == folder.end();
}

/// "DP-1" of "card0-DP-1".
std::string_view outputOf(std::string_view connector)
{
    const auto dash = connector.find('-');
    return dash == std::string_view::npos ? connector : connector.substr(dash + 1);
}

bool isBuiltIn(std::string_view connector)
{
    const std::string_view output = outputOf(connector);
    return std::any_of(std::begin(BuiltInTypes), std::end(BuiltInTypes),
                       [output](std::string_view type) { return output.starts_with(type); });
}

bool isSound(std::span<const std::uint8_t> edid)
{
    const ddc::Result<ddc::Edid> parsed = ddc::parseEdid(edid);
    return parsed && parsed.value.checksumOk;
}

bool isKernelsOwn(std::span<const std::uint8_t> edid)
{
    const ddc::Result<ddc::Edid> parsed = ddc::parseEdid(edid);
    return parsed && parsed.value.manufacturer == KernelsOwnEdid;
}

bool sameBase(std::span<const std::uint8_t> a, std::span<const std::uint8_t> b)
{
    return a.size() >= ddc::EdidBlockSize && b.size() >= ddc::EdidBlockSize &&
           std::equal(a.begin(), a.begin() + ddc::EdidBlockSize, b.begin());
}

/// The EDID of whoever is on a bus; empty with a reason if no sound one was read. A damaged one counts if it
/// reads the same twice: then the monitor has it so.
std::vector<std::uint8_t> readFrom(I2cBus& bus, std::string& problem)
{
    std::vector<std::uint8_t> before;
    for (int i = 0; i < EdidTries; ++i) {
        std::vector<std::uint8_t> block(ddc::EdidBlockSize);
        const ddc::BusStatus status = bus.readEdid(block);
        if (status != ddc::BusStatus::Ok) {
            problem = bus.name() + ": " + ddc::text(ddc::errorOf(status));
            return {};
        }
        if (isSound(block) || (ddc::parseEdid(block) && sameBase(before, block)))
            return block;
        before = std::move(block);
    }
    problem = bus.name() + " answers no sound EDID";
    return {};
}

} // namespace

struct Enumerator::Card
{
    fs::path device; ///< What the card is to its bus, such as a PCI device.
    bool sleepIsKnown = true;
};

struct Enumerator::Buses
{
    struct Bus
    {
        int number;
        fs::path path;
    };
    std::vector<Bus> all;

    bool has(int number) const
    {
        return std::any_of(all.begin(), all.end(), [number](const Bus& bus) { return bus.number == number; });
    }
};

/// A search that goes on: what the connectors say, before it is decided who has which bus.
struct Enumerator::Scan
{
    /// A connector whose bus must be asked for.
    struct Open
    {
        FoundMonitor found;
        BusQuestion question;
    };

    const Buses& buses;
    const BusAnswers& answers;
    Enumeration& result;
    std::vector<Open> open;

    void skip(const std::string& connector, std::string reason)
    {
        result.skipped.push_back({connector, std::move(reason)});
    }
    /// Null where the buses have not been asked this.
    const BusAnswer* answerTo(const BusQuestion& question) const
    {
        const auto answer = answers.find(question.connector);
        return answer != answers.end() && answer->second.question == question ? &answer->second : nullptr;
    }
    bool isTaken(int bus) const
    {
        return std::any_of(result.monitors.begin(), result.monitors.end(),
                           [bus](const FoundMonitor& each) { return each.bus == bus; });
    }
    /// The kernel shows that monitor at a connector.
    bool isKnownToKernel(const std::vector<std::uint8_t>& edid) const
    {
        return std::any_of(result.monitors.begin(), result.monitors.end(),
                           [&edid](const FoundMonitor& each) {
                               return (each.builtIn || !each.connectorEdid.empty()) &&
                                      sameBase(each.edid, edid);
                           }) ||
               std::any_of(open.begin(), open.end(),
                           [&edid](const Open& each) { return sameBase(each.question.edid, edid); });
    }
    /// What of an answer may be this connector's: of a search, what is nobody else's.
    std::vector<BusAnswer::Sighting> leftFor(const BusQuestion& question, const BusAnswer& answer) const
    {
        std::vector<BusAnswer::Sighting> left = answer.sightings;
        if (question.isSearch)
            std::erase_if(left, [&](const BusAnswer::Sighting& seen) {
                return isTaken(seen.bus) || (question.edid.empty() && isKnownToKernel(seen.edid));
            });
        return left;
    }
    /// Another connector looks for the same on the same buses.
    bool hasRival(const BusQuestion& question) const
    {
        return std::count_if(open.begin(), open.end(), [&question](const Open& each) {
                   return each.question.isSearch && each.question.buses == question.buses &&
                          (question.edid.empty() ? each.question.edid.empty()
                                                 : sameBase(each.question.edid, question.edid));
               }) > 1;
    }
};

Enumerator::Enumerator(fs::path root, std::shared_ptr<DeviceCalls> calls)
    : m_root(std::move(root)), m_calls(std::move(calls))
{
}

std::string Enumerator::devicePath(int bus)
{
    return "/dev/i2c-" + std::to_string(bus);
}

bool Enumerator::isAsleep(const fs::path& connectorPath) const
{
    if (connectorPath.empty())
        return false;
    const std::string power = readLine(connectorPath / "dpms");
    return (!power.empty() && power != "On") || readLine(connectorPath / "enabled") == "disabled";
}

Enumeration Enumerator::scan(const BusAnswers& answers) const
{
    Enumeration result;
    Buses buses;
    const fs::path adapters = below("sys/bus/i2c/devices");
    for (const std::string& name : entriesOf(adapters)) {
        if (const auto number = busNumber(name))
            buses.all.push_back({*number, realPath(adapters / name)});
    }
    const auto deviceFiles = entriesOf(below("dev"));
    result.lacksDeviceFiles = !buses.all.empty() && std::none_of(deviceFiles.begin(), deviceFiles.end(),
                                                                 [](const std::string& name) {
                                                                     return busNumber(name).has_value();
                                                                 });

    Scan scan{buses, answers, result, {}};
    std::vector<Card> cards;
    const fs::path drm = below("sys/class/drm");
    for (const std::string& name : entriesOf(drm)) {
        const auto dash = name.find('-');
        if (!name.starts_with("card") || dash == std::string::npos)
            continue;
        Card card;
        // The closed driver of NVIDIA does not tell the kernel which displays it has put to sleep.
        const fs::path device = drm / name.substr(0, dash) / "device";
        card.device = realPath(device);
        card.sleepIsKnown = realPath(device / "driver").filename() != "nvidia";
        scanConnector(name, card, scan);
        cards.push_back(std::move(card));
    }
    resolve(scan);
    scanNakedBuses(buses, cards, answers, result);
    return result;
}

void Enumerator::scanConnector(const std::string& name, const Card& card, Scan& scan) const
{
    const fs::path folder = below("sys/class/drm") / name;
    if (readLine(folder / "status") != "connected")
        return;
    FoundMonitor found;
    found.connector = name;
    found.connectorPath = folder;
    found.connectorId = positiveNumber(readLine(folder / "connector_id"));
    found.sleepIsKnown = card.sleepIsKnown;
    found.asleep = card.sleepIsKnown && isAsleep(folder);
    found.edid = readBytes(folder / "edid");
    const bool readable = bool(ddc::parseEdid(found.edid));
    if (isBuiltIn(name)) {
        found.builtIn = true;
        found.backlight = backlightOf(folder, card);
        if (!readable)
            found.edid.clear();
        scan.result.monitors.push_back(std::move(found));
        return;
    }
    const bool known = readable && isSound(found.edid) && !isKernelsOwn(found.edid);
    if (known)
        found.connectorEdid = folder / "edid";
    BusQuestion question = candidates(name, card, scan.buses);
    if (question.buses.empty())
        return scan.skip(name, known ? "no I2C bus leads to it" : "no EDID and no I2C bus to read it from");
    if (known && question.buses.size() == 1 && !question.isSearch) {
        found.bus = question.buses.front();
        scan.result.monitors.push_back(std::move(found));
        return;
    }
    if (known)
        question.edid = found.edid;
    scan.open.push_back({std::move(found), std::move(question)});
}

/// Gives each of the open connectors a bus of its own from the answers.
void Enumerator::resolve(Scan& scan) const
{
    // Who is known by an EDID chooses before whoever takes what is left.
    std::stable_partition(scan.open.begin(), scan.open.end(),
                          [](const Scan::Open& each) { return !each.question.edid.empty(); });
    for (const Scan::Open& each : scan.open) {
        const BusQuestion& question = each.question;
        const BusAnswer* answer = scan.answerTo(question);
        const std::vector<BusAnswer::Sighting> left =
            answer ? scan.leftFor(question, *answer) : std::vector<BusAnswer::Sighting>();
        // A sleeping display is left alone: it is asked when it wakes.
        if (left.empty() && each.found.asleep) {
            scan.result.sleepers.push_back(each.found.connectorPath);
            scan.skip(question.connector, "it sleeps and has not told yet who it is");
            continue;
        }
        scan.result.questions.push_back(question);
        if (left.empty()) {
            scan.skip(question.connector, !answer                     ? "its buses have not been asked yet"
                                          : answer->sightings.empty() ? answer->problem
                                                                      : "its buses lead to other connectors");
            continue;
        }
        FoundMonitor found = each.found;
        found.bus = left.front().bus;
        found.edid = left.front().edid;
        found.connectorIsGuessed = question.isSearch && (left.size() > 1 || scan.hasRival(question));
        scan.result.monitors.push_back(std::move(found));
    }
    std::sort(
        scan.result.monitors.begin(), scan.result.monitors.end(),
        [](const FoundMonitor& a, const FoundMonitor& b) { return naturalLess(a.connector, b.connector); });
}

/// Where to look for the monitor of a connector.
BusQuestion Enumerator::candidates(const std::string& name, const Card& card, const Buses& buses) const
{
    const fs::path connector = below("sys/class/drm") / name;
    BusQuestion question;
    question.connector = name;
    std::vector<int>& numbers = question.buses;
    const auto add = [&](const std::string& entry) {
        const auto number = busNumber(entry);
        if (number && buses.has(*number) &&
            std::find(numbers.begin(), numbers.end(), *number) == numbers.end())
            numbers.push_back(*number);
    };
    // A DisplayPort's own channel, also one behind an MST hub or a dock, is a child of the connector.
    for (const std::string& entry : entriesOf(connector)) {
        add(entry);
        if (entry.starts_with("drm_dp_aux")) {
            for (const std::string& inner : entriesOf(connector / entry))
                add(inner);
        }
    }
    add(realPath(connector / "ddc").filename().string());
    if (!numbers.empty())
        return question;
    // The driver does not say which bus it is: any of the same card that no connector claims.
    question.isSearch = true;
    std::set<int> claimed;
    const fs::path drm = below("sys/class/drm");
    for (const std::string& other : entriesOf(drm)) {
        if (const auto number = busNumber(realPath(drm / other / "ddc").filename().string()))
            claimed.insert(*number);
    }
    for (const Buses::Bus& bus : buses.all) {
        const bool ofConnector = isBelow(bus.path, card.device / "drm");
        if (isBelow(bus.path, card.device) && !ofConnector && !claimed.contains(bus.number))
            numbers.push_back(bus.number);
    }
    return question;
}

void Enumerator::scanNakedBuses(const Buses& buses, const std::vector<Card>& cards, const BusAnswers& answers,
                                Enumeration& result) const
{
    for (const Buses::Bus& bus : buses.all) {
        const bool shown = std::any_of(cards.begin(), cards.end(),
                                       [&bus](const Card& card) { return isBelow(bus.path, card.device); });
        // Other buses of a computer are never touched: memory modules answer at the EDID's address too.
        bool ofGraphics = false;
        for (fs::path up = bus.path; !shown && up.has_relative_path() && !ofGraphics; up = up.parent_path())
            ofGraphics = readLine(up / "class").starts_with(DisplayClass);
        if (!ofGraphics)
            continue;
        const std::string name = "i2c-" + std::to_string(bus.number);
        const BusQuestion question{name, {bus.number}, {}, false};
        result.questions.push_back(question);
        const auto answer = answers.find(name);
        if (answer == answers.end() || answer->second.question != question ||
            answer->second.sightings.empty())
            continue;
        FoundMonitor found;
        found.connector = name;
        found.bus = bus.number;
        found.edid = answer->second.sightings.front().edid;
        result.monitors.push_back(std::move(found));
    }
}

BusAnswer Enumerator::ask(const BusQuestion& question) const
{
    BusAnswer answer;
    answer.question = question;
    for (const int number : question.buses) {
        I2cBus::Options options;
        options.path = devicePath(number);
        options.calls = m_calls;
        I2cBus bus(std::move(options));
        std::string problem;
        std::vector<std::uint8_t> edid = readFrom(bus, problem);
        if (edid.empty()) {
            answer.problem += (answer.problem.empty() ? "" : "; ") + problem;
            continue;
        }
        if (!question.edid.empty() && !sameBase(question.edid, edid)) {
            answer.problem += (answer.problem.empty() ? "" : "; ") + bus.name() + " leads to another monitor";
            continue;
        }
        answer.sightings.push_back({number, question.edid.empty() ? std::move(edid) : question.edid});
        if (!question.isSearch)
            break;
    }
    return answer;
}

fs::path Enumerator::backlightOf(const fs::path& connector, const Card& card) const
{
    const fs::path folder = below("sys/class/backlight");
    const fs::path own = realPath(connector);
    fs::path best;
    std::size_t bestRank = std::size(BacklightTypes) + 1;
    for (const std::string& name : entriesOf(folder)) {
        const fs::path device = realPath(folder / name / "device");
        if (!own.empty() && device == own)
            return folder / name;
        const std::string type = readLine(folder / name / "type");
        // One of the firmware or the platform belongs to no card; one of another card is another panel's.
        if (type == "raw" && !isBelow(device, card.device))
            continue;
        const auto rank = std::size_t(std::find(std::begin(BacklightTypes), std::end(BacklightTypes), type) -
                                      std::begin(BacklightTypes));
        if (rank < bestRank) {
            best = folder / name;
            bestRank = rank;
        }
    }
    return best;
}

} // namespace ddci2c

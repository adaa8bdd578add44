// SPDX-License-Identifier: Apache-2.0
#include "Identity.h"

#include "Sysfs.h"

#include <ddc/Edid.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>

namespace ddci2c {

namespace {

constexpr const char* NamelessPanel = "Built-in display";
constexpr std::size_t MostEntries = 256; ///< A book does not grow for ever.

std::string productCode(const ddc::Edid& edid)
{
    std::array<char, 5> digits{};
    std::snprintf(digits.data(), digits.size(), "%04X", unsigned(edid.product));
    return digits.data();
}

struct Names
{
    std::string model;
    std::string serial;
    std::string key;
};

Names namesOf(const FoundMonitor& found)
{
    const ddc::Result<ddc::Edid> parsed = ddc::parseEdid(found.edid);
    if (!parsed)
        return {NamelessPanel, {}, NamelessPanel};
    const ddc::Edid& edid = parsed.value;
    Names names;
    names.serial = edid.identitySerial();
    names.model = edid.name;
    if (names.model.empty())
        names.model = (edid.manufacturer.empty() ? std::string("Monitor") : edid.manufacturer) + '-' +
                      productCode(edid);
    names.key = edid.manufacturer + '|' + productCode(edid) + '|' + names.serial + '|' + edid.name;
    return names;
}

} // namespace

IdentityBook::Entry* IdentityBook::known(const std::string& key, const std::string& connector)
{
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& each) {
        return each.key == key && each.connector == connector;
    });
    return entry == m_entries.end() ? nullptr : &*entry;
}

std::string IdentityBook::freeId(const std::string& base) const
{
    std::string id = base;
    const auto taken = [&] {
        return std::any_of(m_entries.begin(), m_entries.end(),
                           [&id](const Entry& entry) { return entry.id == id; });
    };
    for (int number = 2; taken(); ++number)
        id = base + '#' + std::to_string(number);
    return id;
}

std::vector<IdentifiedMonitor> IdentityBook::identify(const std::vector<FoundMonitor>& found)
{
    struct Row
    {
        IdentifiedMonitor monitor;
        std::string key;
    };
    std::vector<Row> rows;
    std::map<std::string, int> present;
    for (const FoundMonitor& each : found) {
        const Names names = namesOf(each);
        rows.push_back({{each, {}, names.model, names.serial, {}}, names.key});
        ++present[names.key];
    }
    std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) {
        return naturalLess(a.monitor.found.connector, b.monitor.found.connector);
    });

    // Who is where it was before keeps its id.
    std::vector<std::string> used;
    const auto isUsed = [&used](const std::string& id) {
        return std::find(used.begin(), used.end(), id) != used.end();
    };
    for (Row& row : rows) {
        if (const Entry* entry = known(row.key, row.monitor.found.connector)) {
            row.monitor.id = entry->id;
            used.push_back(entry->id);
        }
    }
    // The others may be known from another connector.
    for (Row& row : rows) {
        if (!row.monitor.id.empty())
            continue;
        std::vector<Entry*> absent;
        for (Entry& entry : m_entries) {
            if (entry.key == row.key && !isUsed(entry.id))
                absent.push_back(&entry);
        }
        if (!absent.empty()) {
            if (absent.size() > 1)
                row.monitor.note = "it is one of several monitors that say the same of themselves, at a new"
                                   " connector: taken for the one that was at " +
                                   absent.front()->connector;
            absent.front()->connector = row.monitor.found.connector;
            row.monitor.id = absent.front()->id;
        } else {
            const std::string base =
                row.monitor.serial.empty() ? row.monitor.model : row.monitor.model + '@' + row.monitor.serial;
            row.monitor.id = freeId(base);
            m_entries.push_back({row.monitor.id, row.key, row.monitor.found.connector});
        }
        used.push_back(row.monitor.id);
    }
    while (m_entries.size() > MostEntries) {
        const auto oldest = std::find_if(m_entries.begin(), m_entries.end(),
                                         [&](const Entry& entry) { return !isUsed(entry.id); });
        if (oldest == m_entries.end())
            break;
        m_entries.erase(oldest);
    }

    std::vector<IdentifiedMonitor> result;
    for (Row& row : rows) {
        if (present[row.key] > 1 && row.monitor.note.empty())
            row.monitor.note =
                (row.monitor.serial.empty()
                     ? std::to_string(present[row.key]) + " equal monitors give no serial number"
                     : std::to_string(present[row.key]) + " monitors give the serial number " +
                           row.monitor.serial) +
                ": this one is known by its connector " + row.monitor.found.connector;
        result.push_back(std::move(row.monitor));
    }
    return result;
}

std::vector<IdentityBook::Entry> IdentityBook::twins() const
{
    std::map<std::string, int> count;
    for (const Entry& entry : m_entries)
        ++count[entry.key];
    std::vector<Entry> result;
    for (const Entry& entry : m_entries) {
        // A number alone shows that there was another one of that name, even if of another make.
        if (count[entry.key] > 1 || entry.id.find('#') != std::string::npos)
            result.push_back(entry);
    }
    return result;
}

Changes difference(const std::vector<IdentifiedMonitor>& before, const std::vector<IdentifiedMonitor>& after)
{
    const auto in = [](const std::vector<IdentifiedMonitor>& list, const std::string& id) {
        const auto found =
            std::find_if(list.begin(), list.end(), [&id](const auto& each) { return each.id == id; });
        return found == list.end() ? nullptr : &*found;
    };
    Changes changes;
    for (const IdentifiedMonitor& monitor : before) {
        if (!in(after, monitor.id))
            changes.vanished.push_back(monitor);
    }
    for (const IdentifiedMonitor& monitor : after) {
        const IdentifiedMonitor* was = in(before, monitor.id);
        if (!was)
            changes.appeared.push_back(monitor);
        else if (was->found.connector != monitor.found.connector || was->found.bus != monitor.found.bus ||
                 was->found.backlight != monitor.found.backlight)
            changes.moved.push_back(monitor);
    }
    return changes;
}

} // namespace ddci2c

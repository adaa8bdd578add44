// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Enumerator.h"

#include <string>
#include <vector>

namespace ddci2c {

/// A found monitor with the name that it goes by.
struct IdentifiedMonitor
{
    FoundMonitor found;
    std::string id;     ///< "MODEL@SERIAL", "MODEL" without a serial; "#2", "#3" ... for what would be equal.
    std::string model;  ///< The EDID's name, else manufacturer and product such as "ABC-1234".
    std::string serial; ///< Text serial, else the numeric one; empty if there is none.
    std::string note;   ///< What a person should know about how it was told from its twins; mostly empty.
};

/// Gives monitors ids that stay theirs: by manufacturer, product and serial, and by the connector where these
/// are equal.
///
/// Within the life of a book an id never changes its owner silently. Not thread safe.
class IdentityBook
{
public:
    /// A monitor that was seen.
    struct Entry
    {
        std::string id;
        std::string key;       ///< Manufacturer, product, serial, name.
        std::string connector; ///< Where it was last.

        bool operator==(const Entry&) const = default;
    };

    /// Starts from what twins() told before.
    explicit IdentityBook(std::vector<Entry> entries = {}) : m_entries(std::move(entries)) {}

    std::vector<IdentifiedMonitor> identify(const std::vector<FoundMonitor>& found);

    /// The entries by which twins are told apart, for keeping until the next start.
    std::vector<Entry> twins() const;

private:
    Entry* known(const std::string& key, const std::string& connector);
    std::string freeId(const std::string& base) const;

    std::vector<Entry> m_entries;
};

/// What became of the monitors from one enumeration to the next, by id.
struct Changes
{
    std::vector<IdentifiedMonitor> appeared;
    std::vector<IdentifiedMonitor> vanished;
    std::vector<IdentifiedMonitor> moved; ///< As they are now: at another connector or bus than before.

    bool empty() const { return appeared.empty() && vanished.empty() && moved.empty(); }
};

Changes difference(const std::vector<IdentifiedMonitor>& before, const std::vector<IdentifiedMonitor>& after);

} // namespace ddci2c

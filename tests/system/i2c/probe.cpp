// SPDX-License-Identifier: Apache-2.0
// The program's way to monitors as a command, to be timed beside others:
//   detect | get BUS CODE... | set BUS CODE VALUE | verify BUS CODE VALUE | capabilities BUS

#include <ddc-i2c/Enumerator.h>
#include <ddc-i2c/I2cBus.h>
#include <ddc-i2c/Identity.h>
#include <ddc/Transactor.h>

#include <cstdio>
#include <cstdlib>
#include <future>
#include <string>
#include <vector>

namespace {

std::unique_ptr<ddc::Transactor> open(int bus)
{
    ddci2c::I2cBus::Options options;
    options.path = ddci2c::Enumerator::devicePath(bus);
    for (const ddci2c::FoundMonitor& each : ddci2c::Enumerator().scan().monitors) {
        if (each.bus == bus)
            options.edid = each.edid;
    }
    return std::make_unique<ddc::Transactor>(std::make_unique<ddci2c::I2cBus>(std::move(options)));
}

int number(const std::string& text, int base)
{
    return int(std::strtol(text.c_str(), nullptr, base));
}

int detect()
{
    struct Row
    {
        ddci2c::IdentifiedMonitor monitor;
        std::future<bool> answers;
    };
    std::vector<Row> rows;
    ddci2c::IdentityBook book;
    for (ddci2c::IdentifiedMonitor& each : book.identify(ddci2c::Enumerator().scan().monitors)) {
        const int bus = each.found.bus.value_or(-1);
        rows.push_back({std::move(each), std::async(std::launch::async, [bus] {
                            return bus >= 0 && bool(open(bus)->getVcp(0x10));
                        })});
    }
    bool all = !rows.empty();
    for (Row& row : rows) {
        const bool answers = row.answers.get();
        all = all && answers;
        std::printf("%s i2c-%d %s\n", row.monitor.id.c_str(), row.monitor.found.bus.value_or(-1),
                    answers ? "answers" : "is silent");
    }
    return all ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty())
        return 2;
    if (words[0] == "detect")
        return detect();
    if (words.size() < 2)
        return 2;
    const auto transactor = open(number(words[1], 10));
    if (words[0] == "capabilities") {
        const auto text = transactor->capabilities();
        std::printf("%s\n", text.value.c_str());
        return text ? 0 : 1;
    }
    if (words[0] == "get") {
        for (std::size_t i = 2; i < words.size(); ++i) {
            const auto value = transactor->getVcp(std::uint8_t(number(words[i], 16)));
            if (!value)
                return 1;
            std::printf("%s %d %d\n", words[i].c_str(), value.value.current, value.value.maximum);
        }
        return 0;
    }
    if (words.size() != 4)
        return 2;
    const auto code = std::uint8_t(number(words[2], 16));
    const auto value = std::uint16_t(number(words[3], 10));
    if (transactor->setVcp(code, value) != ddc::Error::None)
        return 1;
    if (words[0] == "set")
        return 0;
    const auto seen = transactor->getVcp(code);
    return seen && seen.value.current == value ? 0 : 1;
}

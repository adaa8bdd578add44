// SPDX-License-Identifier: Apache-2.0
#include <ddc/Capabilities.h>

#include <cstdlib>
#include <set>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto result = ddc::parseCapabilities({reinterpret_cast<const char*>(data), size});
    if (!result)
        return 0;
    std::set<std::uint8_t> codes;
    for (const auto& entry : result.value.vcp) {
        require(codes.insert(entry.code).second);
        require(std::set(entry.values.begin(), entry.values.end()).size() == entry.values.size());
        require(result.value.find(entry.code) == &entry);
    }
    for (const std::string* text :
         {&result.value.model, &result.value.type, &result.value.protocol, &result.value.mccsVersion}) {
        for (const char c : *text)
            require(c >= 0x20 && c <= 0x7E);
    }
    return 0;
}

// SPDX-License-Identifier: Apache-2.0
#include <lushared/LuSchemaReader.h>

#include <cstddef>
#include <cstdint>

/// Hostile schema files: whatever the bytes, the reader ends, and codes are bytes or refused.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    (void)LuSchemaReader::forEachEntry(bytes, [](const QXmlStreamAttributes& attributes) {
        const int code = LuSchemaReader::hexByte(attributes.value(QLatin1String("Code")));
        if (code < -1 || code > 0xFF)
            __builtin_trap();
        return true;
    });
    return 0;
}

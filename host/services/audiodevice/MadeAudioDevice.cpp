// SPDX-License-Identifier: Apache-2.0
#include "services/audiodevice/MadeAudioDevice.h"

#include <QByteArray>
#include <QLoggingCategory>

#include <cstring>
#include <map>
#include <new>
#include <tuple>

namespace services {

// Qt makes audio devices in its sound back ends only; the class that holds a device's data is private, in a
// header that distributions do not install, and its members changed their order between versions. What all
// versions share is the beginning: virtual table, reference count, id, mode. The places of the name and of
// the default mark are found out once, by writing to a zeroed block and asking the public functions of
// QAudioDevice. A block is zero wherever it was not written, and what is written is harmless in every place,
// so that asking is safe whatever the layout. Blocks are kept for good and their reference count never falls
// to zero, so the virtual table is never used.
namespace {

constexpr std::size_t blockSize = 1024;
constexpr std::size_t searchEnd = 512;
constexpr std::size_t referenceOffset = sizeof(void*);
constexpr std::size_t idOffset = 2 * sizeof(void*);
constexpr std::size_t modeOffset = idOffset + sizeof(QByteArray);
constexpr std::size_t searchStart = modeOffset + sizeof(int);
constexpr int everReferenced = 1 << 24;

struct alignas(16) Block
{
    unsigned char bytes[blockSize] = {};
};

struct Layout
{
    std::size_t name = 0;
    std::size_t isDefault = 0;

    bool isKnown() const { return name != 0 && isDefault != 0; }
};

Block* newBlock(const QByteArray& id)
{
    static_assert(sizeof(QAudioDevice) == sizeof(void*));
    auto* block = new Block;
    const int mode = QAudioDevice::Output;
    std::memcpy(block->bytes + referenceOffset, &everReferenced, sizeof everReferenced);
    new (block->bytes + idOffset) QByteArray(id);
    std::memcpy(block->bytes + modeOffset, &mode, sizeof mode);
    return block;
}

QAudioDevice deviceOf(Block* block)
{
    QAudioDevice device;
    std::memcpy(static_cast<void*>(&device), &block, sizeof block);
    return device;
}

Layout findLayout()
{
    const QByteArray id = QByteArrayLiteral("probe");
    const QString name = QStringLiteral("Probe");
    static Block* const block = newBlock(id);
    const QAudioDevice device = deviceOf(block);
    Layout layout;
    if (device.id() != id || device.mode() != QAudioDevice::Output)
        return layout;

    // A string that is not null is one whose second word, the place of its text, is not; its length stays 0,
    // so that nobody looks there. Where the word is taken for a string's first, the header of shared data, it
    // is one that nobody frees.
    static int header[16] = {everReferenced};
    void* const somewhere = header;
    constexpr std::size_t step = sizeof(void*);
    for (std::size_t at = (searchStart + step - 1) / step * step; at < searchEnd && layout.name == 0;
         at += step) {
        unsigned char* const textWord = block->bytes + at + step;
        std::memcpy(textWord, &somewhere, sizeof somewhere);
        if (!device.description().isNull())
            layout.name = at;
        std::memset(textWord, 0, sizeof somewhere);
    }
    if (layout.name == 0)
        return layout;
    auto* const text = new (block->bytes + layout.name) QString(name);
    const bool isRead = device.description() == name;
    text->~QString();
    std::memset(block->bytes + layout.name, 0, sizeof(QString));
    if (!isRead)
        return {};

    for (std::size_t at = searchStart; at < searchEnd && layout.isDefault == 0; ++at) {
        if (at >= layout.name && at < layout.name + sizeof(QString))
            continue;
        block->bytes[at] = 1;
        if (device.isDefault())
            layout.isDefault = at;
        block->bytes[at] = 0;
    }
    return layout;
}

} // namespace

QAudioDevice madeAudioDevice(const QString& id, const QString& name, bool isDefault)
{
    static const Layout layout = findLayout();
    if (!layout.isKnown()) {
        qWarning("Audio outputs cannot be told with this version of Qt");
        return {};
    }
    // Equal devices share a block, so that the number of blocks is that of the devices ever named.
    static auto* const blocks = new std::map<std::tuple<QString, QString, bool>, Block*>;
    Block*& block = (*blocks)[{id, name, isDefault}];
    if (!block) {
        block = newBlock(id.toUtf8());
        new (block->bytes + layout.name) QString(name);
        block->bytes[layout.isDefault] = isDefault;
    }
    return deviceOf(block);
}

} // namespace services

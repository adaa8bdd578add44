// SPDX-License-Identifier: Apache-2.0
#include "Xsettings.h"

#include <QtEndian>

namespace services::x11 {

namespace {

enum Type { Integer = 0, String = 1, Colour = 2 };

constexpr qsizetype ColourSize = 8;

/// Reads the numbers and texts of the property one after the other.
class Reader
{
public:
    explicit Reader(const QByteArray& text) : m_text(text) { m_isBig = number<std::uint8_t>() == 1; }

    bool isGood() const { return m_isGood; }

    template <class Number>
    Number number()
    {
        const char* from = take(sizeof(Number));
        if (!from)
            return 0;
        return m_isBig ? qFromBigEndian<Number>(from) : qFromLittleEndian<Number>(from);
    }
    /// With what fills it up to whole words.
    QByteArray text(qsizetype length)
    {
        const char* from = take((length + 3) / 4 * 4);
        return from ? QByteArray(from, length) : QByteArray();
    }
    void skip(qsizetype count) { take(count); }

private:
    const char* take(qsizetype count)
    {
        m_isGood = m_isGood && count >= 0 && count <= m_text.size() - m_at;
        if (!m_isGood)
            return nullptr;
        m_at += count;
        return m_text.constData() + m_at - count;
    }

    const QByteArray m_text;
    qsizetype m_at = 0;
    bool m_isGood = true;
    bool m_isBig = false;
};

} // namespace

std::optional<std::int32_t> xsettingsInteger(const QByteArray& settings, const QByteArray& name)
{
    Reader reader(settings);
    reader.skip(3 + 4); // unused; the serial of the whole
    const auto count = reader.number<std::uint32_t>();
    for (std::uint32_t i = 0; i < count && reader.isGood(); ++i) {
        const auto type = reader.number<std::uint8_t>();
        reader.skip(1);
        const QByteArray found = reader.text(reader.number<std::uint16_t>());
        reader.skip(4); // its serial
        if (type == Integer) {
            const auto value = reader.number<std::int32_t>();
            if (found == name && reader.isGood())
                return value;
        } else if (type == String) {
            reader.text(reader.number<std::uint32_t>());
        } else if (type == Colour) {
            reader.skip(ColourSize);
        } else {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace services::x11

// SPDX-License-Identifier: Apache-2.0
#include "Capabilities.h"

#include <algorithm>

namespace ddc {

namespace {

constexpr int DepthLimit = 8;

constexpr bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ',' || c == '\0';
}

constexpr int hexDigit(char c)
{
    return c >= '0' && c <= '9'   ? c - '0'
           : c >= 'a' && c <= 'f' ? c - 'a' + 10
           : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                  : -1;
}

std::string lower(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        c = c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
    return out;
}

std::string printable(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        if (c >= 0x20 && c <= 0x7E)
            out += c;
    }
    const auto first = out.find_first_not_of(' ');
    return first == std::string::npos ? std::string()
                                      : out.substr(first, out.find_last_not_of(' ') - first + 1);
}

/// Walks over the text; every step moves forward, so that parsing ends after at most one pass.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_text(text) {}

    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return m_text[m_at]; }
    void skip() { ++m_at; }

    void skipBlanks()
    {
        while (!atEnd() && isBlank(peek()))
            skip();
    }

    /// Everything up to the next blank or parenthesis.
    std::string_view word()
    {
        const std::size_t start = m_at;
        while (!atEnd() && !isBlank(peek()) && peek() != '(' && peek() != ')')
            skip();
        return m_text.substr(start, m_at - start);
    }

    /// The content of a group whose opening parenthesis was just passed; passes the closing one. False: none
    /// came.
    bool group(std::string_view& content)
    {
        const std::size_t start = m_at;
        for (int depth = 1; !atEnd(); skip()) {
            depth += peek() == '(' ? 1 : peek() == ')' ? -1 : 0;
            if (depth == 0) {
                content = m_text.substr(start, m_at - start);
                skip();
                return true;
            }
        }
        content = m_text.substr(start);
        return false;
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
};

/// Bytes in hexadecimal; digits without a blank between them go in pairs. Nothing where the word is anything
/// else.
std::vector<std::uint8_t> hexBytes(std::string_view word)
{
    if (word.size() != 1 && word.size() % 2 != 0)
        return {};
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < word.size();) {
        const int high = word.size() == 1 ? 0 : hexDigit(word[i++]);
        const int low = hexDigit(word[i++]);
        if (high < 0 || low < 0)
            return {};
        bytes.push_back(std::uint8_t(high << 4 | low));
    }
    return bytes;
}

void addOnce(std::vector<std::uint8_t>& list, const std::vector<std::uint8_t>& bytes)
{
    for (const std::uint8_t byte : bytes) {
        if (std::find(list.begin(), list.end(), byte) == list.end())
            list.push_back(byte);
    }
}

/// A flat list of bytes; groups inside it belong to its elements and are passed over.
std::vector<std::uint8_t> byteList(std::string_view content)
{
    std::vector<std::uint8_t> list;
    Scanner scan(content);
    for (scan.skipBlanks(); !scan.atEnd(); scan.skipBlanks()) {
        std::string_view inner;
        if (scan.peek() == '(') {
            scan.skip();
            scan.group(inner);
        } else if (scan.peek() == ')') {
            scan.skip();
        } else {
            addOnce(list, hexBytes(scan.word()));
        }
    }
    return list;
}

Capabilities::Code& codeEntry(std::vector<Capabilities::Code>& vcp, std::uint8_t code)
{
    const auto it =
        std::find_if(vcp.begin(), vcp.end(), [&](const auto& entry) { return entry.code == code; });
    return it != vcp.end() ? *it : vcp.emplace_back(Capabilities::Code{code, {}});
}

void parseVcp(std::string_view content, std::vector<Capabilities::Code>& vcp)
{
    int last = -1; // The code that a group of values belongs to; none after garbage.
    Scanner scan(content);
    for (scan.skipBlanks(); !scan.atEnd(); scan.skipBlanks()) {
        if (scan.peek() == ')') {
            scan.skip();
        } else if (scan.peek() == '(') {
            std::string_view values;
            scan.skip();
            scan.group(values);
            if (last >= 0)
                addOnce(codeEntry(vcp, std::uint8_t(last)).values, byteList(values));
        } else {
            last = -1;
            for (const std::uint8_t code : hexBytes(scan.word()))
                last = codeEntry(vcp, code).code;
        }
    }
}

/// Fills what one key carries. False for a key that is not known.
bool takeKey(const std::string& key, std::string_view content, Capabilities& caps)
{
    if (key == "vcp")
        return parseVcp(content, caps.vcp), true;
    if (key == "cmds")
        return addOnce(caps.commands, byteList(content)), true;

    std::string* const field = key == "prot"       ? &caps.protocol
                               : key == "type"     ? &caps.type
                               : key == "model"    ? &caps.model
                               : key == "mccs_ver" ? &caps.mccsVersion
                                                   : nullptr;
    if (!field)
        return false;
    if (field->empty())
        *field = printable(content);
    return true;
}

/// The keys of one level. A group without a key is only a wrapper (the outermost one always is).
int parseLevel(std::string_view text, Capabilities& caps, int depth)
{
    int known = 0;
    std::string key;
    Scanner scan(text);
    for (scan.skipBlanks(); !scan.atEnd(); scan.skipBlanks()) {
        if (scan.peek() == ')') {
            scan.skip();
            caps.complete = caps.complete && depth > 0;
        } else if (scan.peek() == '(') {
            std::string_view content;
            scan.skip();
            if (!scan.group(content))
                caps.complete = false;
            if (!key.empty())
                known += takeKey(key, content, caps);
            else if (depth < DepthLimit)
                known += parseLevel(content, caps, depth + 1);
            key.clear();
        } else {
            key = lower(scan.word());
        }
    }
    return known;
}

} // namespace

const Capabilities::Code* Capabilities::find(std::uint8_t code) const
{
    const auto it =
        std::find_if(vcp.begin(), vcp.end(), [&](const Code& entry) { return entry.code == code; });
    return it != vcp.end() ? &*it : nullptr;
}

Result<Capabilities> parseCapabilities(std::string_view text)
{
    if (text.size() > CapabilitiesLimit)
        return Error::Malformed;
    Capabilities caps;
    caps.complete = true;
    if (parseLevel(text, caps, 0) == 0)
        return Error::Malformed;
    return caps;
}

} // namespace ddc

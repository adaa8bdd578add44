// SPDX-License-Identifier: Apache-2.0
#include "Sysfs.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>

namespace ddci2c {

namespace fs = std::filesystem;

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::size_t digitsAt(std::string_view text, std::size_t at)
{
    std::size_t end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end - at;
}

} // namespace

std::vector<std::uint8_t> readBytes(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return {};
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string readLine(const fs::path& file)
{
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    line.erase(line.find_last_not_of(" \t\r\n") + 1);
    return line;
}

std::vector<std::string> entriesOf(const fs::path& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        names.push_back(it->path().filename().string());
    std::sort(names.begin(), names.end(), naturalLess);
    return names;
}

fs::path realPath(const fs::path& path)
{
    std::error_code error;
    fs::path real = fs::canonical(path, error);
    return error ? fs::path() : real;
}

namespace {

/// All of the text as a number that is not negative.
std::optional<int> wholeNumber(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0)
        return std::nullopt;
    return number;
}

} // namespace

std::optional<int> positiveNumber(std::string_view text)
{
    const std::optional<int> number = wholeNumber(text);
    return number && *number > 0 ? number : std::nullopt;
}

std::optional<int> busNumber(std::string_view name)
{
    constexpr std::string_view Prefix = "i2c-";
    if (!name.starts_with(Prefix))
        return std::nullopt;
    return wholeNumber(name.substr(Prefix.size()));
}

bool naturalLess(std::string_view a, std::string_view b)
{
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        const std::size_t m = digitsAt(a, i);
        const std::size_t n = digitsAt(b, j);
        if (m > 0 && n > 0) {
            if (m != n)
                return m < n;
            if (const int order = a.substr(i, m).compare(b.substr(j, n)))
                return order < 0;
            i += m;
            j += n;
        } else if (a[i] != b[j]) {
            return a[i] < b[j];
        } else {
            ++i;
            ++j;
        }
    }
    return a.size() - i < b.size() - j;
}

} // namespace ddci2c

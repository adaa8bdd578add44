// SPDX-License-Identifier: Apache-2.0
#include "Access.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <system_error>
#include <vector>

namespace ddci2c {

namespace {

constexpr const char* RuleFile = "60-lumen-desk-i2c.rules";
constexpr const char* RuleFolders[] = {"/etc/udev/rules.d", "/run/udev/rules.d",
                                       "/usr/local/lib/udev/rules.d", "/usr/lib/udev/rules.d",
                                       "/lib/udev/rules.d"};

AccessFacts factsOf(const std::string& path)
{
    AccessFacts facts;
    facts.hasRule = std::any_of(std::begin(RuleFolders), std::end(RuleFolders), [](const char* folder) {
        std::error_code error;
        return std::filesystem::exists(std::filesystem::path(folder) / RuleFile, error);
    });
    struct stat status
    {
    };
    if (::stat(path.c_str(), &status) != 0)
        return facts;
    std::vector<char> buffer(4096);
    group entry{};
    group* found = nullptr;
    if (::getgrgid_r(status.st_gid, &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return facts;
    facts.group = found->gr_name;
    std::vector<gid_t> own(static_cast<std::size_t>(std::max(0, ::getgroups(0, nullptr))));
    if (::getgroups(static_cast<int>(own.size()), own.data()) >= 0)
        facts.inGroup = std::find(own.begin(), own.end(), status.st_gid) != own.end();
    std::vector<char> names(4096);
    passwd user{};
    passwd* account = nullptr;
    if (::getpwuid_r(::getuid(), &user, names.data(), names.size(), &account) == 0 && account) {
        for (char** member = found->gr_mem; *member; ++member)
            facts.accountInGroup = facts.accountInGroup || std::string(*member) == account->pw_name;
    }
    return facts;
}

} // namespace

std::string Advice::english() const
{
    std::string text = sentence;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::string place = '%' + std::to_string(i + 1);
        if (const std::size_t at = text.find(place); at != std::string::npos)
            text.replace(at, place.size(), values[i]);
    }
    return text;
}

// clang-format off
Advice accessAdvice(const std::string& path, const AccessFacts& facts)
{
    const bool joinable = !facts.group.empty() && facts.group != "root";
    if (joinable && facts.accountInGroup && !facts.inGroup)
        return {"No permission to use %1, so its monitor cannot be controlled. Your account is in the group %2 already: log out and in again.", {path, facts.group}};
    if (!facts.hasRule && joinable && !facts.inGroup)
        return {"No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer, or add your account to the group %4 and log in again.", {path, RuleFile, RuleFolders[0], facts.group}};
    if (!facts.hasRule)
        return {"No permission to use %1, so its monitor cannot be controlled. The udev rule %2 of this program is not installed: install it below %3 and restart the computer.", {path, RuleFile, RuleFolders[0]}};
    if (joinable && !facts.inGroup)
        return {"No permission to use %1, so its monitor cannot be controlled. The udev rule is installed, but this session has no seat at this computer: add your account to the group %2 and log in again.", {path, facts.group}};
    return {"No permission to use %1, so its monitor cannot be controlled. The udev rule is installed but not in force: run \"udevadm trigger --subsystem-match=i2c-dev\" as root or restart the computer.", {path}};
}

Advice missingModuleAdvice()
{
    return {"The system shows no I2C device files, so external monitors cannot be controlled. Load the kernel module i2c-dev: run \"modprobe i2c-dev\" as root, or install modules-load.d/lumen-desk.conf of this program and restart the computer.", {}};
}

Advice otherMonitorAdvice(const std::string& path)
{
    return {"%1 leads to another monitor now; nothing was sent to it.", {path}};
}
// clang-format on

Advice accessAdvice(const std::string& path)
{
    return accessAdvice(path, factsOf(path));
}

} // namespace ddci2c

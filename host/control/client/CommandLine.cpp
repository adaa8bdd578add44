// SPDX-License-Identifier: Apache-2.0
#include "CommandLine.h"

using namespace Qt::StringLiterals;

namespace {

bool isNumber(const QString& word)
{
    bool ok = false;
    word.toDouble(&ok);
    return ok;
}

bool isOption(const QString& word)
{
    return word.size() > 1 && word.startsWith(u'-') && !isNumber(word);
}

QString longName(const QString& name)
{
    if (name == "-m"_L1)
        return u"--monitor"_s;
    if (name == "-h"_L1)
        return u"--help"_s;
    return name == "-v"_L1 ? u"--version"_s : name;
}

} // namespace

CommandLine CommandLine::parse(const QStringList& words)
{
    CommandLine line;
    bool ended = false;
    for (qsizetype i = 0; i < words.size() && line.error.isEmpty(); ++i) {
        const QString& word = words[i];
        if (ended || !isOption(word)) {
            line.arguments.append(word);
            continue;
        }
        if (word == "--"_L1) {
            ended = true;
            continue;
        }
        const qsizetype equals = word.startsWith("--"_L1) ? word.indexOf(u'=') : -1;
        const QString name = longName(word.left(equals < 0 ? word.size() : equals));
        const bool wantsValue = name == "--monitor"_L1 || name == "--control"_L1 || name == "--timeout"_L1;
        if (!wantsValue && equals >= 0) {
            line.error = u"unknown option \"%1\""_s.arg(word);
            continue;
        }
        if (!wantsValue) {
            if (name == "--json"_L1)
                line.json = true;
            else if (name == "--help"_L1)
                line.help = true;
            else if (name == "--version"_L1)
                line.version = true;
            else
                line.error = u"unknown option \"%1\""_s.arg(word);
            continue;
        }
        if (equals < 0 && i + 1 == words.size()) {
            line.error = u"option %1 needs a value"_s.arg(word);
            continue;
        }
        const QString value = equals < 0 ? words[++i] : word.mid(equals + 1);
        if (name == "--monitor"_L1) {
            line.monitor = value;
        } else if (name == "--control"_L1) {
            line.control = value;
        } else {
            bool ok = false;
            line.timeoutMs = value.toInt(&ok);
            if (!ok || line.timeoutMs < 0)
                line.error = u"option --timeout needs milliseconds, not \"%1\""_s.arg(value);
        }
    }
    return line;
}

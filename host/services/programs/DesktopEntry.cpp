// SPDX-License-Identifier: Apache-2.0
#include "DesktopEntry.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

namespace services {

namespace {

/// Entries are small; a larger file is something else.
constexpr qint64 LargestFile = 1 << 20;

/// The escapes of a string value.
QString unescaped(const QString& value)
{
    QString result;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (value[++i].unicode()) {
        case u's':
            result += u' ';
            break;
        case u'n':
            result += u'\n';
            break;
        case u't':
            result += u'\t';
            break;
        case u'r':
            result += u'\r';
            break;
        case u'\\':
            result += u'\\';
            break;
        default:
            result += u'\\';
            result += value[i];
        }
    }
    return result;
}

using Keys = QHash<QString, QString>;

/// The group "Desktop Entry".
std::optional<Keys> readKeys(const QString& path)
{
    QFile file(path);
    if (file.size() > LargestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    Keys keys;
    bool inGroup = false;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            inGroup = line == QLatin1String("[Desktop Entry]");
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (!inGroup || equals <= 0 || line.startsWith(u'#'))
            continue;
        keys.insert(line.left(equals).trimmed(), unescaped(line.mid(equals + 1).trimmed()));
    }
    return keys;
}

QString localised(const Keys& keys, const QString& key, const QString& locale)
{
    for (const QString& language : {locale, locale.section(u'_', 0, 0)}) {
        const auto found = keys.constFind(key + u'[' + language + u']');
        if (found != keys.constEnd() && !language.isEmpty())
            return *found;
    }
    return keys.value(key);
}

bool isTrue(const Keys& keys, const QString& key)
{
    return keys.value(key) == QLatin1String("true");
}

/// What a field code stands for without files; nothing for one that is not allowed.
std::optional<QString> fieldText(QChar code, const DesktopEntry& entry)
{
    switch (code.unicode()) {
    case u'%':
        return QStringLiteral("%");
    case u'c':
        return entry.name;
    case u'k':
        return entry.file;
    case u'f':
    case u'F':
    case u'u':
    case u'U':
    case u'i':
    case u'd':
    case u'D':
    case u'n':
    case u'N':
    case u'v':
    case u'm':
        return QString();
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::read(const QString& file, const QString& locale)
{
    const std::optional<Keys> keys = readKeys(file);
    if (!keys || keys->value(QStringLiteral("Type")) != QLatin1String("Application") ||
        isTrue(*keys, QStringLiteral("Hidden")))
        return std::nullopt;
    DesktopEntry entry;
    entry.file = file;
    entry.id = QFileInfo(file).fileName();
    entry.name = localised(*keys, QStringLiteral("Name"), locale);
    entry.icon = localised(*keys, QStringLiteral("Icon"), locale);
    entry.exec = keys->value(QStringLiteral("Exec"));
    entry.workingDirectory = keys->value(QStringLiteral("Path"));
    entry.windowClass = keys->value(QStringLiteral("StartupWMClass"));
    entry.terminal = isTrue(*keys, QStringLiteral("Terminal"));
    entry.hidden = isTrue(*keys, QStringLiteral("NoDisplay"));
    const QString tryExec = keys->value(QStringLiteral("TryExec"));
    if (entry.name.isEmpty() || entry.command().isEmpty() ||
        (!tryExec.isEmpty() && resolvedProgram(tryExec).isEmpty()))
        return std::nullopt;
    return entry;
}

QStringList DesktopEntry::command() const
{
    QStringList words;
    QString word;
    bool inWord = false;
    bool quoted = false;
    bool isEmptyField = false; // an unquoted "%f" alone is no argument
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (c == u'"') {
            quoted = !quoted;
            inWord = true;
            isEmptyField = false;
        } else if (quoted && c == u'\\' && i + 1 < exec.size()) {
            word += exec[++i];
        } else if (c == u'%' && !quoted && i + 1 < exec.size()) {
            const std::optional<QString> text = fieldText(exec[++i], *this);
            if (!text)
                return {};
            isEmptyField = !inWord && text->isEmpty();
            word += *text;
            inWord = true;
        } else if (c.isSpace() && !quoted) {
            if (inWord && !isEmptyField)
                words.append(word);
            word.clear();
            inWord = isEmptyField = false;
        } else {
            word += c;
            inWord = true;
            isEmptyField = false;
        }
    }
    if (quoted)
        return {};
    if (inWord && !isEmptyField)
        words.append(word);
    return words;
}

QString DesktopEntry::program() const
{
    const QStringList words = command();
    return words.isEmpty() ? QString() : resolvedProgram(words.first());
}

QString resolvedProgram(const QString& program)
{
    if (program.isEmpty())
        return {};
    const QString path = program.startsWith(u'/') ? program : QStandardPaths::findExecutable(program);
    const QFileInfo info(path);
    return !path.isEmpty() && info.isFile() && info.isExecutable() ? info.canonicalFilePath() : QString();
}

} // namespace services

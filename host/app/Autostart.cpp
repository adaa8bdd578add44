// SPDX-License-Identifier: Apache-2.0
#include "Autostart.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

// As freedesktop.org has it for desktop entries: these are escaped inside quotes, twice where a backslash is
// meant.
QString quoted(const QString& path)
{
    QString result;
    for (const QChar c : path) {
        if (c == u'"' || c == u'`' || c == u'$' || c == u'\\')
            result += u"\\\\"_s;
        if (c == u'%')
            result += u'%';
        result += c;
    }
    return u'"' + result + u'"';
}

} // namespace

QString Autostart::file()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/autostart/lumen-desk.desktop"_L1;
}

bool Autostart::isOn()
{
    QFile entry(file());
    if (!entry.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = entry.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray text = line.simplified().replace(" ", "");
        if (text == "Hidden=true" || text == "X-GNOME-Autostart-enabled=false")
            return false;
    }
    return true;
}

bool Autostart::set(bool on, const QString& program)
{
    const QString path = file();
    if (!on) {
        if (!QFile::exists(path) || QFile::remove(path))
            return true;
        qWarning().noquote() << "[Autostart] cannot remove" << path;
        return false;
    }
    QSaveFile entry(path);
    const QString text = u"[Desktop Entry]\nType=Application\nName=Lumen Desk\nComment=Monitor control\n"
                         "Exec=%1 --hidden\nIcon=lumen-desk\nTerminal=false\n"
                         "X-GNOME-Autostart-enabled=true\n"_s.arg(quoted(program));
    if (QDir().mkpath(QFileInfo(path).absolutePath()) && entry.open(QIODevice::WriteOnly)) {
        entry.write(text.toUtf8());
        if (entry.commit())
            return true;
    }
    qWarning().noquote() << "[Autostart] cannot write" << path << entry.errorString();
    return false;
}

// SPDX-License-Identifier: Apache-2.0
#include "LuPreferences.h"

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
Q_LOGGING_CATEGORY(lcPreferences, "lumen.preferences")

struct Language
{
    const char* code;
    const char16_t* name;
};

// By name, as a person looks for it.
constexpr Language Languages[] = {
    {"cs", u"Čeština"},    {"de", u"Deutsch"},  {"en", u"English"},   {"es", u"Español"},
    {"fr", u"Français"},   {"hr", u"Hrvatski"}, {"it", u"Italiano"},  {"hu", u"Magyar"},
    {"nl", u"Nederlands"}, {"pl", u"Polski"},   {"pt", u"Português"}, {"ro", u"Română"},
    {"sv", u"Svenska"},    {"ru", u"Русский"},  {"zh", u"简体中文"},  {"zh_TW", u"繁體中文"},
    {"ja", u"日本語"},     {"ko", u"한국어"},
};

const QString LanguageKey = u"language"_s;
const QString CloseToTrayKey = u"closeToTray"_s;
const QString RestoreKey = u"restoreAtStart"_s;
const QString IntroductionKey = u"introductionSeen"_s;
const QString HiddenKey = u"window/hiddenWidgets"_s;
const QString OrderKey = u"window/widgetOrder"_s;
} // namespace

LuPreferences* LuPreferences::instance()
{
    static QPointer<LuPreferences> preferences;
    if (!preferences)
        preferences = new LuPreferences(QCoreApplication::instance());
    return preferences;
}

LuPreferences::LuPreferences(QObject* parent) : QObject(parent) {}

LuPreferences::~LuPreferences() = default;

void LuPreferences::setStore(Read read, Write write)
{
    m_read = std::move(read);
    m_write = std::move(write);
    m_values.clear();
    Q_EMIT languageChanged();
    Q_EMIT closeToTrayChanged();
    Q_EMIT restoreAtStartChanged();
    Q_EMIT introductionSeenChanged();
    Q_EMIT arrangementChanged();
}

QVariant LuPreferences::value(const QString& key, const QVariant& fallback) const
{
    const auto found = m_values.constFind(key);
    if (found != m_values.cend())
        return *found;
    const QVariant read = m_read ? m_read(key, fallback) : fallback;
    m_values.insert(key, read);
    return read;
}

void LuPreferences::setValue(const QString& key, const QVariant& value)
{
    m_values.insert(key, value);
    if (m_write)
        m_write(key, value);
}

bool LuPreferences::replace(const QString& key, bool fallback, bool on)
{
    if (value(key, fallback).toBool() == on)
        return false;
    setValue(key, on);
    return true;
}

QString LuPreferences::language() const
{
    const QString code = value(LanguageKey, QString()).toString();
    const bool known = std::any_of(std::begin(Languages), std::end(Languages), [&code](const Language& row) {
        return code == QLatin1StringView(row.code);
    });
    return known ? code : QString();
}

void LuPreferences::setLanguage(const QString& code)
{
    if (code == language())
        return;
    const bool known = std::any_of(std::begin(Languages), std::end(Languages), [&code](const Language& row) {
        return code == QLatin1StringView(row.code);
    });
    if (!known && !code.isEmpty()) {
        qCWarning(lcPreferences) << "no such language:" << code;
        return;
    }
    setValue(LanguageKey, code);
    Q_EMIT languageChanged();
}

QVariantList LuPreferences::languages() const
{
    QVariantList list{QVariantMap{{u"code"_s, QString()}, {u"name"_s, QString()}}};
    for (const Language& row : Languages)
        list.append(QVariantMap{{u"code"_s, QString::fromLatin1(row.code)},
                                {u"name"_s, QString::fromUtf16(row.name)}});
    return list;
}

void LuPreferences::setLoginStart(std::function<bool()> state, std::function<bool(bool)> change)
{
    m_loginState = std::move(state);
    m_changeLogin = std::move(change);
    Q_EMIT startAtLoginChanged();
}

bool LuPreferences::startAtLogin() const
{
    return m_loginState && m_loginState();
}

void LuPreferences::setStartAtLogin(bool on)
{
    if (on == startAtLogin())
        return;
    if (!m_changeLogin || !m_changeLogin(on))
        qCWarning(lcPreferences) << "starting at login cannot be switched" << (on ? "on" : "off");
    // Told in both cases: a switch that could not follow falls back.
    Q_EMIT startAtLoginChanged();
}

bool LuPreferences::closeToTray() const
{
    return value(CloseToTrayKey, true).toBool();
}

void LuPreferences::setCloseToTray(bool on)
{
    if (replace(CloseToTrayKey, true, on))
        Q_EMIT closeToTrayChanged();
}

void LuPreferences::setTrayVisible(bool visible)
{
    if (visible == m_trayVisible)
        return;
    m_trayVisible = visible;
    Q_EMIT trayVisibleChanged();
}

bool LuPreferences::restoreAtStart() const
{
    return value(RestoreKey, true).toBool();
}

void LuPreferences::setRestoreAtStart(bool on)
{
    if (replace(RestoreKey, true, on))
        Q_EMIT restoreAtStartChanged();
}

bool LuPreferences::introductionSeen() const
{
    return value(IntroductionKey, false).toBool();
}

void LuPreferences::setIntroductionSeen(bool seen)
{
    if (replace(IntroductionKey, false, seen))
        Q_EMIT introductionSeenChanged();
}

QStringList LuPreferences::hiddenWidgets() const
{
    return value(HiddenKey, QStringList()).toStringList();
}

bool LuPreferences::isWidgetHidden(const QString& name) const
{
    return hiddenWidgets().contains(name);
}

void LuPreferences::setWidgetHidden(const QString& name, bool hidden)
{
    QStringList names = hiddenWidgets();
    if (names.contains(name) == hidden)
        return;
    if (hidden)
        names.append(name);
    else
        names.removeAll(name);
    setValue(HiddenKey, names);
    Q_EMIT arrangementChanged();
}

QStringList LuPreferences::widgetOrder() const
{
    return value(OrderKey, QStringList()).toStringList();
}

QStringList LuPreferences::arranged(const QStringList& names) const
{
    const QStringList order = widgetOrder();
    QStringList result;
    for (const QString& name : order) {
        if (names.contains(name) && !result.contains(name))
            result.append(name);
    }
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (result.contains(names[i]))
            continue;
        const qsizetype place = i == 0 ? 0 : result.indexOf(names[i - 1]) + 1;
        result.insert(place, names[i]);
    }
    return result;
}

bool LuPreferences::moveWidget(const QString& name, int index, const QStringList& group,
                               const QStringList& all)
{
    if (index < 0 || index >= group.size() || !group.contains(name) || !all.contains(name))
        return false;
    QStringList neighbours = group;
    neighbours.move(neighbours.indexOf(name), index);
    // The group's own places in the whole order are filled again; all others stay where they are.
    QStringList order = arranged(all);
    qsizetype next = 0;
    for (QString& each : order) {
        if (group.contains(each))
            each = neighbours.at(next++);
    }
    // What another monitor's package has stays known.
    const QStringList before = widgetOrder();
    for (const QString& each : before) {
        if (!order.contains(each))
            order.append(each);
    }
    if (order == before)
        return true;
    setValue(OrderKey, order);
    Q_EMIT arrangementChanged();
    return true;
}

void LuPreferences::resetArrangement()
{
    setValue(HiddenKey, QStringList());
    setValue(OrderKey, QStringList());
    Q_EMIT arrangementChanged();
}

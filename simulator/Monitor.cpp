// SPDX-License-Identifier: Apache-2.0
#include "Monitor.h"

#include "Device.h"
#include "JsonNumber.h"
#include "MakeEdid.h"
#include "ModelCatalog.h"

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace sim {

namespace {

constexpr qsizetype LongestText = 13; // of an EDID descriptor
constexpr int FileFormat = 1;
constexpr int HighestLux = 1000;

bool isPlainText(const QString& text)
{
    return text.size() <= LongestText && std::all_of(text.begin(), text.end(), [](QChar c) {
               return c > QLatin1Char(' ') && c < QChar(0x7F) && c != QLatin1Char('@') &&
                      c != QLatin1Char(',');
           });
}

/// A host's way to a device that others use, too.
class DeviceBus : public ddc::Bus
{
public:
    DeviceBus(std::shared_ptr<Device> device, std::string name)
        : m_device(std::move(device)), m_name(std::move(name))
    {
    }

    ddc::BusStatus write(std::uint8_t address, std::span<const std::uint8_t> bytes) override
    {
        return m_device->write(address, bytes);
    }

    ddc::BusStatus read(std::uint8_t address, std::span<std::uint8_t> bytes) override
    {
        return m_device->read(address, bytes);
    }

    std::string name() const override { return m_name; }

private:
    std::shared_ptr<Device> m_device;
    std::string m_name;
};

} // namespace

// --- Identity

QString Identity::id() const
{
    return serial.isEmpty() ? model : model + QLatin1Char('@') + serial;
}

std::optional<Identity> Identity::parse(const QString& text, QString* error)
{
    const qsizetype at = text.indexOf(QLatin1Char('@'));
    Identity identity;
    identity.model = at < 0 ? text : text.left(at);
    identity.serial = at < 0 ? defaultSerial(identity.model) : text.mid(at + 1);
    QString reason;
    if (identity.model.isEmpty())
        reason = QStringLiteral("\"%1\" names no model").arg(text);
    else if (!isPlainText(identity.model))
        reason = QStringLiteral("\"%1\" is no model name: at most 13 printable characters without blanks")
                     .arg(identity.model);
    else if (!isPlainText(identity.serial))
        reason = QStringLiteral("\"%1\" is no serial number: at most 13 printable characters without blanks")
                     .arg(identity.serial);
    if (error)
        *error = reason;
    return reason.isEmpty() ? std::optional(identity) : std::nullopt;
}

QString Identity::defaultSerial(const QString& model, int instance)
{
    if (ModelCatalog::instance().lookup(model)->builtIn)
        return {};
    const QString seed = instance == 1 ? model : model + QLatin1Char('#') + QString::number(instance);
    return QStringLiteral("SIM") +
           QString::number(numericSerial(seed), 16).toUpper().rightJustified(8, QLatin1Char('0'));
}

// --- Monitor

Monitor::Monitor(const Identity& identity, const Options& options)
    : m_device(
          std::make_shared<Device>(ModelCatalog::instance().lookup(identity.model), identity.serial, options))
{
}

Monitor::~Monitor()
{
    m_device->remove();
}

QString Monitor::model() const
{
    return m_device->model().name;
}

QString Monitor::serial() const
{
    return m_device->serial();
}

QString Monitor::id() const
{
    return Identity{model(), serial()}.id();
}

bool Monitor::isBuiltIn() const
{
    return m_device->model().builtIn;
}

QByteArray Monitor::edid() const
{
    return m_device->edid();
}

QByteArray Monitor::capabilities() const
{
    return m_device->capabilities();
}

std::unique_ptr<ddc::Bus> Monitor::makeBus() const
{
    return std::make_unique<DeviceBus>(m_device, "sim:" + id().toStdString());
}

bool Monitor::setByMenu(int code, int value, std::optional<int> window, QString* error)
{
    return m_device->withFirmware([&](Firmware& f) { return f.setByMenu(code, value, window, error); });
}

bool Monitor::setByMenu(const QJsonObject& values, QString* error)
{
    return m_device->withFirmware([&](Firmware& f) {
        QList<std::pair<int, int>> changes;
        for (auto it = values.begin(); it != values.end(); ++it) {
            const auto code = numberFrom(it.key());
            const auto value = numberFrom(it.value());
            if (!code || !value) {
                if (error)
                    *error = QStringLiteral("\"%1\" is no VCP code with a whole number").arg(it.key());
                return false;
            }
            if (!f.canSetByMenu(*code, *value, std::nullopt, error))
                return false;
            changes.append({*code, *value});
        }
        // Values that a colour mode owns go to the mode that is given along with them.
        const int modeCode = f.model().modeCode;
        std::stable_partition(changes.begin(), changes.end(),
                              [&](const auto& c) { return c.first == modeCode; });
        for (const auto& [code, value] : std::as_const(changes))
            f.setByMenu(code, value, std::nullopt, nullptr);
        return true;
    });
}

std::optional<std::uint16_t> Monitor::value(int code, std::optional<int> window) const
{
    return m_device->withFirmware([&](Firmware& f) { return f.value(code, window); });
}

void Monitor::reset()
{
    m_device->withFirmware([](Firmware& f) { f.restoreAll(); });
}

void Monitor::setAmbientLight(int lux)
{
    m_device->withFirmware([&](Firmware& f) { f.setAmbientLight(std::clamp(lux, 0, HighestLux)); });
}

void Monitor::setPresence(bool present)
{
    m_device->withFirmware([&](Firmware& f) { f.setPresence(present); });
}

int Monitor::lightOutput() const
{
    return m_device->withFirmware([](Firmware& f) { return f.lightOutput(); });
}

int Monitor::rearLightOutput() const
{
    return m_device->withFirmware([](Firmware& f) { return f.rearLightOutput(); });
}

void Monitor::unplug()
{
    m_device->unplug();
}

void Monitor::plug()
{
    m_device->plug();
}

bool Monitor::isPlugged() const
{
    return m_device->isPlugged();
}

void Monitor::armFault(const Fault& fault)
{
    m_device->armFault(fault);
}

void Monitor::clearFaults()
{
    m_device->clearFaults();
}

void Monitor::endTransaction()
{
    m_device->endTransaction();
}

QList<TrafficEntry> Monitor::traffic(quint64 since) const
{
    return m_device->traffic(since);
}

void Monitor::setRawLogEnabled(bool enabled)
{
    m_device->setRawLogEnabled(enabled);
}

QList<RawTransfer> Monitor::rawLog() const
{
    return m_device->rawLog();
}

Violations Monitor::violations() const
{
    return m_device->violations();
}

quint64 Monitor::savedSettings() const
{
    return m_device->savedSettings();
}

// --- values across runs

bool Monitor::save(const QString& path, QString* error) const
{
    return saveRevision(path, error).has_value();
}

std::optional<quint64> Monitor::saveRevision(const QString& path, QString* error) const
{
    quint64 revision = 0;
    QJsonObject json = m_device->withFirmware([&](Firmware& f) {
        revision = f.revision();
        return f.toJson();
    });
    json.insert(QLatin1String("format"), FileFormat);
    json.insert(QLatin1String("model"), model());
    QSaveFile file(path);
    const QByteArray text = QJsonDocument(json).toJson();
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return revision;
    if (error)
        *error = QStringLiteral("%1: %2").arg(path, file.errorString());
    return std::nullopt;
}

bool Monitor::load(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.exists())
        return true;
    QString reason;
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
    } else {
        QJsonParseError parse;
        const QJsonObject json = QJsonDocument::fromJson(file.readAll(), &parse).object();
        if (parse.error != QJsonParseError::NoError)
            reason = QStringLiteral("%1 at byte %2").arg(parse.errorString()).arg(parse.offset);
        else if (numberFrom(json.value(QLatin1String("format"))) != FileFormat)
            reason = QStringLiteral("not a file of monitor values");
        else if (json.value(QLatin1String("model")).toString() != model())
            reason = QStringLiteral("values of the model \"%1\"")
                         .arg(json.value(QLatin1String("model")).toString());
        else
            m_device->withFirmware([&](Firmware& f) { return f.fromJson(json, &reason); });
    }
    if (reason.isEmpty())
        return true;
    reset();
    const QString aside = path + QLatin1String(".damaged");
    QFile::remove(aside);
    const bool kept = QFile::rename(path, aside);
    if (error)
        *error = QStringLiteral("%1: %2; %3 starts with factory values%4")
                     .arg(path, reason, id(),
                          kept ? QStringLiteral(", the file is kept as %1").arg(aside) : QString());
    return false;
}

bool Monitor::setStore(const QString& path, QString* error)
{
    const bool ok = load(path, error);
    const quint64 revision = m_device->withFirmware([](Firmware& f) { return f.revision(); });
    const std::lock_guard lock(m_storeMutex);
    m_store = path;
    m_storedRevision = revision;
    return ok;
}

bool Monitor::needsPersist() const
{
    const quint64 revision = m_device->withFirmware([](Firmware& f) { return f.revision(); });
    const std::lock_guard lock(m_storeMutex);
    return !m_store.isEmpty() && revision != m_storedRevision;
}

bool Monitor::persist(QString* error)
{
    if (!needsPersist())
        return true;
    const std::lock_guard lock(m_storeMutex);
    const auto revision = saveRevision(m_store, error);
    if (revision)
        m_storedRevision = *revision;
    return revision.has_value();
}

} // namespace sim

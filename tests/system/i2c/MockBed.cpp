// SPDX-License-Identifier: Apache-2.0
#include "MockBed.h"

#include <ddc/Bus.h>

// umockdev's headers use the word for a variable.
#undef signals
#include <umockdev.h>

#include <linux/i2c-dev.h>
#include <linux/i2c.h>

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <filesystem>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace {

std::string text(const QString& words)
{
    return words.toStdString();
}

/// Attributes or properties as umockdev takes them.
class Strings
{
public:
    Strings(std::initializer_list<std::string> list) : m_list(list)
    {
        for (std::string& each : m_list)
            m_pointers.push_back(each.data());
        m_pointers.push_back(nullptr);
    }
    gchar** data() { return m_pointers.data(); }

private:
    std::vector<std::string> m_list;
    std::vector<gchar*> m_pointers;
};

/// Numbers of the devices that clients have selected with I2C_SLAVE.
int& selectedOf(UMockdevIoctlClient* client)
{
    auto* number = static_cast<int*>(g_object_get_data(G_OBJECT(client), "selected"));
    if (!number) {
        number = g_new0(int, 1);
        g_object_set_data_full(G_OBJECT(client), "selected", number, g_free);
    }
    return *number;
}

} // namespace

/// An output, its bus and the thread that stands for the adapter: umockdev has one thread for all device
/// files, which must never wait.
struct MockBed::Port
{
    Private* bed = nullptr;
    int number = 0;
    std::string connector;
    std::string device; ///< Of its device file in /sys.
    UMockdevIoctlBase* handler = nullptr;

    mutable std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> jobs;
    bool ends = false;
    bool hangs = false;
    std::condition_variable goesOn;
    std::shared_ptr<ddc::Bus> bus; ///< Null: nobody there.
    int nackErrno = ENXIO;
    int failErrno = 0;
    int failures = 0;              ///< So many transfers fail with failErrno.
    std::atomic<bool> busy{false}; ///< A message is on the wire.
    std::thread adapter;

    void post(std::function<void()> job)
    {
        const std::lock_guard lock(mutex);
        jobs.push_back(std::move(job));
        wake.notify_one();
    }

    void run()
    {
        std::unique_lock lock(mutex);
        for (;;) {
            wake.wait(lock, [this] { return ends || !jobs.empty(); });
            if (jobs.empty())
                return;
            const auto job = std::move(jobs.front());
            jobs.pop_front();
            lock.unlock();
            job();
            lock.lock();
        }
    }

    int errnoOf(ddc::BusStatus status)
    {
        const std::lock_guard lock(mutex);
        switch (status) {
        case ddc::BusStatus::Ok:
            return 0;
        case ddc::BusStatus::Timeout:
            return ETIMEDOUT;
        case ddc::BusStatus::Busy:
            return EBUSY;
        default: // the adapter stays when a monitor is unplugged: nobody acknowledges any more
            return nackErrno;
        }
    }

    int transfer(std::uint8_t address, bool isRead, std::uint8_t* bytes, std::size_t size)
    {
        std::shared_ptr<ddc::Bus> target;
        {
            std::unique_lock lock(mutex);
            busy = true;
            goesOn.wait(lock, [this] { return !hangs || ends; });
            busy = false;
            if (failures > 0) {
                --failures;
                return failErrno;
            }
            target = bus;
        }
        if (!target)
            return errnoOf(ddc::BusStatus::Nack);
        busy = true;
        const ddc::BusStatus status =
            isRead ? target->read(address, {bytes, size}) : target->write(address, {bytes, size});
        busy = false;
        return errnoOf(status);
    }
};

struct MockBed::Private
{
    UMockdevTestbed* testbed = nullptr;
    std::string root;
    std::string pci;
    std::string card;
    std::vector<std::unique_ptr<Port>> ports;
    std::atomic<bool> hasMessages{true};
    std::atomic<int> plain{0};

    void touch(const std::string& path)
    {
        const std::string file = root + path;
        g_mkdir_with_parents(file.substr(0, file.rfind('/')).c_str(), 0755);
        g_file_set_contents(file.c_str(), "", 0, nullptr);
    }

    /// A parent that is not null works in a process with the preload only; the full path works everywhere.
    std::string device(const char* subsystem, const std::string& parent, const std::string& name,
                       Strings attributes, Strings properties)
    {
        const std::string full =
            parent.empty() ? name : parent.substr(std::strlen("/sys/devices/")) + '/' + name;
        gchar* made = umockdev_testbed_add_devicev(testbed, subsystem, full.c_str(), nullptr,
                                                   attributes.data(), properties.data());
        if (!made)
            qFatal("umockdev made no device %s", full.c_str());
        const std::string path = made;
        g_free(made);
        return path;
    }

    void set(const std::string& path, const char* name, const std::string& value)
    {
        umockdev_testbed_set_attribute(testbed, path.c_str(), name, value.c_str());
    }

    void setConnector(const std::string& connector, const QByteArray& edid)
    {
        QByteArray bytes = edid;
        const std::string path = card + '/' + connector;
        const bool connected = !edid.isEmpty();
        set(path, "status", connected ? "connected\n" : "disconnected\n");
        set(path, "enabled", connected ? "enabled\n" : "disabled\n");
        set(path, "dpms", connected ? "On\n" : "Off\n");
        if (connected)
            umockdev_testbed_set_attribute_binary(testbed, path.c_str(), "edid",
                                                  reinterpret_cast<guint8*>(bytes.data()), int(bytes.size()));
        else
            set(path, "edid", "");
    }

    std::string addConnector(const std::string& connector)
    {
        const std::string path =
            device("drm", card, connector, {"status", "disconnected\n", "modes", "2560x1440\n"},
                   {"DEVTYPE", "drm_connector"});
        umockdev_testbed_set_attribute_link(testbed, path.c_str(), "device", "../../card0");
        setConnector(connector, {});
        return path;
    }

    // Calls of clients, on umockdev's thread

    struct Answer
    {
        UMockdevIoctlClient* client;
        long result;
        int error;
        std::vector<UMockdevIoctlData*> held;
    };

    /// Runs @p work on the adapter's thread and answers the client on umockdev's.
    static void answerLater(Port& port, UMockdevIoctlClient* client, std::vector<UMockdevIoctlData*> held,
                            std::function<long()> work)
    {
        GMainContext* context = g_main_context_ref_thread_default();
        g_object_ref(client);
        port.post([context, client, held = std::move(held), work = std::move(work)] {
            const long result = work();
            auto* answer = new Answer{client, result < 0 ? -1 : result, result < 0 ? int(-result) : 0, held};
            GSource* source = g_idle_source_new();
            g_source_set_priority(source, G_PRIORITY_DEFAULT);
            g_source_set_callback(
                source,
                [](gpointer data) -> gboolean {
                    const std::unique_ptr<Answer> done(static_cast<Answer*>(data));
                    umockdev_ioctl_client_complete(done->client, done->result, done->error);
                    for (UMockdevIoctlData* each : done->held)
                        g_object_unref(each);
                    g_object_unref(done->client);
                    return G_SOURCE_REMOVE;
                },
                answer, nullptr);
            g_source_attach(source, context);
            g_source_unref(source);
            g_main_context_unref(context);
        });
    }

    static gboolean transferMessages(Port& port, UMockdevIoctlClient* client, UMockdevIoctlData* argument)
    {
        UMockdevIoctlData* outer =
            umockdev_ioctl_data_resolve(argument, 0, sizeof(i2c_rdwr_ioctl_data), nullptr);
        const auto* request = reinterpret_cast<i2c_rdwr_ioctl_data*>(outer->data);
        const std::size_t count = request->nmsgs;
        UMockdevIoctlData* list = umockdev_ioctl_data_resolve(outer, offsetof(i2c_rdwr_ioctl_data, msgs),
                                                              count * sizeof(i2c_msg), nullptr);
        const auto* messages = reinterpret_cast<i2c_msg*>(list->data);
        std::vector<UMockdevIoctlData*> held{outer, list};
        struct Message
        {
            std::uint8_t address;
            bool isRead;
            std::uint8_t* bytes;
            std::size_t size;
        };
        std::vector<Message> work;
        for (std::size_t i = 0; i < count; ++i) {
            std::uint8_t* bytes = nullptr;
            if (messages[i].len > 0) {
                UMockdevIoctlData* buffer = umockdev_ioctl_data_resolve(
                    list, i * sizeof(i2c_msg) + offsetof(i2c_msg, buf), messages[i].len, nullptr);
                held.push_back(buffer);
                bytes = buffer->data;
            }
            work.push_back({std::uint8_t(messages[i].addr), (messages[i].flags & I2C_M_RD) != 0, bytes,
                            messages[i].len});
        }
        answerLater(port, client, std::move(held), [&port, work] {
            for (const Message& each : work) {
                if (const int error = port.transfer(each.address, each.isRead, each.bytes, each.size))
                    return long(-error);
            }
            return long(work.size());
        });
        return TRUE;
    }

    static gboolean onIoctl(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data)
    {
        Port& port = *static_cast<Port*>(data);
        UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
        switch (umockdev_ioctl_client_get_request(client)) {
        case I2C_FUNCS: {
            UMockdevIoctlData* value =
                umockdev_ioctl_data_resolve(argument, 0, sizeof(unsigned long), nullptr);
            const unsigned long functions = I2C_FUNC_SMBUS_EMUL | (port.bed->hasMessages ? I2C_FUNC_I2C : 0);
            std::memcpy(value->data, &functions, sizeof functions);
            umockdev_ioctl_client_complete(client, 0, 0);
            g_object_unref(value);
            return TRUE;
        }
        case I2C_SLAVE:
        case I2C_SLAVE_FORCE: {
            long number = 0; // the argument is the number itself, no address of one
            std::memcpy(&number, argument->data, sizeof number);
            selectedOf(client) = int(number);
            umockdev_ioctl_client_complete(client, 0, 0);
            return TRUE;
        }
        case I2C_TIMEOUT:
        case I2C_RETRIES:
        case I2C_TENBIT:
        case I2C_PEC:
            umockdev_ioctl_client_complete(client, 0, 0);
            return TRUE;
        case I2C_RDWR:
            if (port.bed->hasMessages)
                return transferMessages(port, client, argument);
            umockdev_ioctl_client_complete(client, -1, EOPNOTSUPP);
            return TRUE;
        default:
            umockdev_ioctl_client_complete(client, -1, ENOTTY);
            return TRUE;
        }
    }

    static gboolean plainTransfer(Port& port, UMockdevIoctlClient* client, bool isRead)
    {
        ++port.bed->plain;
        UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
        g_object_ref(argument);
        const auto address = std::uint8_t(selectedOf(client));
        answerLater(port, client, {argument}, [&port, address, isRead, argument] {
            const auto size = std::size_t(argument->data_len);
            const int error = port.transfer(address, isRead, argument->data, size);
            return error ? long(-error) : long(size);
        });
        return TRUE;
    }

    static gboolean onRead(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data)
    {
        return plainTransfer(*static_cast<Port*>(data), client, true);
    }

    static gboolean onWrite(UMockdevIoctlBase*, UMockdevIoctlClient* client, gpointer data)
    {
        return plainTransfer(*static_cast<Port*>(data), client, false);
    }
};

MockBed::MockBed() : d(new Private)
{
    d->testbed = umockdev_testbed_new();
    if (!umockdev_in_mock_environment())
        qFatal("the test needs umockdev's preload: run it with umockdev-wrapper");
    gchar* root = umockdev_testbed_get_root_dir(d->testbed);
    d->root = root;
    g_free(root);
    // Programs look for the driver and for the module of the device files.
    d->touch("/sys/module/i2c_dev/.keep");
    d->touch("/sys/module/i915/.keep");
    d->touch("/sys/bus/pci/drivers/i915/uevent");
    d->touch("/dev/.keep");
    d->pci = d->device("pci", {}, "pci0000:00/0000:00:02.0",
                       {"class", "0x030000\n", "vendor", "0x8086\n", "device", "0x3e92\n", "subsystem_vendor",
                        "0x1028\n", "subsystem_device", "0x085a\n", "boot_vga", "1\n", "enable", "1\n"},
                       {"DRIVER", "i915", "PCI_CLASS", "30000", "PCI_ID", "8086:3E92", "PCI_SLOT_NAME",
                        "0000:00:02.0", "MODALIAS", "pci:v00008086d00003E92sv00001028sd0000085Abc03sc00i00"});
    umockdev_testbed_set_attribute_link(d->testbed, d->pci.c_str(), "driver",
                                        "../../../bus/pci/drivers/i915");
    d->card = d->device("drm", d->pci, "drm/card0", {"dev", "226:0\n"}, {"DEVTYPE", "drm_minor"});
    umockdev_testbed_set_attribute_link(d->testbed, d->card.c_str(), "device", "../../../0000:00:02.0");
}

MockBed::~MockBed()
{
    for (const auto& port : d->ports) {
        umockdev_testbed_detach_ioctl(d->testbed, ("/dev/i2c-" + std::to_string(port->number)).c_str(),
                                      nullptr);
        {
            const std::lock_guard lock(port->mutex);
            port->ends = true;
            port->wake.notify_one();
            port->goesOn.notify_all();
        }
        port->adapter.join();
        g_object_unref(port->handler);
    }
    g_object_unref(d->testbed);
}

MockBed::Port& MockBed::addPort(int bus, const QString& output)
{
    auto made = std::make_unique<Port>();
    Port& port = *made;
    d->ports.push_back(std::move(made));
    port.bed = d.get();
    port.number = bus;
    port.connector = "card0-" + text(output);
    const std::string number = std::to_string(bus);
    const std::string connector = d->addConnector(port.connector);
    umockdev_testbed_set_attribute_link(d->testbed, connector.c_str(), "ddc",
                                        ("../../../i2c-" + number).c_str());

    const std::string name = "i915 gmbus " + text(output) + '\n';
    const std::string adapter = d->device("i2c", d->pci, "i2c-" + number, {"name", name}, {});
    umockdev_testbed_set_attribute_link(d->testbed, adapter.c_str(), "device", "../../0000:00:02.0");
    const std::string node = "/dev/i2c-" + number;
    port.device =
        d->device("i2c-dev", adapter, "i2c-dev/i2c-" + number, {"name", name, "dev", "89:" + number + '\n'},
                  {"MAJOR", "89", "MINOR", number, "DEVNAME", node});
    umockdev_testbed_set_attribute_link(d->testbed, port.device.c_str(), "device",
                                        ("../../../i2c-" + number).c_str());
    d->touch(node);

    port.handler = umockdev_ioctl_base_new();
    g_signal_connect(port.handler, "handle-ioctl", G_CALLBACK(&Private::onIoctl), &port);
    g_signal_connect(port.handler, "handle-read", G_CALLBACK(&Private::onRead), &port);
    g_signal_connect(port.handler, "handle-write", G_CALLBACK(&Private::onWrite), &port);
    GError* error = nullptr;
    if (!umockdev_testbed_attach_ioctl(d->testbed, node.c_str(), port.handler, &error))
        qFatal("attach_ioctl: %s", error->message);
    port.adapter = std::thread([&port] { port.run(); });
    return port;
}

void MockBed::addPanel(const QString& output, const QByteArray& edid)
{
    const std::string connector = "card0-" + text(output);
    const std::string path = d->addConnector(connector);
    d->setConnector(connector, edid);
    const std::string light =
        d->device("backlight", path, "intel_backlight",
                  {"type", "raw\n", "brightness", "100\n", "max_brightness", "400\n"}, {});
    umockdev_testbed_set_attribute_link(d->testbed, light.c_str(), "device", ("../../" + connector).c_str());
}

void MockBed::plug(Port& port, sim::Monitor& monitor)
{
    monitor.plug();
    {
        const std::lock_guard lock(port.mutex);
        port.bus = monitor.makeBus();
    }
    d->setConnector(port.connector, monitor.edid());
}

void MockBed::unplug(Port& port)
{
    {
        const std::lock_guard lock(port.mutex);
        port.bus.reset();
    }
    d->setConnector(port.connector, {});
}

void MockBed::loseOutput(Port& port)
{
    d->setConnector(port.connector, {});
}

void MockBed::hideEdid(Port& port)
{
    d->set(d->card + '/' + port.connector, "edid", "");
}

void MockBed::hang(Port& port, bool on)
{
    const std::lock_guard lock(port.mutex);
    port.hangs = on;
    port.goesOn.notify_all();
}

void MockBed::setPower(Port& port, const char* dpms)
{
    d->set(d->card + '/' + port.connector, "dpms", std::string(dpms) + '\n');
}

void MockBed::sendEvent()
{
    umockdev_testbed_uevent(d->testbed, d->card.c_str(), "change");
}

void MockBed::setNackErrno(Port& port, int error)
{
    const std::lock_guard lock(port.mutex);
    port.nackErrno = error;
}

void MockBed::failTransfers(Port& port, int error, int count)
{
    const std::lock_guard lock(port.mutex);
    port.failErrno = error;
    port.failures = count;
}

int MockBed::failuresLeft(const Port& port) const
{
    const std::lock_guard lock(port.mutex);
    return port.failures;
}

void MockBed::setAccess(Port& port, bool allowed)
{
    const std::string file = d->root + "/dev/i2c-" + std::to_string(port.number);
    std::filesystem::permissions(file, std::filesystem::perms(allowed ? 0600 : 0));
}

void MockBed::sendBusEvent(Port& port)
{
    umockdev_testbed_uevent(d->testbed, port.device.c_str(), "change");
}

void MockBed::setHasMessages(bool has)
{
    d->hasMessages = has;
}

bool MockBed::isTransferring(const Port& port) const
{
    return port.busy;
}

int MockBed::plainTransfers() const
{
    return d->plain;
}

QString MockBed::connectorOf(const Port& port)
{
    return QString::fromStdString(port.connector);
}

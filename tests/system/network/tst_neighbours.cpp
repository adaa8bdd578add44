// SPDX-License-Identifier: Apache-2.0
#include "FakeAvahi.h"
#include "PrivateBus.h"
#include "lushared/LuSettings.h"
#include "services/kvm/KvmNeighbours.h"
#include "services/kvm/NativeKvm.h"

#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace services;

namespace {

const QByteArray OneKey(32, '1');
const QByteArray TwoKey(32, '2');

/// A pointer that stays where it is.
class StillPointer : public PointerService
{
public:
    bool watch(Observer) override { return true; }
    QPoint position() const override { return {}; }
    void moveTo(QPoint) override {}
};

} // namespace

/// Computers that find each other through the network's list of services.
class tst_neighbours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void idDoesNotTellTheCertificate();
    void twoFindEachOther();
    void whoLeavesIsGone();
    void takenNameGetsANumber_data();
    void takenNameGetsANumber();
    void listMayComeAndGo();
    void withoutTheListThereIsNobody();
    void strangeServicesAreLeftOut_data();
    void strangeServicesAreLeftOut();
    void shoutingNetworkIsNotKept();
    void movedComputersMeetAgain();

private:
    QDBusConnection busOf(const QString& who) { return QDBusConnection::connectToBus(m_bus.address(), who); }

    PrivateBus m_bus;
    QTemporaryDir m_settings;
    std::optional<FakeAvahi> m_avahi;
    std::optional<KvmNeighbours> m_one;
    std::optional<KvmNeighbours> m_two;
};

void tst_neighbours::initTestCase()
{
    const QString problem = m_bus.start();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    QCoreApplication::setOrganizationName(u"lumen-desk"_s);
    QVERIFY(LuSettings::instance().open(m_settings.path()));
    qDBusRegisterMetaType<QList<QByteArray>>();
}

void tst_neighbours::init()
{
    m_avahi.emplace(busOf(u"avahi"_s));
    m_one.emplace(busOf(u"one"_s));
    m_two.emplace(busOf(u"two"_s));
}

void tst_neighbours::cleanup()
{
    m_two.reset();
    m_one.reset();
    m_avahi.reset();
    QTRY_VERIFY(!busOf(u"one"_s).interface()->isServiceRegistered(u"org.freedesktop.Avahi"_s));
}

void tst_neighbours::idDoesNotTellTheCertificate()
{
    const QString id = KvmNeighbours::idOf(OneKey);
    QCOMPARE(id.size(), 32);
    QCOMPARE(KvmNeighbours::idOf(OneKey), id);
    QVERIFY(KvmNeighbours::idOf(TwoKey) != id);
    QVERIFY(!QString::fromLatin1(OneKey.toHex()).contains(id));
    QCOMPARE(KvmNeighbours::idOf({}), QString());
}

void tst_neighbours::twoFindEachOther()
{
    QVERIFY(m_avahi->appear());
    m_avahi->addresses = {{u"One"_s, u"192.168.1.7"_s}, {u"Two"_s, u"fe80::7"_s}};
    m_one->start(u"One"_s, 4711, OneKey);
    QTRY_VERIFY(m_avahi->names().contains(u"One"_s));
    m_two->start(u"Two"_s, 4712, TwoKey);
    QTRY_COMPARE(m_one->list().size(), 1);
    QTRY_COMPARE(m_two->list().size(), 1);
    QCOMPARE(m_two->list().first(),
             (KvmNeighbour{KvmNeighbours::idOf(OneKey), u"One"_s, QHostAddress(u"192.168.1.7"_s), 4711}));
    // An address of one cable alone is reached through the interface that it was found on.
    QCOMPARE(m_one->list().first().address.scopeId(), u"2"_s);
    QVERIFY(m_one->isAvailable() && m_two->isAvailable());
    // Another port is told anew.
    m_one->start(u"One"_s, 4713, OneKey);
    QTRY_VERIFY(!m_two->list().isEmpty() && m_two->list().first().port == 4713);
}

void tst_neighbours::whoLeavesIsGone()
{
    QVERIFY(m_avahi->appear());
    m_one->start(u"One"_s, 4711, OneKey);
    m_two->start(u"Two"_s, 4712, TwoKey);
    QTRY_COMPARE(m_two->list().size(), 1);
    m_one->stop();
    QTRY_COMPARE(m_two->list().size(), 0);
    QVERIFY(m_one->list().isEmpty() && !m_one->isAvailable());
    QTRY_COMPARE(m_avahi->names(), QStringList{u"Two"_s});
}

void tst_neighbours::takenNameGetsANumber_data()
{
    QTest::addColumn<bool>("here");
    QTest::newRow("by another computer") << false;
    QTest::newRow("by another person of this computer") << true;
}

void tst_neighbours::takenNameGetsANumber()
{
    QFETCH(bool, here);
    m_avahi->isOneComputer = here;
    QVERIFY(m_avahi->appear());
    m_one->start(u"Desk"_s, 4711, OneKey);
    QTRY_COMPARE(m_avahi->names(), QStringList{u"Desk"_s});
    m_two->start(u"Desk"_s, 4712, TwoKey);
    QTRY_COMPARE(m_avahi->names(), (QStringList{u"Desk"_s, u"Desk #2"_s}));
    // People read the name that it has.
    QTRY_COMPARE(m_one->list().size(), 1);
    QCOMPARE(m_one->list().first().name, u"Desk"_s);
}

void tst_neighbours::listMayComeAndGo()
{
    QSignalSpy changed(&*m_two, &KvmNeighbours::changed);
    m_one->start(u"One"_s, 4711, OneKey);
    m_two->start(u"Two"_s, 4712, TwoKey);
    for (int round = 0; round < 2; ++round) {
        QVERIFY(m_avahi->appear());
        QTRY_COMPARE(m_two->list().size(), 1);
        QVERIFY(m_two->isAvailable());
        m_avahi->leave();
        QTRY_VERIFY(!m_two->isAvailable() && !m_one->isAvailable());
        QCOMPARE(m_two->list().size(), 0);
    }
    QVERIFY(changed.count() >= 4);
}

void tst_neighbours::withoutTheListThereIsNobody()
{
    KvmNeighbours nowhere{QDBusConnection(QString())};
    nowhere.start(u"One"_s, 4711, OneKey);
    QVERIFY(!nowhere.isAvailable());
    QVERIFY(nowhere.list().isEmpty());
}

void tst_neighbours::strangeServicesAreLeftOut_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("port");
    QTest::addColumn<QList<QByteArray>>("texts");
    const QList<QByteArray> good{"v=1", "id=0123", "name=Bad"};
    QTest::newRow("of the Internet") << u"198.51.100.7"_s << 4711 << good;
    QTest::newRow("no address") << u"nonsense"_s << 4711 << good;
    QTest::newRow("no port") << u"192.168.1.9"_s << 0 << good;
    QTest::newRow("no id") << u"192.168.1.9"_s << 4711 << QList<QByteArray>{"v=1"};
    QTest::newRow("this computer's id")
        << u"192.168.1.9"_s << 4711 << QList<QByteArray>{"id=" + KvmNeighbours::idOf(OneKey).toLatin1()};
}

void tst_neighbours::strangeServicesAreLeftOut()
{
    QFETCH(QString, address);
    QFETCH(int, port);
    QFETCH(QList<QByteArray>, texts);
    m_avahi->foreign = {{u"Bad"_s, address, quint16(port), texts},
                        {u"Good"_s, u"192.168.1.8"_s, 4711, {"id=4567", "name=Good\n"}}};
    QVERIFY(m_avahi->appear());
    m_one->start(u"One"_s, 4711, OneKey);
    // The good one is told after the bad one.
    QTRY_COMPARE(m_one->list().size(), 1);
    QCOMPARE(m_one->list().first().name, u"Good"_s);
}

void tst_neighbours::shoutingNetworkIsNotKept()
{
    for (int i = 0; i < 200; ++i)
        m_avahi->foreign.append(
            {u"Name %1"_s.arg(i), u"192.168.1.8"_s, 4711, {"id=" + QByteArray::number(i)}});
    QVERIFY(m_avahi->appear());
    m_one->start(u"One"_s, 4711, OneKey);
    QTRY_COMPARE(m_one->list().size(), 64);
}

void tst_neighbours::movedComputersMeetAgain()
{
    QVERIFY(m_avahi->appear());
    LuSettings::instance().setValue(u"kvm/network"_s, true);
    const QTemporaryDir oneFolder;
    const QTemporaryDir twoFolder;
    const auto make = [this](const QTemporaryDir& folder, const QString& address, const QString& name) {
        KvmChannelOptions options;
        options.folder = folder.path();
        options.address = QHostAddress(address);
        options.port = 0;
        options.firstDialMs = 20;
        options.name = name;
        m_avahi->addresses[name] = address;
        return std::make_unique<NativeKvm>(std::make_shared<StillPointer>(), options, busOf(name));
    };
    auto one = make(oneFolder, u"127.0.0.1"_s, u"One"_s);
    auto two = make(twoFolder, u"127.0.0.2"_s, u"Two"_s);
    QTRY_COMPARE(one->neighbours().list().size(), 1);
    // Paired by what was found.
    const KvmNeighbour found = one->neighbours().list().first();
    QVERIFY(two->channel().startPairing({}, 0));
    QVERIFY(one->channel().startPairing(found.address, found.port));
    QTRY_VERIFY(!one->channel().pairingCode().isEmpty() && !two->channel().pairingCode().isEmpty());
    one->channel().confirmPairing();
    two->channel().confirmPairing();
    QTRY_VERIFY(one->isConnected() && two->isConnected());

    // Both get other addresses and ports; nobody says so.
    one.reset();
    two.reset();
    QTRY_COMPARE(m_avahi->names(), QStringList());
    one = make(oneFolder, u"127.0.0.6"_s, u"One"_s);
    two = make(twoFolder, u"127.0.0.7"_s, u"Two"_s);
    QTRY_VERIFY_WITH_TIMEOUT(one->isConnected() && two->isConnected(), 30'000);
    LuSettings::instance().remove(u"kvm/network"_s);
}

QTEST_GUILESS_MAIN(tst_neighbours)
#include "tst_neighbours.moc"

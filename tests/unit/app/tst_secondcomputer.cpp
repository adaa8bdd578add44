// SPDX-License-Identifier: Apache-2.0
#include "app/adapters/SecondComputer.h"
#include "lushared/LuSettings.h"
#include "services/kvm/NativeKvm.h"

#include <QSignalSpy>
#include <QTcpServer>
#include <QTest>

using namespace Qt::StringLiterals;
using services::KvmChannelOptions;
using services::NativeKvm;

using Answer = LuComputersBackend::Answer;
using Failure = LuComputersState::Failure;
using Phase = LuComputersState::Phase;

namespace {

class StillPointer : public services::PointerService
{
public:
    bool watch(Observer) override { return true; }
    QPoint position() const override { return {}; }
    void moveTo(QPoint) override {}
};

std::shared_ptr<NativeKvm> computer(const QTemporaryDir& folder, const QString& address, const QString& name,
                                    quint16 port = 0)
{
    KvmChannelOptions options;
    options.folder = folder.path();
    options.address = QHostAddress(address);
    options.port = port;
    options.firstDialMs = 20;
    options.name = name;
    return std::make_shared<NativeKvm>(std::make_shared<StillPointer>(), options);
}

} // namespace

/// The channel to the second computer, as the window sees it.
class TestSecondComputer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void addressesAreRead_data();
    void addressesAreRead();
    void whatCannotBeCalledIsRefused();
    void aNameIsLookedUp();
    void anUnknownNameIsTold();
    void aPairingIsFollowed();
    void whatCannotBeSwitchedOnStaysOff();
    void aServiceThatGoesIsNoMore();

private:
    QTemporaryDir m_settings;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QTemporaryDir> m_otherFolder;
};

void TestSecondComputer::initTestCase()
{
    QCoreApplication::setOrganizationName(u"lumen-desk"_s);
    QVERIFY(LuSettings::instance().open(m_settings.path()));
}

void TestSecondComputer::init()
{
    LuSettings::instance().setValue(u"kvm/network"_s, true);
    m_folder = std::make_unique<QTemporaryDir>();
    m_otherFolder = std::make_unique<QTemporaryDir>();
}

void TestSecondComputer::addressesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("host"); // empty: neither an address nor a name
    QTest::addColumn<int>("port");
    const auto row = [](const char* text, const char* host, int port = 47823) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(host) << port;
    };
    row("192.168.1.7", "192.168.1.7");
    row(" 192.168.1.7 ", "192.168.1.7");
    row("192.168.1.7:5000", "192.168.1.7", 5000);
    row("fd00::7", "fd00::7");
    row("fe80::7%eth0", "fe80::7%eth0");
    row("[fd00::7]", "fd00::7");
    row("[fd00::7]:5000", "fd00::7", 5000);
    row("laptop", "laptop");
    row("laptop.local", "laptop.local");
    row("laptop.local:5000", "laptop.local", 5000);
    row("3com", "3com");
    row("", "", 0);
    row("192.168.1.7:0", "", 0);
    row("192.168.1.7:70000", "", 0);
    row("192.168.1.7:", "", 0);
    row("192.168.1", "", 0);
    row("192.168.1.300", "", 0);
    row("7", "", 0);
    row("my desk", "", 0);
    row("-x", "", 0);
    row("a..b", "", 0);
    row("http://192.168.1.7", "", 0);
    row("[fd00::7", "", 0);
}

void TestSecondComputer::addressesAreRead()
{
    QFETCH(QString, text);
    QFETCH(QString, host);
    QFETCH(int, port);
    const TypedAddress typed = TypedAddress::read(text, 47823);
    QCOMPARE(typed.host, host);
    if (!host.isEmpty())
        QCOMPARE(int(typed.port), port);
}

void TestSecondComputer::whatCannotBeCalledIsRefused()
{
    const auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s);
    SecondComputer second(kvm);
    QCOMPARE(second.pairWith(u"my desk"_s), Answer::NoAddress);
    QCOMPARE(second.pairWith(u"198.51.100.7"_s), Answer::NotLocal);
    QCOMPARE(second.movePeer(u"198.51.100.7"_s), Answer::NotLocal);
    QCOMPARE(second.state().phase, Phase::Idle);
}

void TestSecondComputer::aNameIsLookedUp()
{
    const auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s);
    const auto other = computer(*m_otherFolder, u"127.0.0.1"_s, u"Two"_s);
    SecondComputer second(kvm);
    other->channel().startPairing({}, 0);
    QCOMPARE(second.pairWith(u"localhost:%1"_s.arg(other->channel().serverPort())), Answer::Taken);
    QCOMPARE(second.state().phase, Phase::Calling);
    QTRY_COMPARE_WITH_TIMEOUT(second.state().phase, Phase::Comparing, 30'000);
    // Given up while a name is looked up, nobody is called.
    second.cancel();
    QCOMPARE(second.pairWith(u"localhost:%1"_s.arg(other->channel().serverPort())), Answer::Taken);
    second.cancel();
    QCOMPARE(second.state().phase, Phase::Idle);
}

void TestSecondComputer::anUnknownNameIsTold()
{
    const auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s);
    SecondComputer second(kvm);
    // Reserved for what is never there.
    QCOMPARE(second.pairWith(u"desk.invalid"_s), Answer::Taken);
    QTRY_COMPARE_WITH_TIMEOUT(second.state().failure, Failure::UnknownName, 60'000);
    QCOMPARE(second.state().phase, Phase::Idle);
    second.waitForOther();
    QCOMPARE(second.state().failure, Failure::None);
}

void TestSecondComputer::aPairingIsFollowed()
{
    const auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s);
    const auto otherKvm = computer(*m_otherFolder, u"127.0.0.2"_s, u"Two"_s);
    SecondComputer one(kvm);
    SecondComputer two(otherKvm);
    QSignalSpy changed(&one, &LuComputersBackend::changed);
    QVERIFY(one.state().on);
    QCOMPARE(one.state().name, u"One"_s);
    QCOMPARE(one.state().addresses, QStringList{u"127.0.0.1:%1"_s.arg(kvm->channel().serverPort())});
    two.waitForOther();
    QCOMPARE(two.state().phase, Phase::Waiting);
    QCOMPARE(one.pairWith(two.state().addresses.first()), Answer::Taken);
    QCOMPARE(one.state().phase, Phase::Calling);
    QTRY_COMPARE(one.state().phase, Phase::Comparing);
    QTRY_COMPARE(two.state().phase, Phase::Comparing);
    QCOMPARE(one.state().code, two.state().code);
    QCOMPARE(one.state().otherName, u"Two"_s);
    one.confirm();
    QCOMPARE(one.state().phase, Phase::Confirmed);
    two.confirm();
    QTRY_VERIFY(one.state().connected && two.state().connected);
    QVERIFY(one.state().paired && changed.count() > 3);
    QCOMPARE(one.state().peerName, u"Two"_s);
    QCOMPARE(one.state().peerAddress, two.state().addresses.first());
    QCOMPARE(one.state().phase, Phase::Idle);
    two.forget();
    QTRY_VERIFY(one.state().forgottenThere);
    one.forget();
    QVERIFY(!one.state().paired && !one.state().forgottenThere);
    one.setOn(false);
    QVERIFY(!one.state().on && one.state().addresses.isEmpty());
    QCOMPARE(LuSettings::instance().value(u"kvm/network"_s).toBool(), false);
}

void TestSecondComputer::whatCannotBeSwitchedOnStaysOff()
{
    LuSettings::instance().setValue(u"kvm/network"_s, false);
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress(u"127.0.0.1"_s)));
    const auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s, taken.serverPort());
    SecondComputer second(kvm);
    second.setOn(true);
    QVERIFY(!second.state().on);
    QVERIFY(!second.state().trouble.isEmpty());
    QCOMPARE(LuSettings::instance().value(u"kvm/network"_s).toBool(), false);
    taken.close();
    second.setOn(true);
    QVERIFY(second.state().on);
    QCOMPARE(second.state().trouble, QString());
}

void TestSecondComputer::aServiceThatGoesIsNoMore()
{
    auto kvm = computer(*m_folder, u"127.0.0.1"_s, u"One"_s);
    SecondComputer second(kvm);
    kvm.reset();
    QVERIFY(!second.state().on);
    second.setOn(true);
    second.waitForOther();
    second.confirm();
    second.cancel();
    second.forget();
    QCOMPARE(second.pairWith(u"127.0.0.1"_s), Answer::Taken);
    QCOMPARE(second.state().phase, Phase::Idle);
}

QTEST_GUILESS_MAIN(TestSecondComputer)
#include "tst_secondcomputer.moc"

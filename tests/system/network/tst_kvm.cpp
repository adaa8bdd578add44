// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuKvm.h>

#include "Patience.h"
#include "lushared/LuSettings.h"
#include "services/kvm/NativeKvm.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;
using namespace services;

namespace {

const QRect Screen(0, 0, 1000, 500);

/// A pointer that a test moves.
class Pointer : public PointerService
{
public:
    bool watch(Observer observer) override
    {
        m_observer = std::move(observer);
        return true;
    }
    QPoint position() const override { return at; }
    void moveTo(QPoint position) override { at = position; }
    bool isWatched() const { return bool(m_observer); }

    void move(QPoint position, QPointF motion)
    {
        at = position;
        const Observer observer = m_observer;
        if (observer)
            observer(position, motion);
    }
    /// From the middle of the screen out through a side at a height.
    void cross(int x, int y)
    {
        move(Screen.center(), {1, 0});
        for (int i = 0; i < 20; ++i)
            move({x, y}, {x == 0 ? -10.0 : 10.0, 0});
    }

    QPoint at = Screen.center();

private:
    Observer m_observer;
};

/// One of two computers, on a loopback address of its own.
struct Computer
{
    explicit Computer(const QString& where) : address(where) { start(); }

    void start()
    {
        kvm.reset();
        pointer = std::make_shared<Pointer>();
        KvmChannelOptions options;
        options.folder = folder.path();
        options.address = address;
        options.port = port;
        options.firstDialMs = 20;
        options.name = name();
        options.pulseMs = pulseMs;
        kvm = std::make_unique<NativeKvm>(pointer, options);
        port = kvm->channel().serverPort(); // the same at the next start
        kvm->setScreenRect(Screen);
    }

    QString name() const { return u"Computer at "_s + address.toString() + nameSuffix; }

    QHostAddress address;
    QString nameSuffix;
    quint16 port = 0;
    int pulseMs = KvmLink::UsualPulseMs;
    QTemporaryDir folder;
    std::shared_ptr<Pointer> pointer;
    std::unique_ptr<NativeKvm> kvm;
};

/// A TLS client that shows a certificate, its own or that of a folder, and says what it likes.
class Stranger : public QSslSocket
{
public:
    explicit Stranger(const Computer& computer, bool withCertificate = true, const QString& folder = {})
    {
        QSslConfiguration configuration;
        configuration.setPeerVerifyMode(QSslSocket::QueryPeer);
        if (withCertificate) {
            const auto identity = KvmIdentity::load(folder.isEmpty() ? m_folder.path() : folder);
            configuration.setLocalCertificate(identity->certificate);
            configuration.setPrivateKey(identity->key);
        }
        setSslConfiguration(configuration);
        connectToHostEncrypted(computer.address.toString(), computer.port);
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

/// Two instances on two loopback addresses, with pointers that the test moves.
class tst_kvm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase() { QVERIFY(LuSettings::instance().flush()); }

    void channelIsOffByDefault();
    void settingSwitchesTheChannel();
    void unpairedComputersStayApart();
    void strangerIsDropped_data();
    void strangerIsDropped();
    void strangerCannotGoOnWithoutAHandshake();
    void manyStrangersAreNotKept();
    void pairingShowsOneCodeAndNeedsBoth();
    void refusedCodeLeavesBothUnpaired();
    void pairingTakesOneTryAStart();
    void waitingOutlivesWhoIsNoPair_data();
    void waitingOutlivesWhoIsNoPair();
    void pairingWithAnAddressOfTheInternetIsRefused();
    void pairedComputersMeetAgainAfterARestart();
    void forgottenComputerIsDropped();
    void imposterOnThePairedAddressIsDropped();
    void damagedLinesEndTheLink_data();
    void damagedLinesEndTheLink();

    void failuresAreToldApart_data();
    void failuresAreToldApart();
    void computersTellTheirNames();
    void namesAreShownSafely_data();
    void namesAreShownSafely();
    void forgottenComputerIsTold();
    void forgottenComputerPairsAnew();
    void movedComputerIsMetAgain();
    void movedComputerIsMetByItsNewAddress();
    void addressOfTheInternetIsNoPeers();
    void shoutingNetworkMakesOneCall_data();
    void shoutingNetworkMakesOneCall();
    void silentComputerIsGone();
    void knownAddressesAreKept();
    void pairingThatCannotBeRemovedIsTold();
    void pairingOutlivesTheSwitch();
    void driverOfTheFullVariantIsTheChannel();

    void crossingSwitchesWithoutAChannel();
    void crossingIsNotCountedTwice();
    void inactiveWatchSeesNothing();
    void pointerEntersWhereItLeft();
    void pointerComesBack();
    void pointerIsFoundAgainAfterARestart();
    void crossingThatWasNotHeardCounts();
    void sidesAreAgreed();
    void sideChosenOnOneIsTheOthersOpposite();
    void connectionIsToldToTheFullVariantOnly();

private:
    /// Lets the two pair as two people do.
    void pair();
    QTemporaryDir m_settings;
    std::unique_ptr<Computer> m_one;
    std::unique_ptr<Computer> m_two;
};

void tst_kvm::initTestCase()
{
    QCoreApplication::setOrganizationName(u"lumen-desk"_s);
    QVERIFY(LuSettings::instance().open(m_settings.path()));
}

void tst_kvm::init()
{
    LuSettings::instance().setValue(u"kvm/network"_s, true);
    m_one = std::make_unique<Computer>(u"127.0.0.1"_s);
    m_two = std::make_unique<Computer>(u"127.0.0.2"_s);
    for (const auto& computer : {m_one.get(), m_two.get()})
        QVERIFY2(computer->kvm->channel().isEnabled(), qPrintable(computer->kvm->channel().errorText()));
}

void tst_kvm::cleanup()
{
    m_one.reset();
    m_two.reset();
    LuSettings::instance().remove(u"kvm/network"_s);
}

void tst_kvm::pair()
{
    QVERIFY(m_two->kvm->channel().startPairing({}, 0));
    QVERIFY(m_one->kvm->channel().startPairing(m_two->address, m_two->port));
    QTRY_VERIFY(!m_one->kvm->channel().pairingCode().isEmpty() &&
                !m_two->kvm->channel().pairingCode().isEmpty());
    m_one->kvm->channel().confirmPairing();
    m_two->kvm->channel().confirmPairing();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
}

void tst_kvm::channelIsOffByDefault()
{
    LuSettings::instance().remove(u"kvm/network"_s);
    QTemporaryDir folder;
    KvmChannelOptions options;
    options.folder = folder.path();
    options.address = QHostAddress(u"127.0.0.3"_s);
    options.port = 0;
    NativeKvm kvm(std::make_shared<Pointer>(), options);
    QVERIFY(!kvm.channel().isEnabled());
    QVERIFY(!kvm.channel().startPairing({}, 0));
    // Not even a key is made.
    QVERIFY(QDir(folder.path()).isEmpty());
}

void tst_kvm::settingSwitchesTheChannel()
{
    QTemporaryDir folder;
    KvmChannelOptions options;
    options.folder = folder.path();
    options.address = QHostAddress(u"127.0.0.3"_s);
    options.port = 0;
    LuSettings::instance().setValue(u"kvm/network"_s, true);
    NativeKvm kvm(std::make_shared<Pointer>(), options);
    QVERIFY(kvm.channel().isEnabled());
    LuSettings::instance().setValue(u"kvm/network"_s, false);
    kvm.applySetting();
    QVERIFY(!kvm.channel().isEnabled());
}

void tst_kvm::unpairedComputersStayApart()
{
    QVERIFY(!m_one->kvm->channel().isPaired());
    // One side wants, the other has not been asked.
    QSignalSpy failed(&m_one->kvm->channel(), &KvmChannel::pairingFailed);
    QVERIFY(m_one->kvm->channel().startPairing(m_two->address, m_two->port));
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!m_one->kvm->isConnected() && !m_two->kvm->isConnected());
    QVERIFY(!m_one->kvm->channel().isPaired() && !m_two->kvm->channel().isPaired());
}

void tst_kvm::strangerIsDropped_data()
{
    QTest::addColumn<bool>("withCertificate");
    QTest::newRow("with a certificate") << true;
    QTest::newRow("without a certificate") << false;
}

void tst_kvm::strangerIsDropped()
{
    QFETCH(bool, withCertificate);
    pair();
    QSignalSpy received(&m_two->kvm->channel(), &KvmChannel::received);
    Stranger stranger(*m_two, withCertificate);
    stranger.write("{\"t\":\"take\",\"turn\":1000,\"along\":0.5}\n");
    QTRY_COMPARE(stranger.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(m_two->kvm->isConnected());
    for (const QList<QVariant>& message : std::as_const(received))
        QVERIFY(message[0].toJsonObject()[u"turn"].toInt() != 1000);
}

void tst_kvm::strangerCannotGoOnWithoutAHandshake()
{
    QTcpSocket plain;
    plain.connectToHost(m_two->address, m_two->port);
    QTRY_COMPARE(plain.state(), QAbstractSocket::ConnectedState);
    plain.write("{\"t\":\"pair\",\"version\":1}\n");
    QTRY_COMPARE(plain.state(), QAbstractSocket::UnconnectedState);
}

void tst_kvm::manyStrangersAreNotKept()
{
    std::vector<std::unique_ptr<QTcpSocket>> silent;
    for (int i = 0; i < 30; ++i) {
        silent.push_back(std::make_unique<QTcpSocket>());
        silent.back()->connectToHost(m_two->address, m_two->port);
    }
    const auto open = [&] {
        return std::count_if(silent.begin(), silent.end(), [](const auto& each) {
            return each->state() == QAbstractSocket::ConnectedState;
        });
    };
    QTRY_COMPARE(open(), 8);
}

void tst_kvm::pairingShowsOneCodeAndNeedsBoth()
{
    KvmChannel& one = m_one->kvm->channel();
    KvmChannel& two = m_two->kvm->channel();
    QSignalSpy code(&one, &KvmChannel::codeKnown);
    QSignalSpy paired(&two, &KvmChannel::paired);
    QVERIFY(two.startPairing({}, 0));
    QVERIFY(one.startPairing(m_two->address, m_two->port));
    QTRY_COMPARE(code.count(), 1);
    QTRY_COMPARE(two.pairingCode(), one.pairingCode());
    QCOMPARE(one.pairingCode().size(), 6);
    two.confirmPairing();
    two.confirmPairing();
    // What the first one sends after this has gone through its whole queue.
    Stranger later(*m_one);
    QTRY_COMPARE(later.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(!one.isPaired() && !two.isPaired());
    one.confirmPairing();
    QTRY_VERIFY(one.isConnected() && two.isConnected());
    QCOMPARE(paired.count(), 1);
    QVERIFY(one.hasPrecedence() != two.hasPrecedence());
    QVERIFY(!one.isPairing() && !two.isPairing());
}

void tst_kvm::refusedCodeLeavesBothUnpaired()
{
    KvmChannel& one = m_one->kvm->channel();
    KvmChannel& two = m_two->kvm->channel();
    QVERIFY(two.startPairing({}, 0));
    QVERIFY(one.startPairing(m_two->address, m_two->port));
    QTRY_VERIFY(!one.pairingCode().isEmpty() && !two.pairingCode().isEmpty());
    one.confirmPairing();
    QSignalSpy failed(&one, &KvmChannel::pairingFailed);
    two.cancelPairing();
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!one.isPaired() && !two.isPaired());
    QVERIFY(!one.isPairing() && !two.isPairing());
}

void tst_kvm::pairingTakesOneTryAStart()
{
    KvmChannel& two = m_two->kvm->channel();
    QSignalSpy failed(&two, &KvmChannel::pairingFailed);
    QVERIFY(two.startPairing({}, 0));
    Stranger guesser(*m_two);
    guesser.write("{\"t\":\"pair\",\"version\":1,\"promise\":\"c2hvcnQ=\"}\n");
    QTRY_COMPARE(failed.count(), 1);
    QVERIFY(!two.isPairing());
    Stranger again(*m_two);
    QTRY_COMPARE(again.state(), QAbstractSocket::UnconnectedState);
}

void tst_kvm::waitingOutlivesWhoIsNoPair_data()
{
    QTest::addColumn<QString>("who");
    QTest::newRow("it shows no certificate") << u"nobody"_s;
    QTest::newRow("it says nothing") << u"silent"_s;
    QTest::newRow("they were a pair, forgotten here") << u"forgotten"_s;
    QTest::newRow("they were a pair, installed anew here") << u"anew"_s;
}

void tst_kvm::waitingOutlivesWhoIsNoPair()
{
    QFETCH(QString, who);
    if (who == "forgotten"_L1 || who == "anew"_L1) {
        pair();
        m_two->kvm->channel().forget();
    }
    if (who == "anew"_L1) {
        QVERIFY(QFile::remove(m_two->folder.filePath(u"identity.pem"_s)));
        m_two->start();
    }
    KvmChannel& one = m_one->kvm->channel();
    KvmChannel& two = m_two->kvm->channel();
    QSignalSpy failed(&two, &KvmChannel::pairingFailed);
    QVERIFY(two.startPairing({}, 0));
    if (one.isPaired()) {
        // The first one still calls: the end of each of its calls is told.
        QSignalSpy changed(&one, &KvmChannel::changed);
        QTRY_VERIFY(changed.count() >= 3);
    } else {
        Stranger stranger(*m_two, who != "nobody"_L1);
        QSignalSpy encrypted(&stranger, &QSslSocket::encrypted);
        if (who == "nobody"_L1)
            stranger.write("{\"t\":\"port\",\"port\":4711}\n{\"t\":\"reveal\"}\n");
        QTRY_COMPARE(encrypted.count(), 1);
        if (who == "silent"_L1)
            stranger.disconnectFromHost();
        QTRY_COMPARE(stranger.state(), QAbstractSocket::UnconnectedState);
    }
    QVERIFY(two.isPairing() && failed.isEmpty());
    QVERIFY(one.startPairing(m_two->address, m_two->port));
    QTRY_VERIFY(!one.pairingCode().isEmpty() && !two.pairingCode().isEmpty());
    one.confirmPairing();
    two.confirmPairing();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
}

void tst_kvm::pairingWithAnAddressOfTheInternetIsRefused()
{
    QVERIFY(!m_one->kvm->channel().startPairing(QHostAddress(u"198.51.100.7"_s), 47823));
    QVERIFY(!m_one->kvm->channel().startPairing(QHostAddress(u"2001:db8::1"_s), 47823));
    QVERIFY(!m_one->kvm->channel().isPairing());
}

void tst_kvm::pairedComputersMeetAgainAfterARestart()
{
    pair();
    m_two->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
    m_one->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
    // Both call at once, again and again.
    m_one->start();
    m_two->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
}

void tst_kvm::forgottenComputerIsDropped()
{
    pair();
    m_one->kvm->channel().forget();
    QTRY_VERIFY(!m_one->kvm->isConnected() && !m_two->kvm->isConnected());
    m_one->start();
    QVERIFY(!m_one->kvm->channel().isPaired());
    // The other one still calls; it is refused.
    QSignalSpy connected(&m_one->kvm->channel(), &KvmChannel::connectedChanged);
    Stranger later(*m_one);
    QTRY_COMPARE(later.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(connected.isEmpty());
}

void tst_kvm::imposterOnThePairedAddressIsDropped()
{
    pair();
    // The other computer's address and port, another key.
    QFile::remove(m_two->folder.filePath(u"identity.pem"_s));
    m_two->start();
    QTRY_VERIFY(!m_one->kvm->isConnected());
    QSignalSpy connected(&m_one->kvm->channel(), &KvmChannel::connectedChanged);
    Stranger later(*m_one);
    QTRY_COMPARE(later.state(), QAbstractSocket::UnconnectedState);
    QVERIFY(connected.isEmpty() && !m_one->kvm->isConnected());
}

void tst_kvm::damagedLinesEndTheLink_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no JSON") << QByteArray("garbage\n");
    QTest::newRow("a list") << QByteArray("[1]\n");
    QTest::newRow("endless") << QByteArray(100'000, 'x');
}

void tst_kvm::damagedLinesEndTheLink()
{
    QFETCH(QByteArray, line);
    QSignalSpy failed(&m_two->kvm->channel(), &KvmChannel::pairingFailed);
    QVERIFY(m_two->kvm->channel().startPairing({}, 0));
    Stranger stranger(*m_two);
    stranger.write("{\"t\":\"port\",\"port\":4711}\n");
    stranger.write(line);
    QTRY_COMPARE(failed.count(), 1);
    QTRY_COMPARE(stranger.state(), QAbstractSocket::UnconnectedState);
}

void tst_kvm::failuresAreToldApart_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<int>("failure");
    QTest::newRow("nothing listens there") << u"nothing"_s << int(KvmFailure::NotReached);
    QTest::newRow("something else listens there") << u"else"_s << int(KvmFailure::NotReached);
    QTest::newRow("it waits for nobody") << u"idle"_s << int(KvmFailure::NotWaiting);
    QTest::newRow("the other person says no") << u"no"_s << int(KvmFailure::Refused);
    QTest::newRow("no rules") << u"rules"_s << int(KvmFailure::Broken);
    QTest::newRow("no port") << u"port"_s << int(KvmFailure::Broken);
}

void tst_kvm::failuresAreToldApart()
{
    QFETCH(QString, what);
    KvmChannel& one = m_one->kvm->channel();
    KvmChannel& two = m_two->kvm->channel();
    QSignalSpy failed(&one, &KvmChannel::pairingFailed);
    QTcpServer other;
    std::optional<Stranger> stranger;
    if (what == "nothing"_L1) {
        const quint16 port = m_two->port;
        m_two.reset();
        QVERIFY(one.startPairing(QHostAddress(u"127.0.0.2"_s), port));
    } else if (what == "else"_L1) {
        QVERIFY(other.listen(QHostAddress(u"127.0.0.4"_s)));
        connect(&other, &QTcpServer::newConnection, &other,
                [&] { other.nextPendingConnection()->write("220 this is no Lumen Desk\r\n"); });
        QVERIFY(one.startPairing(other.serverAddress(), other.serverPort()));
    } else if (what == "rules"_L1 || what == "port"_L1) {
        QVERIFY(one.startPairing({}, 0));
        stranger.emplace(*m_one);
        stranger->write(what == "port"_L1 ? "{\"t\":\"port\",\"port\":70000}\n" : "{\"t\":\"reveal\"}\n");
    } else {
        QVERIFY(what != "no"_L1 || two.startPairing({}, 0));
        QVERIFY(one.startPairing(m_two->address, m_two->port));
        if (what == "no"_L1) {
            QTRY_VERIFY(!one.pairingCode().isEmpty() && !two.pairingCode().isEmpty());
            two.cancelPairing();
        }
    }
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, 60'000);
    QTEST(int(one.failure()), "failure");
    QVERIFY(one.startPairing({}, 0));
    QCOMPARE(one.failure(), KvmFailure::None);
}

void tst_kvm::computersTellTheirNames()
{
    QVERIFY(m_two->kvm->channel().startPairing({}, 0));
    QVERIFY(m_one->kvm->channel().startPairing(m_two->address, m_two->port));
    QTRY_COMPARE(m_one->kvm->channel().pairingName(), m_two->name());
    QTRY_COMPARE(m_two->kvm->channel().pairingName(), m_one->name());
    m_one->kvm->channel().cancelPairing();
    QTRY_VERIFY(!m_two->kvm->channel().isPairing());
    pair();
    QCOMPARE(m_one->kvm->channel().peer().name, m_two->name());
    // A new name is learnt as they meet.
    m_two->nameSuffix = u" (new)"_s;
    m_two->start();
    QTRY_VERIFY(m_one->kvm->isConnected());
    QTRY_COMPARE(m_one->kvm->channel().peer().name, m_two->name());
    m_one->start();
    QCOMPARE(m_one->kvm->channel().peer().name, m_two->name());
}

void tst_kvm::namesAreShownSafely_data()
{
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << u"Martha's laptop"_s << u"Martha's laptop"_s;
    QTest::newRow("lines") << u"a\nb\tc"_s << u"abc"_s;
    QTest::newRow("blanks") << u"  a   b "_s << u"a b"_s;
    QTest::newRow("turned round") << u"a\u202Eb"_s << u"ab"_s;
    QTest::newRow("endless") << QString(100'000, u'x') << QString(64, u'x');
    QTest::newRow("nothing") << QString() << QString();
}

void tst_kvm::namesAreShownSafely()
{
    QFETCH(QString, told);
    QTEST(shownName(told), "shown");
}

void tst_kvm::forgottenComputerIsTold()
{
    pair();
    QVERIFY(!m_two->kvm->channel().isForgottenThere());
    m_one->kvm->channel().forget();
    QSignalSpy connected(&m_two->kvm->channel(), &KvmChannel::connectedChanged);
    QTRY_VERIFY(m_two->kvm->channel().isForgottenThere());
    // It is no connection that comes and goes.
    QVERIFY(connected.count() <= 1);
    QVERIFY(!m_two->kvm->isConnected());
    m_two->kvm->channel().forget();
    QVERIFY(!m_two->kvm->channel().isForgottenThere());
}

// Whichever of the two calls, and whichever has forgotten.
void tst_kvm::forgottenComputerPairsAnew()
{
    pair();
    m_one->kvm->channel().forget();
    QTRY_VERIFY(!m_two->kvm->isConnected());
    pair();
    m_two->kvm->channel().forget();
    QTRY_VERIFY(!m_one->kvm->isConnected());
    pair();
    QVERIFY(!m_one->kvm->channel().isForgottenThere() && !m_two->kvm->channel().isForgottenThere());
}

void tst_kvm::movedComputerIsMetAgain()
{
    pair();
    // It is at another address, and calls from there.
    m_two->address = QHostAddress(u"127.0.0.5"_s);
    m_two->port = 0;
    m_two->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
    QTRY_COMPARE(m_one->kvm->channel().peer().port, m_two->port);
    QCOMPARE(m_one->kvm->channel().peer().addresses.first(), m_two->address);
    // The first one finds it there by itself.
    m_one->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
}

void tst_kvm::movedComputerIsMetByItsNewAddress()
{
    pair();
    m_two->kvm.reset();
    QTRY_VERIFY(!m_one->kvm->isConnected());
    // Both have moved: neither knows where the other one is.
    m_one->address = QHostAddress(u"127.0.0.6"_s);
    m_one->port = 0;
    m_one->start();
    m_two->address = QHostAddress(u"127.0.0.7"_s);
    m_two->port = 0;
    m_two->start();
    QVERIFY(!m_one->kvm->isConnected());
    m_one->kvm->channel().tryAddress(m_two->address, m_two->port);
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
    QCOMPARE(m_one->kvm->channel().peer().addresses.first(), m_two->address);
    // Kept: they meet again after a restart, too.
    m_one->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
}

void tst_kvm::addressOfTheInternetIsNoPeers()
{
    QVERIFY(!m_one->kvm->channel().setPeerAddress(m_two->address, m_two->port)); // not paired
    pair();
    const QList<QHostAddress> before = m_one->kvm->channel().peer().addresses;
    QVERIFY(!m_one->kvm->channel().setPeerAddress(QHostAddress(u"198.51.100.7"_s), 47823));
    QVERIFY(!m_one->kvm->channel().setPeerAddress(m_two->address, 0));
    QCOMPARE(m_one->kvm->channel().peer().addresses, before);
    QVERIFY(m_one->kvm->isConnected());
}

void tst_kvm::shoutingNetworkMakesOneCall_data()
{
    QTest::addColumn<int>("addresses");
    QTest::newRow("one address") << 1;
    QTest::newRow("many addresses") << 30;
}

void tst_kvm::shoutingNetworkMakesOneCall()
{
    QFETCH(int, addresses);
    pair();
    m_two->kvm.reset();
    QTRY_VERIFY(!m_one->kvm->isConnected());
    // Takes calls and never answers.
    QTcpServer silent;
    QVERIFY(silent.listen(QHostAddress::AnyIPv4));
    for (int i = 0; i < 30; ++i)
        m_one->kvm->channel().tryAddress(QHostAddress(u"127.0.1.%1"_s.arg(1 + i % addresses)),
                                         silent.serverPort());
    // There is room for whoever calls.
    Stranger caller(*m_one);
    QSignalSpy encrypted(&caller, &QSslSocket::encrypted);
    QTRY_COMPARE(caller.state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(encrypted.count(), 1);
}

void tst_kvm::silentComputerIsGone()
{
    pair();
    m_two->kvm.reset();
    m_one->pulseMs = 20;
    m_one->start();
    // As the second one says hello, and then falls asleep.
    Stranger sleeper(*m_one, true, m_two->folder.path());
    sleeper.write("{\"t\":\"hello\",\"port\":4711}\n");
    QSignalSpy connected(&m_one->kvm->channel(), &KvmChannel::connectedChanged);
    QTRY_COMPARE(connected.count(), 2);
    QVERIFY(!m_one->kvm->isConnected());
}

void tst_kvm::knownAddressesAreKept()
{
    QTemporaryDir folder;
    KvmPeer peer;
    peer.fingerprint = QByteArray(32, 'f');
    peer.name = u"Desk"_s;
    peer.port = 4711;
    for (int i = 1; i <= 6; ++i)
        QVERIFY(peer.remember(QHostAddress(u"192.168.1.%1"_s.arg(i))));
    QVERIFY(!peer.remember(QHostAddress(u"::ffff:192.168.1.6"_s)));
    QVERIFY(peer.remember(QHostAddress(u"192.168.1.4"_s)));
    QVERIFY(peer.save(folder.path()));
    const KvmPeer read = KvmPeer::load(folder.path());
    QCOMPARE(read.addresses, (QList{QHostAddress(u"192.168.1.4"_s), QHostAddress(u"192.168.1.6"_s),
                                    QHostAddress(u"192.168.1.5"_s), QHostAddress(u"192.168.1.3"_s)}));
    QCOMPARE(read.name, u"Desk"_s);
    QCOMPARE(read.port, 4711);
    QCOMPARE(QFile::permissions(folder.filePath(u"peer.json"_s)) & (QFile::ReadGroup | QFile::ReadOther),
             QFile::Permissions());
    QVERIFY(KvmPeer::remove(folder.path()));
    QVERIFY(!KvmPeer::load(folder.path()).isPaired());
    QVERIFY(KvmPeer::remove(folder.path()));
}

void tst_kvm::pairingThatCannotBeRemovedIsTold()
{
    pair();
    const QString file = KvmPeer::fileIn(m_one->folder.path());
    QVERIFY(QFile::remove(file));
    QVERIFY(QDir().mkpath(file + u"/something"_s)); // no file any more, which not even root removes
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"the pairing cannot be removed"_s));
    m_one->kvm->channel().forget();
    QVERIFY(!m_one->kvm->channel().isPaired());
}

void tst_kvm::pairingOutlivesTheSwitch()
{
    pair();
    LuSettings::instance().setValue(u"kvm/network"_s, false);
    m_one->kvm->applySetting();
    QTRY_VERIFY(!m_two->kvm->isConnected());
    QVERIFY(m_one->kvm->channel().isPaired());
    m_one->start();
    // Switched off, it still says whom it is paired with, and may forget.
    QVERIFY(!m_one->kvm->channel().isEnabled() && m_one->kvm->channel().isPaired());
    m_one->kvm->channel().forget();
    m_one->start();
    QVERIFY(!m_one->kvm->channel().isPaired());
}

void tst_kvm::driverOfTheFullVariantIsTheChannel()
{
    QVERIFY(m_one->kvm->isDriverInstalled());
    QSignalSpy changed(LuKvm::instance(), &LuKvm::kvmChanged);
    m_one->kvm->setType(LuKvm::SmartKvm);
    QVERIFY(!m_one->kvm->isDriverInstalled());
    QTRY_COMPARE(changed.count(), 1);
    QSignalSpy wanted(m_one->kvm.get(), &NativeKvm::setUpRequested);
    m_one->kvm->installDriver();
    QTRY_COMPARE(wanted.count(), 1);
    pair();
    QVERIFY(m_one->kvm->isDriverInstalled());
    QCOMPARE(changed.count(), 3); // set up, connected
    m_one->kvm->channel().forget();
    QVERIFY(!m_one->kvm->isDriverInstalled());
}

void tst_kvm::crossingSwitchesWithoutAChannel()
{
    LuSettings::instance().setValue(u"kvm/network"_s, false);
    QSignalSpy changed(LuKvm::instance(), &LuKvm::kvmChanged);
    m_one->kvm->activate();
    QTRY_VERIFY(m_one->pointer->isWatched());
    QVERIFY(!m_one->kvm->channel().isEnabled());
    m_one->pointer->cross(999, 250);
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY(!m_one->kvm->isPointerHere());
}

void tst_kvm::crossingIsNotCountedTwice()
{
    QSignalSpy changed(LuKvm::instance(), &LuKvm::kvmChanged);
    m_one->kvm->activate();
    QTRY_VERIFY(m_one->pointer->isWatched());
    m_one->pointer->cross(999, 250);
    m_one->pointer->cross(999, 250); // while the hub still switches
    QTRY_COMPARE(changed.count(), 1);
    m_one->pointer->cross(0, 250); // the side where nobody is
    QCoreApplication::processEvents();
    QCOMPARE(changed.count(), 1);
}

void tst_kvm::inactiveWatchSeesNothing()
{
    QVERIFY(!m_one->pointer->isWatched());
    m_one->kvm->activate();
    QTRY_VERIFY(m_one->pointer->isWatched());
    m_one->kvm->deactivate();
    QTRY_VERIFY(!m_one->pointer->isWatched());
}

void tst_kvm::pointerEntersWhereItLeft()
{
    pair();
    m_one->kvm->setDeviceLocation(LuKvm::TopLocation);
    m_one->kvm->setDeviceLocation(LuKvm::LeftLocation);
    QTRY_COMPARE(m_two->kvm->deviceLocation(), int(LuKvm::RightLocation));
    m_one->kvm->activate();
    m_two->kvm->activate();
    QTRY_VERIFY(m_one->pointer->isWatched() && m_two->pointer->isWatched());
    m_one->pointer->cross(999, 499);
    QTRY_COMPARE(m_two->pointer->at, QPoint(EdgeWatch::Retreat, 499));
    QVERIFY(m_two->kvm->isPointerHere());
    QVERIFY(!m_one->kvm->isPointerHere());
}

void tst_kvm::pointerComesBack()
{
    pointerEntersWhereItLeft();
    QSignalSpy changed(LuKvm::instance(), &LuKvm::kvmChanged);
    m_two->pointer->cross(0, 0);
    QTRY_COMPARE(m_one->pointer->at, QPoint(999 - EdgeWatch::Retreat, 0));
    QTRY_COMPARE(changed.count(), 1);
    QVERIFY(m_one->kvm->isPointerHere());
    QVERIFY(!m_two->kvm->isPointerHere());
}

void tst_kvm::pointerIsFoundAgainAfterARestart()
{
    pointerEntersWhereItLeft();
    m_two->pointer->cross(0, 250);
    QTRY_VERIFY(m_one->kvm->isPointerHere());
    m_one->pointer->cross(999, 250);
    QTRY_VERIFY(m_two->kvm->isPointerHere());
    // It counts from the start again, and still has the pointer.
    m_two->start();
    QTRY_VERIFY(m_one->kvm->isConnected() && m_two->kvm->isConnected());
    QTRY_COMPARE(m_two->kvm->deviceLocation(), int(LuKvm::RightLocation));
    m_two->kvm->activate();
    QTRY_VERIFY(m_two->pointer->isWatched());
    m_two->pointer->cross(0, 100);
    QTRY_COMPARE(m_one->pointer->at, QPoint(999 - EdgeWatch::Retreat, 100));
    QVERIFY(m_one->kvm->isPointerHere());
}

void tst_kvm::crossingThatWasNotHeardCounts()
{
    pointerEntersWhereItLeft();
    const auto areConnected = [this] { return m_one->kvm->isConnected() && m_two->kvm->isConnected(); };
    m_one->kvm->channel().setEnabled(false);
    QTRY_VERIFY(!m_two->kvm->isConnected());
    m_two->pointer->cross(0, 250);
    QVERIFY(!m_two->kvm->isPointerHere() && !m_one->kvm->isPointerHere());
    m_one->kvm->channel().setEnabled(true);
    QTRY_VERIFY(areConnected());
    QTRY_VERIFY(m_one->kvm->isPointerHere());
    QVERIFY(!m_two->kvm->isPointerHere());
}

void tst_kvm::sidesAreAgreed()
{
    // Both on the left, until they meet.
    QCOMPARE(m_one->kvm->deviceLocation(), m_two->kvm->deviceLocation());
    pair();
    Computer& first = m_one->kvm->channel().hasPrecedence() ? *m_one : *m_two;
    Computer& second = m_one->kvm->channel().hasPrecedence() ? *m_two : *m_one;
    QTRY_COMPARE(second.kvm->deviceLocation(), int(LuKvm::RightLocation));
    QCOMPARE(first.kvm->deviceLocation(), int(LuKvm::LeftLocation));
}

void tst_kvm::sideChosenOnOneIsTheOthersOpposite()
{
    pair();
    QSignalSpy changed(LuKvm::instance(), &LuKvm::deviceLocationChanged);
    for (const auto& [chosen, others] : {std::pair(LuKvm::TopLocation, LuKvm::BottomLocation),
                                         std::pair(LuKvm::RightLocation, LuKvm::LeftLocation),
                                         std::pair(LuKvm::BottomLocation, LuKvm::TopLocation)}) {
        m_two->kvm->setDeviceLocation(chosen);
        QCOMPARE(m_two->kvm->deviceLocation(), int(chosen));
        QTRY_COMPARE(m_one->kvm->deviceLocation(), int(others));
    }
    QVERIFY(changed.count() >= 6);
}

void tst_kvm::connectionIsToldToTheFullVariantOnly()
{
    QSignalSpy changed(LuKvm::instance(), &LuKvm::kvmChanged);
    m_one->kvm->setType(LuKvm::SmartKvmBasic);
    m_two->kvm->setType(LuKvm::SmartKvmBasic);
    pair();
    QCOMPARE(changed.count(), 0);
    m_one->kvm->setType(LuKvm::SmartKvm);
    m_two->kvm->channel().forget();
    QTRY_COMPARE(changed.count(), 1);
}

QTEST_GUILESS_MAIN(tst_kvm)
#include "tst_kvm.moc"

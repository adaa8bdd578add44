// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QTcpServer>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

/// A computer of two, with the channel on a loopback address of its own.
class Computer : public DeskProcess
{
public:
    explicit Computer(const QString& channelAddress) : address(channelAddress)
    {
        // One that nobody else on this machine uses at the moment.
        QTcpServer server;
        server.listen(QHostAddress(address), 0);
        port = server.serverPort();
    }

    bool begin(bool withWindow = false)
    {
        QDir().mkpath(filePath(u"config/lumen-desk"_s));
        QFile settings(filePath(u"config/lumen-desk/lumen-desk.ini"_s));
        if (!settings.exists()) {
            if (!settings.open(QIODevice::WriteOnly))
                return false;
            settings.write(u"[kvm]\nport=%1\naddress=%2\n"_s.arg(port).arg(address).toUtf8());
            settings.close();
        }
        QStringList options = usualOptions() + QStringList{u"--services"_s, u"native"_s};
        if (withWindow)
            options.removeAll(u"--headless"_s);
        return start(options);
    }
    bool press(const QString& name, const QString& role)
    {
        return client().call(u"ui.press"_s, {{u"name"_s, name}, {u"role"_s, role}}).ok();
    }
    /// What the windows show, in one text.
    QString shown()
    {
        const QJsonValue tree = client().call(u"ui.tree"_s).result;
        return QString::fromUtf8(QJsonDocument(QJsonArray{tree}).toJson());
    }
    QJsonObject status() { return client().call(u"kvm.status"_s).result.toObject(); }
    bool isConnected() { return status()[u"connected"].toBool(); }
    QString code() { return status()[u"code"].toString(); }

    QString address;
    int port = 0;
};

} // namespace

/// Two whole programs on one X server, paired through their control sockets.
class tst_desk_kvm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void simulatedSessionHasNoChannel();
    void twoComputersArePaired();
    void twoPeoplePairThemInTheWindow();
};

void tst_desk_kvm::simulatedSessionHasNoChannel()
{
    DeskProcess desk;
    QVERIFY2(desk.start(), qPrintable(desk.errors()));
    for (const QString& method :
         {u"kvm.status"_s, u"kvm.pair"_s, u"kvm.confirm"_s, u"kvm.cancel"_s, u"kvm.forget"_s})
        QCOMPARE(desk.client().call(method).code, 2);
    QCOMPARE(desk.client().call(u"kvm.network"_s, {{u"on"_s, true}}).code, 2);
}

void tst_desk_kvm::twoComputersArePaired()
{
    Computer one(u"127.0.0.1"_s);
    Computer two(u"127.0.0.2"_s);
    QVERIFY2(one.begin(), qPrintable(one.errors()));
    QVERIFY2(two.begin(), qPrintable(two.errors()));

    QVERIFY(!one.status()[u"network"].toBool());
    QCOMPARE(one.client().call(u"kvm.pair"_s).code, 3); // off
    QCOMPARE(one.client().call(u"kvm.network"_s, {{u"on"_s, u"yes"_s}}).code, -32602);
    for (Computer* computer : {&one, &two})
        QCOMPARE(computer->client().call(u"kvm.network"_s, {{u"on"_s, true}}).code, 0);
    QCOMPARE(one.client().call(u"kvm.confirm"_s).code, 3); // no code yet
    QCOMPARE(two.client().call(u"kvm.pair"_s, {{u"address"_s, u"198.51.100.1"_s}}).code, -32602);
    QCOMPARE(two.client().call(u"kvm.pair"_s, {{u"address"_s, u"nowhere"_s}}).code, -32602);

    QCOMPARE(one.client().call(u"kvm.pair"_s).code, 0);
    QCOMPARE(two.client().call(u"kvm.pair"_s, {{u"address"_s, one.address}, {u"port"_s, one.port}}).code, 0);
    QTRY_COMPARE_WITH_TIMEOUT(one.code().size(), 6, 30'000);
    QTRY_COMPARE(two.code(), one.code());
    QCOMPARE(one.client().call(u"kvm.confirm"_s).code, 0);
    QVERIFY(!one.status()[u"paired"].toBool());
    QCOMPARE(two.client().call(u"kvm.confirm"_s).code, 0);
    QTRY_VERIFY_WITH_TIMEOUT(one.isConnected() && two.isConnected(), 30'000);
    QTRY_VERIFY(one.status()[u"pointerHere"].toBool() != two.status()[u"pointerHere"].toBool());

    // They meet again, each with its setting and its pairing.
    QCOMPARE(one.stop(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(!two.isConnected(), 30'000);
    QVERIFY2(one.begin(), qPrintable(one.errors()));
    QTRY_VERIFY_WITH_TIMEOUT(one.isConnected() && two.isConnected(), 60'000);
    QCOMPARE(two.client().call(u"kvm.forget"_s).code, 0);
    QTRY_VERIFY_WITH_TIMEOUT(!one.isConnected(), 30'000);
}

void tst_desk_kvm::twoPeoplePairThemInTheWindow()
{
    Computer one(u"127.0.0.1"_s);
    Computer two(u"127.0.0.2"_s);
    for (Computer* computer : {&one, &two}) {
        QVERIFY2(computer->begin(true), qPrintable(computer->errors()));
        // The panel of the monitor leads to the page.
        QVERIFY(computer->client().call(u"ui.open"_s, {{u"widget"_s, u"LuSmartKvmBasicWidget"_s}}).ok());
        QVERIFY(computer->press(u"Connect the other computer"_s, u"link"_s));
        QTRY_VERIFY(computer->shown().contains(u"Two computers that share a monitor"_s));
        QVERIFY(!computer->shown().contains(u"Pair a computer"_s));
        QVERIFY(computer->press(u"Connection to a second computer"_s, u"switch"_s));
        QTRY_VERIFY(computer->status()[u"network"].toBool());
        QTRY_VERIFY(computer->shown().contains(u"%1:%2"_s.arg(computer->address).arg(computer->port)));
    }
    // Nobody waits yet.
    const QString field = u"Address of the other computer"_s;
    const auto call = [&](const QString& address) {
        return two.client().call(u"ui.setValue"_s, {{u"name"_s, field}, {u"value"_s, address}}).ok() &&
               two.press(u"Pair"_s, u"button"_s);
    };
    const QString address = u"%1:%2"_s.arg(one.address).arg(one.port);
    QVERIFY(call(address));
    QTRY_VERIFY_WITH_TIMEOUT(two.shown().contains(u"The other computer is not waiting"_s), 30'000);
    QVERIFY(call(u"my desk"_s));
    QTRY_VERIFY(two.shown().contains(u"This is neither an address"_s));
    QVERIFY(call(u"198.51.100.1"_s));
    QTRY_VERIFY(two.shown().contains(u"Only a computer of your local network"_s));

    QVERIFY(one.press(u"Wait for the other computer"_s, u"button"_s));
    QTRY_VERIFY(one.shown().contains(u"Waiting for the other computer"_s));
    QVERIFY(call(address));
    QTRY_COMPARE_WITH_TIMEOUT(one.code().size(), 6, 30'000);
    QTRY_COMPARE(two.code(), one.code());
    const QString code = one.code().first(3) + u' ' + one.code().last(3);
    QTRY_VERIFY(one.shown().contains(code) && two.shown().contains(code));
    QVERIFY(one.press(u"Yes, pair"_s, u"button"_s));
    QTRY_VERIFY(one.shown().contains(u"Now confirm the code on the other computer"_s));
    QVERIFY(two.press(u"Yes, pair"_s, u"button"_s));
    QTRY_VERIFY_WITH_TIMEOUT(one.isConnected() && two.isConnected(), 30'000);
    QTRY_VERIFY(one.shown().contains(u"Paired computer"_s) && one.shown().contains(u"Connected"_s));

    // One forgets; the other one says so.
    QVERIFY(one.press(u"Forget"_s, u"button"_s));
    QVERIFY(QTest::qWaitFor([&] { return one.press(u"Forget"_s, u"button"_s); }, 30'000));
    QTRY_VERIFY(!one.status()[u"paired"].toBool());
    QTRY_VERIFY_WITH_TIMEOUT(two.shown().contains(u"Not paired there"_s), 60'000);
    for (Computer* computer : {&one, &two}) {
        QCOMPARE(computer->client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(computer->stop(), 0);
    }
}

QTEST_GUILESS_MAIN(tst_desk_kvm)
#include "tst_desk_kvm.moc"

// SPDX-License-Identifier: Apache-2.0
#include "services/kvm/EdgeWatch.h"
#include "services/kvm/KvmIdentity.h"
#include "services/kvm/KvmPairing.h"
#include "services/kvm/PointerTurn.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace services;

namespace {

const QRect Screen(100, 50, 1000, 500);

/// Pushes to the right at the right side in steps of 10, one each 10 ms; the number of crossings.
int push(EdgeWatch* watch, int steps, qint64 fromMs = 1000)
{
    int crossings = 0;
    for (int i = 0; i < steps; ++i)
        crossings += watch->move({1099, 300}, {10, 0}, fromMs + 10 * i);
    return crossings;
}

EdgeWatch watchFrom(QPoint position, Side side = Side::Right)
{
    EdgeWatch watch;
    watch.begin(Screen, side, position);
    return watch;
}

/// Lets two sides talk until both are silent.
void talk(KvmPairing* dialer, KvmPairing* accepter)
{
    QList<QJsonObject> toAccepter = dialer->start();
    QList<QJsonObject> toDialer = accepter->start();
    while (!toAccepter.isEmpty() || !toDialer.isEmpty()) {
        QList<QJsonObject> answers;
        for (const QJsonObject& message : std::exchange(toAccepter, {}))
            answers += accepter->take(message);
        for (const QJsonObject& message : std::exchange(toDialer, answers))
            toAccepter += dialer->take(message);
    }
}

const QByteArray One(32, '1');
const QByteArray Two(32, '2');
const QByteArray Three(32, '3');

} // namespace

class tst_kvmlogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pushAtTheSideCrosses_data();
    void pushAtTheSideCrosses();
    void touchIsNoCrossing();
    void slowTouchesDoNotAddUp();
    void steppingBackBeginsAnew();
    void otherSidesAndScreensDoNotCount_data();
    void otherSidesAndScreensDoNotCount();
    void crossingCountsOnceUntilTheRetreat();
    void watchThatBeginsAtTheSideWaitsForTheRetreat();
    void emptyScreenIsNeverLeft();
    void entranceMirrorsTheExit_data();
    void entranceMirrorsTheExit();

    void pointerIsHereUntilItLeaves();
    void handOnTheWayIsNoReturn();
    void newerWordHolds();
    void equalWordsEndInOneAnswer();

    void bothSidesSeeOneCode();
    void codeNeedsBothPeople();
    void manInTheMiddleChangesTheCode();
    void brokenPromiseFails();
    void wrongTalkFails_data();
    void wrongTalkFails();
    void mirrorFails();
    void codesAreSpread();

    void identityLasts();
    void identityIsTheUsersAlone();
    void damagedIdentityIsReplaced();
};

void tst_kvmlogic::pushAtTheSideCrosses_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QPointF>("motion");
    QTest::newRow("left") << int(Side::Left) << QPoint(100, 300) << QPointF(-10, 3);
    QTest::newRow("right") << int(Side::Right) << QPoint(1099, 50) << QPointF(10, -3);
    QTest::newRow("top") << int(Side::Top) << QPoint(500, 50) << QPointF(0, -10);
    QTest::newRow("bottom") << int(Side::Bottom) << QPoint(1099, 549) << QPointF(5, 10);
}

void tst_kvmlogic::pushAtTheSideCrosses()
{
    QFETCH(int, side);
    QFETCH(QPoint, position);
    QFETCH(QPointF, motion);
    EdgeWatch watch = watchFrom(Screen.center(), Side(side));
    for (int i = 0; i < 9; ++i)
        QVERIFY(!watch.move(position, motion, 10 * i));
    QVERIFY(watch.move(position, motion, 100));
}

void tst_kvmlogic::touchIsNoCrossing()
{
    EdgeWatch watch = watchFrom(Screen.center());
    QCOMPARE(push(&watch, 9), 0);
}

void tst_kvmlogic::slowTouchesDoNotAddUp()
{
    EdgeWatch watch = watchFrom(Screen.center());
    QCOMPARE(push(&watch, 9, 1000), 0);
    QCOMPARE(push(&watch, 9, 2000), 0);
    QCOMPARE(push(&watch, 9, 3000), 0);
}

void tst_kvmlogic::steppingBackBeginsAnew()
{
    EdgeWatch watch = watchFrom(Screen.center());
    QCOMPARE(push(&watch, 9), 0);
    QVERIFY(!watch.move({1099, 300}, {-1, 0}, 1100));
    QCOMPARE(push(&watch, 9, 1110), 0);
}

void tst_kvmlogic::otherSidesAndScreensDoNotCount_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QPointF>("motion");
    QTest::newRow("other side") << QPoint(100, 300) << QPointF(-20, 0);
    QTest::newRow("along the side") << QPoint(1099, 300) << QPointF(0, 20);
    QTest::newRow("one pixel before") << QPoint(1098, 300) << QPointF(20, 0);
    QTest::newRow("on the neighbouring screen") << QPoint(1100, 300) << QPointF(20, 0);
    QTest::newRow("above the screen") << QPoint(1099, 49) << QPointF(20, 0);
}

void tst_kvmlogic::otherSidesAndScreensDoNotCount()
{
    QFETCH(QPoint, position);
    QFETCH(QPointF, motion);
    EdgeWatch watch = watchFrom(Screen.center());
    for (int i = 0; i < 50; ++i)
        QVERIFY(!watch.move(position, motion, 10 * i));
}

void tst_kvmlogic::crossingCountsOnceUntilTheRetreat()
{
    EdgeWatch watch = watchFrom(Screen.center());
    QCOMPARE(push(&watch, 100), 1);
    watch.move({1099 - EdgeWatch::Retreat + 1, 300}, {-5, 0}, 3000);
    QCOMPARE(push(&watch, 100, 3010), 0);
    watch.move({1099 - EdgeWatch::Retreat, 300}, {-5, 0}, 5000);
    QCOMPARE(push(&watch, 100, 5010), 1);
}

void tst_kvmlogic::watchThatBeginsAtTheSideWaitsForTheRetreat()
{
    EdgeWatch watch = watchFrom({1099, 300});
    QCOMPARE(push(&watch, 100), 0);
    watch.move({1000, 300}, {-99, 0}, 3000);
    QCOMPARE(push(&watch, 100, 3010), 1);
}

void tst_kvmlogic::emptyScreenIsNeverLeft()
{
    EdgeWatch watch;
    watch.begin({}, Side::Right, {});
    QCOMPARE(push(&watch, 100), 0);
}

void tst_kvmlogic::entranceMirrorsTheExit_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<QPoint>("exit");
    QTest::addColumn<double>("along");
    QTest::addColumn<QPoint>("entrance"); // on an equal screen, through the opposite side
    QTest::newRow("right, upper corner") << int(Side::Right) << QPoint(1099, 50) << 0.0 << QPoint(132, 50);
    QTest::newRow("right, lower corner") << int(Side::Right) << QPoint(1099, 549) << 1.0 << QPoint(132, 549);
    QTest::newRow("left") << int(Side::Left) << QPoint(100, 549) << 1.0 << QPoint(1067, 549);
    QTest::newRow("top") << int(Side::Top) << QPoint(100, 50) << 0.0 << QPoint(100, 517);
    QTest::newRow("bottom") << int(Side::Bottom) << QPoint(1099, 549) << 1.0 << QPoint(1099, 82);
}

void tst_kvmlogic::entranceMirrorsTheExit()
{
    QFETCH(int, side);
    QFETCH(QPoint, exit);
    QFETCH(double, along);
    QCOMPARE(watchFrom({}, Side(side)).along(exit), along);
    QTEST(watchFrom({}, opposite(Side(side))).entrance(along), "entrance");
}

void tst_kvmlogic::pointerIsHereUntilItLeaves()
{
    PointerTurn turn;
    QVERIFY(turn.isHere());
    QVERIFY(turn.leave(0));
    QVERIFY(!turn.isHere());
    QVERIFY(!turn.leave(10));
}

void tst_kvmlogic::handOnTheWayIsNoReturn()
{
    PointerTurn turn;
    turn.leave(1000);
    QVERIFY(!turn.movedHere(1000 + PointerTurn::GraceMs - 1));
    QVERIFY(turn.movedHere(1000 + PointerTurn::GraceMs));
    QVERIFY(turn.isHere());
    QVERIFY(!turn.movedHere(20'000));
}

void tst_kvmlogic::newerWordHolds()
{
    PointerTurn turn;
    turn.leave(0); // 1
    QVERIFY(!turn.told(true, 0));
    QVERIFY(!turn.isHere());
    QVERIFY(turn.told(true, 2));
    QVERIFY(turn.isHere());
    turn.leave(0);
    QCOMPARE(turn.number(), 3U);
}

void tst_kvmlogic::equalWordsEndInOneAnswer()
{
    PointerTurn first;
    PointerTurn second;
    first.setPrecedence(true);
    second.setPrecedence(false);
    // Both say "it is mine" at the same time; each hears the other afterwards.
    first.leave(-100'000);
    second.leave(-100'000);
    QVERIFY(first.movedHere(0) && second.movedHere(0));
    first.told(false, second.number());
    second.told(false, first.number());
    QVERIFY(first.isHere());
    QVERIFY(!second.isHere());
    QCOMPARE(first.number(), second.number());
}

void tst_kvmlogic::bothSidesSeeOneCode()
{
    KvmPairing dialer(true, One, Two);
    KvmPairing accepter(false, Two, One);
    talk(&dialer, &accepter);
    QVERIFY(!dialer.hasFailed() && !accepter.hasFailed());
    QCOMPARE(dialer.code().size(), 6);
    QCOMPARE(dialer.code(), accepter.code());
}

void tst_kvmlogic::codeNeedsBothPeople()
{
    KvmPairing dialer(true, One, Two);
    KvmPairing accepter(false, Two, One);
    QVERIFY(dialer.confirm().isEmpty()); // nothing to be compared yet
    talk(&dialer, &accepter);
    const QList<QJsonObject> first = dialer.confirm();
    QCOMPARE(first.size(), 1);
    accepter.take(first[0]);
    QVERIFY(!dialer.isDone() && !accepter.isDone());
    dialer.take(accepter.confirm()[0]);
    QVERIFY(dialer.isDone() && accepter.isDone());
}

void tst_kvmlogic::manInTheMiddleChangesTheCode()
{
    // Three stands between the two, with a certificate of its own to each of them.
    KvmPairing dialer(true, One, Three);
    KvmPairing towardsDialer(false, Three, One);
    KvmPairing towardsAccepter(true, Three, Two);
    KvmPairing accepter(false, Two, Three);
    talk(&dialer, &towardsDialer);
    talk(&towardsAccepter, &accepter);
    QVERIFY(!dialer.code().isEmpty() && !accepter.code().isEmpty());
    QVERIFY(dialer.code() != accepter.code());
    // Passing messages on as they are does not help either: the promise names the certificates.
    KvmPairing victim(true, One, Three);
    KvmPairing other(false, Two, Three);
    talk(&victim, &other);
    QVERIFY(other.hasFailed());
    QVERIFY(other.code().isEmpty());
}

void tst_kvmlogic::brokenPromiseFails()
{
    KvmPairing dialer(true, One, Two);
    KvmPairing accepter(false, Two, One);
    const QJsonObject number = accepter.take(dialer.start()[0])[0];
    dialer.take(number);
    // Another number than the promised one, chosen after the accepter's was known.
    QVERIFY(
        accepter
            .take({{u"t"_s, u"reveal"_s}, {u"number"_s, QString::fromLatin1(QByteArray(32, 'x').toBase64())}})
            .isEmpty());
    QVERIFY(accepter.hasFailed());
    QVERIFY(accepter.code().isEmpty());
}

void tst_kvmlogic::wrongTalkFails_data()
{
    QTest::addColumn<bool>("dialer");
    QTest::addColumn<QJsonObject>("message");
    const QString short16 = QString::fromLatin1(QByteArray(16, 'x').toBase64());
    const QString good = QString::fromLatin1(QByteArray(32, 'x').toBase64());
    QTest::newRow("confirmed without a code") << true << QJsonObject{{u"t"_s, u"confirmed"_s}};
    QTest::newRow("number too short") << true << QJsonObject{{u"t"_s, u"number"_s}, {u"number"_s, short16}};
    QTest::newRow("no number") << true << QJsonObject{{u"t"_s, u"number"_s}};
    QTest::newRow("promise to a dialer")
        << true << QJsonObject{{u"t"_s, u"pair"_s}, {u"version"_s, 1}, {u"promise"_s, good}};
    QTest::newRow("promise too short")
        << false << QJsonObject{{u"t"_s, u"pair"_s}, {u"version"_s, 1}, {u"promise"_s, short16}};
    QTest::newRow("another version") << false
                                     << QJsonObject{
                                            {u"t"_s, u"pair"_s}, {u"version"_s, 2}, {u"promise"_s, good}};
    QTest::newRow("reveal without a promise")
        << false << QJsonObject{{u"t"_s, u"reveal"_s}, {u"number"_s, good}};
    QTest::newRow("number to an accepter")
        << false << QJsonObject{{u"t"_s, u"number"_s}, {u"number"_s, good}};
    QTest::newRow("session message") << false << QJsonObject{{u"t"_s, u"take"_s}};
    QTest::newRow("nothing") << false << QJsonObject{};
}

void tst_kvmlogic::wrongTalkFails()
{
    QFETCH(bool, dialer);
    QFETCH(QJsonObject, message);
    KvmPairing pairing(dialer, One, Two);
    pairing.start();
    QVERIFY(pairing.take(message).isEmpty());
    QVERIFY(pairing.hasFailed());
    pairing.confirm();
    QVERIFY(!pairing.isDone());
}

void tst_kvmlogic::mirrorFails()
{
    QVERIFY(KvmPairing(true, One, One).hasFailed());
    QVERIFY(KvmPairing(true, One, {}).hasFailed());
}

void tst_kvmlogic::codesAreSpread()
{
    QSet<QString> codes;
    for (int i = 0; i < 500; ++i) {
        KvmPairing dialer(true, One, Two);
        KvmPairing accepter(false, Two, One);
        talk(&dialer, &accepter);
        codes.insert(dialer.code());
    }
    // Of 500 codes out of a million, 0.1 meet on average.
    QVERIFY2(codes.size() >= 495, qPrintable(QString::number(codes.size())));
}

void tst_kvmlogic::identityLasts()
{
    QTemporaryDir folder;
    const auto first = KvmIdentity::load(folder.path() + u"/kvm"_s);
    QVERIFY(first);
    QCOMPARE(first->fingerprint().size(), 32);
    // As a whole number in a certificate has to be: positive and without leading zeros.
    const int lead = first->certificate.serialNumber().left(2).toInt(nullptr, 16);
    QVERIFY2(lead >= 0x40 && lead <= 0x7f, first->certificate.serialNumber().constData());
    const auto second = KvmIdentity::load(folder.path() + u"/kvm"_s);
    QCOMPARE(second->fingerprint(), first->fingerprint());
    QTemporaryDir other;
    QVERIFY(KvmIdentity::load(other.path())->fingerprint() != first->fingerprint());
}

void tst_kvmlogic::identityIsTheUsersAlone()
{
    QTemporaryDir folder;
    QVERIFY(KvmIdentity::load(folder.path()));
    const auto permissions = QFileInfo(folder.filePath(u"identity.pem"_s)).permissions();
    QVERIFY(!(permissions & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
}

void tst_kvmlogic::damagedIdentityIsReplaced()
{
    QTemporaryDir folder;
    const auto first = KvmIdentity::load(folder.path());
    QFile file(folder.filePath(u"identity.pem"_s));
    QVERIFY(file.resize(100));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"a damaged identity is replaced"_s));
    const auto second = KvmIdentity::load(folder.path());
    QVERIFY(second && second->fingerprint() != first->fingerprint());
}

QTEST_GUILESS_MAIN(tst_kvmlogic)
#include "tst_kvmlogic.moc"

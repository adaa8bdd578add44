// SPDX-License-Identifier: Apache-2.0
#include "PictureDesk.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString A = u"TK30Z@A"_s;
const QString B = u"TK20@B"_s;

} // namespace

/// Two monitors and more whose brightness is kept alike.
class TestPictureSync : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theDifferenceOfTwoMonitorsIsKept();
    void theDifferenceOutlivesTheEndsOfTheRange();
    void eitherMonitorLeads();
    void aFollowerNeverLeadsBack();
    void aSliderEndsOnItsExactPlaceOnBoth();
    void aChoiceAtTheMenuIsANewDifference();
    void readBackOfTheSamePictureMovesNobody();
    void offMeansThatNobodyFollows();
    void alone_nothingIsActive();
    void theOrderIsNotThatOfTheAnswers();
    void aThirdMonitorJoinsAsItIs();
    void theStateAndTheDifferenceOutliveARestart();
    void aMonitorThatComesBackKeepsItsPlace();
    void theBuiltInPanelTakesPart();
    void dimmingIsAllowedWhereAllCanDim();
    void theFirstLightSensorLeads();

private:
    PictureDesk& desk() { return *m_desk; }
    bool toggle(bool on) { return desk().set(u"context.brightnessSync.state"_s, on); }
    bool move(const QString& monitor, int value)
    {
        return desk().set(u"brightness.displayBrightness"_s, value, monitor);
    }
    int at(const QString& monitor)
    {
        return desk().get(u"brightness.displayBrightness"_s, monitor).toInt(-1);
    }
    QJsonValue sync(const QString& property) { return desk().get(u"context.brightnessSync."_s + property); }
    bool startBoth(const QStringList& more = {});

    std::unique_ptr<PictureDesk> m_desk;
};

void TestPictureSync::init()
{
    m_desk = std::make_unique<PictureDesk>();
}

void TestPictureSync::cleanup()
{
    m_desk.reset();
}

bool TestPictureSync::startBoth(const QStringList& more)
{
    return desk().startWith(A + u',' + B, more);
}

void TestPictureSync::theDifferenceOfTwoMonitorsIsKept()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 75));
    QCOMPARE(sync(u"available"_s), QJsonValue(true));
    QVERIFY(toggle(true));
    QCOMPARE(sync(u"active"_s), QJsonValue(true));
    QCOMPARE(sync(u"members"_s), (QJsonValue(QJsonArray{A, B})));
    QCOMPARE(desk().get(u"brightness.syncBaseline"_s, A), QJsonValue(60));
    QCOMPARE(desk().get(u"brightness.syncBaseline"_s, B), QJsonValue(75));
    QCOMPARE(at(B), 75);
    QVERIFY(move(A, 50));
    QTRY_COMPARE(at(B), 65);
    QCOMPARE(sync(u"leader"_s), QJsonValue(A));
    QVERIFY(desk().logs().contains(u"[LuBrightnessSync] leads: TK30Z@A 50"_s));
    // What is stored is where the group began.
    QCOMPARE(desk().setting(u"LuBrightness/syncBaseline"_s, B), QJsonValue(75));
}

void TestPictureSync::theDifferenceOutlivesTheEndsOfTheRange()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 80));
    QVERIFY(toggle(true));
    QVERIFY(move(A, 100));
    QTRY_COMPARE(at(B), 100);
    QVERIFY(move(A, 70));
    QTRY_COMPARE(at(B), 90);
    QVERIFY(move(A, 0));
    QTRY_COMPARE(at(B), 20);
    // And the other one at its lower end.
    QVERIFY(move(B, 5));
    QTRY_COMPARE(at(A), 0);
    QVERIFY(move(B, 45));
    QTRY_COMPARE(at(A), 25);
}

void TestPictureSync::eitherMonitorLeads()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 40));
    QVERIFY(move(B, 40));
    QVERIFY(toggle(true));
    QVERIFY(move(B, 55));
    QTRY_COMPARE(at(A), 55);
    QCOMPARE(sync(u"leader"_s), QJsonValue(B));
    QVERIFY(move(A, 52));
    QTRY_COMPARE(at(B), 52);
    QCOMPARE(sync(u"leader"_s), QJsonValue(A));
}

void TestPictureSync::aFollowerNeverLeadsBack()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 70));
    QVERIFY(toggle(true));
    desk().forget(A);
    desk().forget(B);
    for (int value = 59; value >= 40; --value)
        QVERIFY(move(A, value));
    QTRY_COMPARE(at(B), 50);
    // One write of each monitor for each move, and none because of another.
    QCOMPARE(desk().writes(A).size(), 20);
    QVERIFY(desk().writes(B).size() <= 20);
    QCOMPARE(desk().logs().filter(u"leads: TK20@B"_s), QStringList());
    QCOMPARE(at(A), 40);
}

void TestPictureSync::aSliderEndsOnItsExactPlaceOnBoth()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, false, A));
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, false, B));
    QVERIFY(move(A, 50));
    QVERIFY(move(B, 30));
    QVERIFY(toggle(true));
    // Moves without waiting for any of them.
    QList<int> requests;
    for (int i = 0; i < 150; ++i)
        requests.append(desk().client().send(u"set"_s, {{u"monitor"_s, A},
                                                        {u"path"_s, u"brightness.displayBrightness"_s},
                                                        {u"value"_s, (i * 37) % 101}}));
    requests.append(desk().client().send(
        u"set"_s, {{u"monitor"_s, A}, {u"path"_s, u"brightness.displayBrightness"_s}, {u"value"_s, 83}}));
    for (const int request : requests)
        QVERIFY(desk().client().wait(request).ok());
    QVERIFY(desk().idle());
    QTRY_COMPARE(desk().held(0x10, A), 83);
    QTRY_COMPARE(desk().held(0x10, B), 63);
    QCOMPARE(at(A), 83);
    QCOMPARE(at(B), 63);
    QCOMPARE(desk().logs().filter(u"leads: TK20@B"_s), QStringList());
}

void TestPictureSync::aChoiceAtTheMenuIsANewDifference()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(desk().set(u"brightness.softwareDimming.state"_s, false, B));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 60));
    QVERIFY(toggle(true));
    QVERIFY(desk().menu(0x10, 80, B));
    QVERIFY(desk().sync(u"LuBrightness"_s, B));
    QCOMPARE(at(A), 60);
    QVERIFY(move(A, 50));
    QTRY_COMPARE(at(B), 70);
}

void TestPictureSync::readBackOfTheSamePictureMovesNobody()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 60));
    QVERIFY(toggle(true));
    // 1 and 5 look the same below the overlay, so the follower is read back as 5.
    QVERIFY(move(A, 1));
    QTRY_COMPARE(at(B), 1);
    QVERIFY(desk().sync(u"LuBrightness"_s, B));
    QCOMPARE(at(B), 5);
    QVERIFY(desk().sync(u"LuBrightness"_s, A));
    QCOMPARE(at(A), 5);
    QVERIFY(move(A, 40));
    QTRY_COMPARE(at(B), 40);
}

void TestPictureSync::offMeansThatNobodyFollows()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 70));
    QVERIFY(move(A, 20));
    QCOMPARE(at(B), 70);
    QVERIFY(toggle(true));
    QVERIFY(move(A, 30));
    QTRY_COMPARE(at(B), 80);
    QVERIFY(toggle(false));
    QVERIFY(move(A, 10));
    QVERIFY(desk().idle());
    QCOMPARE(at(B), 80);
    QCOMPARE(sync(u"active"_s), QJsonValue(false));
}

void TestPictureSync::alone_nothingIsActive()
{
    QVERIFY2(desk().startWith(A + u",ACME24"_s), qPrintable(desk().errors()));
    QCOMPARE(sync(u"available"_s), QJsonValue(false));
    QVERIFY(toggle(true));
    QCOMPARE(sync(u"state"_s), QJsonValue(true));
    QCOMPARE(sync(u"active"_s), QJsonValue(false));
    const QJsonValue before = desk().get(u"brightness.displayBrightness"_s, u"ACME24"_s);
    QVERIFY(move(A, 33));
    QCOMPARE(desk().get(u"brightness.displayBrightness"_s, u"ACME24"_s), before);
}

// The first monitor answers late at the start, so that the second one's model is there before its own.
void TestPictureSync::theOrderIsNotThatOfTheAnswers()
{
    const QString late =
        desk().write(u"late.json"_s,
                     R"({"faults": [{"monitor": "TK30Z@A", "code": 220, "kind": "timeout", "count": 1}]})");
    QVERIFY2(startBoth({u"--ddc-timing"_s, u"real"_s, u"--state"_s, late}), qPrintable(desk().errors()));
    QTRY_COMPARE(sync(u"members"_s).toArray().size(), 2);
    QStringList lines;
    const QJsonArray log = desk().client().call(u"log"_s).result.toArray();
    for (const QJsonValue& line : log)
        lines.append(line.toObject().value(u"text"_s).toString());
    const qsizetype addedA = lines.indexOf(u"[LuMonitorRegistry] monitor TK30Z@A is supported"_s);
    const qsizetype addedB = lines.indexOf(u"[LuMonitorRegistry] monitor TK20@B is supported"_s);
    QVERIFY2(addedB >= 0 && addedB < addedA, qPrintable(lines.join(u'\n')));
    QCOMPARE(sync(u"members"_s), (QJsonValue(QJsonArray{A, B})));
}

void TestPictureSync::aThirdMonitorJoinsAsItIs()
{
    QVERIFY2(desk().startWith(A + u',' + B + u",TK30@C"_s), qPrintable(desk().errors()));
    const QString c = u"TK30@C"_s;
    QVERIFY(desk().client().call(u"sim.unplug"_s, {{u"monitor"_s, c}}).ok());
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 70));
    QVERIFY(toggle(true));
    QVERIFY(move(A, 50));
    QTRY_COMPARE(at(B), 60);
    QVERIFY(desk().client().call(u"sim.plug"_s, {{u"monitor"_s, c}}).ok());
    QTRY_COMPARE(sync(u"members"_s).toArray().size(), 3);
    QVERIFY(desk().idle());
    QVERIFY(desk().sync(u"LuBrightness"_s, c));
    const int joined = at(c);
    QVERIFY(joined > 20);
    QVERIFY(move(A, 45));
    QTRY_COMPARE(at(B), 55);
    QTRY_COMPARE(at(c), joined - 5);
}

void TestPictureSync::theStateAndTheDifferenceOutliveARestart()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 80));
    QVERIFY(toggle(true));
    QVERIFY(move(A, 100));
    QTRY_COMPARE(at(B), 100);
    QCOMPARE(desk().stop(), 0);
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QCOMPARE(sync(u"state"_s), QJsonValue(true));
    // At the end of its range it had no difference to see; it is known all the same.
    QVERIFY(move(A, 50));
    QTRY_COMPARE(at(B), 70);
}

void TestPictureSync::aMonitorThatComesBackKeepsItsPlace()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 70));
    QVERIFY(toggle(true));
    QVERIFY(desk().client().call(u"sim.unplug"_s, {{u"monitor"_s, B}}).ok());
    QTRY_COMPARE(sync(u"active"_s), QJsonValue(false));
    QVERIFY(desk().client().call(u"sim.plug"_s, {{u"monitor"_s, B}}).ok());
    QTRY_COMPARE(sync(u"active"_s), QJsonValue(true));
    QVERIFY(desk().idle());
    QVERIFY(move(A, 55));
    QTRY_COMPARE(at(B), 65);
}

void TestPictureSync::theBuiltInPanelTakesPart()
{
    const QString world = desk().write(u"world.json"_s, R"({"services": {"systemBrightness": 0.5}})");
    QVERIFY2(desk().startWith(A + u",builtin"_s, {u"--state"_s, world}), qPrintable(desk().errors()));
    QVERIFY(move(A, 70));
    QVERIFY(toggle(true));
    QVERIFY(move(A, 80));
    QTRY_COMPARE(desk().client().value(u"services.get"_s, {{u"path"_s, u"systemBrightness"_s}}).toDouble(),
                 0.6);
    // The notebook's own keys lead, too.
    QVERIFY(desk()
                .client()
                .call(u"services.set"_s, {{u"path"_s, u"systemBrightness"_s}, {u"value"_s, 0.4}})
                .ok());
    QTRY_COMPARE(at(A), 60);
    QVERIFY(desk().idle());
    QCOMPARE(desk().client().value(u"services.get"_s, {{u"path"_s, u"systemBrightness"_s}}).toDouble(), 0.4);
}

void TestPictureSync::dimmingIsAllowedWhereAllCanDim()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QCOMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(true));
    QVERIFY(toggle(true));
    QCOMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(true));
    QVERIFY(
        desk()
            .client()
            .call(u"watch"_s, {{u"paths"_s, QJsonArray{u"context.brightnessSync.allowSoftwareDimming"_s}}})
            .ok());
    QVERIFY(desk().client().call(u"sim.plug"_s, {{u"monitor"_s, u"builtin"_s}}).ok());
    QTRY_COMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(false));
    QTRY_COMPARE(desk().client().messages().size(), 1);
    QVERIFY(toggle(false));
    QCOMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(true));
}

void TestPictureSync::theFirstLightSensorLeads()
{
    QVERIFY2(startBoth(), qPrintable(desk().errors()));
    QVERIFY(move(A, 60));
    QVERIFY(move(B, 70));
    QVERIFY(toggle(true));
    QCOMPARE(sync(u"sensorSource"_s), QJsonValue(QJsonValue::Null));
    QVERIFY(desk().set(u"abPlus.state"_s, true, A));
    QTRY_COMPARE(sync(u"sensorSource.id"_s), QJsonValue(A));
    QCOMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(false));
    // What the light of the room does to the one happens to the other.
    QVERIFY(desk().menu(0x10, 90, A));
    QVERIFY(desk().sync(u"LuBrightness"_s, A));
    const int moved = at(A) - 60;
    QVERIFY(moved > 10);
    QTRY_COMPARE(at(B), qMin(100, 70 + moved));
    QCOMPARE(sync(u"leader"_s), QJsonValue(A));
    // A second sensor waits its turn.
    QVERIFY(desk().set(u"abPlus.state"_s, true, B));
    QCOMPARE(sync(u"sensorSource.id"_s), QJsonValue(A));
    QVERIFY(desk().set(u"abPlus.state"_s, false, A));
    QTRY_COMPARE(sync(u"sensorSource.id"_s), QJsonValue(B));
    QVERIFY(desk().set(u"abPlus.state"_s, false, B));
    QTRY_COMPARE(sync(u"allowSoftwareDimming"_s), QJsonValue(true));
}

QTEST_GUILESS_MAIN(TestPictureSync)
#include "tst_picture_sync.moc"

// SPDX-License-Identifier: Apache-2.0
#include "services/pulse/PulseState.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace services;

class tst_pulsestate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void monitorsNameComesFirst_data();
    void monitorsNameComesFirst();
    void everyPercentageComesBack();
    void volumesAreClamped();
    void volumesAreNoChangeOfOutputs();
    void defaultIsFoundByName();
};

void tst_pulsestate::monitorsNameComesFirst_data()
{
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("monitor");
    QTest::addColumn<QString>("title");
    QTest::newRow("no monitor") << u"Built-in Audio"_s << QString() << u"Built-in Audio"_s;
    QTest::newRow("monitor") << u"Digital Stereo (HDMI)"_s << u"TK30Z"_s
                             << u"TK30Z (Digital Stereo (HDMI))"_s;
    QTest::newRow("named already") << u"TK30Z Digital Stereo"_s << u"TK30Z"_s << u"TK30Z Digital Stereo"_s;
}

void tst_pulsestate::monitorsNameComesFirst()
{
    QFETCH(QString, description);
    QFETCH(QString, monitor);
    QTEST(outputTitle(description, monitor), "title");
}

void tst_pulsestate::everyPercentageComesBack()
{
    for (int percent = 0; percent <= 100; ++percent)
        QCOMPARE(percentOfVolume(volumeOfPercent(percent)), percent);
    QCOMPARE(volumeOfPercent(100), 65536U);
    QCOMPARE(volumeOfPercent(0), 0U);
}

void tst_pulsestate::volumesAreClamped()
{
    QCOMPARE(percentOfVolume(65536 * 3 / 2), 100);
    QCOMPARE(volumeOfPercent(101), 65536U);
    QCOMPARE(volumeOfPercent(-1), 0U);
}

void tst_pulsestate::volumesAreNoChangeOfOutputs()
{
    const PulseState before{{{1, u"a"_s, u"A"_s, 10}}, u"a"_s};
    PulseState after = before;
    after.outputs[0].volume = 20;
    after.outputs[0].index = 7; // the server was started anew
    QVERIFY(after.hasSameOutputs(before));
    after.outputs[0].description = u"B"_s;
    QVERIFY(!after.hasSameOutputs(before));
    after = before;
    after.defaultName = u"b"_s;
    QVERIFY(!after.hasSameOutputs(before));
    after = before;
    after.outputs.append({2, u"b"_s, u"B"_s, 10});
    QVERIFY(!after.hasSameOutputs(before));
}

void tst_pulsestate::defaultIsFoundByName()
{
    PulseState state{{{1, u"a"_s, u"A"_s, 10}, {2, u"b"_s, u"B"_s, 20}}, u"b"_s};
    QCOMPARE(state.defaultOutput()->volume, 20);
    state.defaultName = u"c"_s;
    QVERIFY(!state.defaultOutput());
}

QTEST_APPLESS_MAIN(tst_pulsestate)
#include "tst_pulsestate.moc"

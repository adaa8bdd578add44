// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>

#include "TestMonitor.h"
#include "lushared/services/ServiceRegistry.h"
#include "services/wayland/Display.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace services::wayland;

namespace {

/// A compositor with two outputs that a test looks into.
class Compositor : public OutputControl
{
public:
    QList<Output> outputs() const override
    {
        ++asked;
        return all;
    }
    bool change(const QString& name, const OutputChange& change) override
    {
        changes.append(name);
        last = change;
        if (refuses)
            return false;
        for (Output& output : all) {
            if (output.name != name)
                continue;
            output.modeId = change.modeId.value_or(output.modeId);
            output.degrees = change.degrees.value_or(output.degrees);
            output.scale = change.scale.value_or(output.scale);
        }
        return true;
    }
    void setListener(Listener given) override { listener = std::move(given); }

    QList<Output> all{{u"DP-1"_s,
                       {{u"a"_s, {3840, 2160}, 60, {1, 1.25, 2, 4.0 / 3}},
                        {u"b"_s, {3840, 2160}, 30, {1, 2}},
                        {u"c"_s, {1920, 1080}, 59.94, {1}},
                        {u"d"_s, {1920, 1080}, 120, {1, 2}}},
                       u"a"_s,
                       0,
                       1,
                       {0, 0}},
                      {u"HDMI-1"_s, {{u"e"_s, {1280, 1024}, 60, {1}}}, {}, 0, 1, {3840, 0}}};
    QList<QString> changes;
    OutputChange last;
    bool refuses = false;
    mutable int asked = 0;
    Listener listener;
};

} // namespace

class tst_waylanddisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { services::Registry::install({}); }
    void modesAtARate_data();
    void modesAtARate();
    void presentStateIsTold();
    void outputThatIsOffIsAbsent();
    void modeIsChosen_data();
    void modeIsChosen();
    void temporaryModeIsNotKept();
    void scalingsAreTheModes();
    void hiDpiIsTwice();
    void turnTransposesTheResolution();
    void sameValueChangesNothing();
    void refusalIsTold();
    void changesAreToldOnce();
    void compositorIsAskedOnce();
    void neighboursStayBeside_data();
    void neighboursStayBeside();

private:
    std::shared_ptr<Compositor> m_compositor;
    QSharedPointer<MonitorInfo> m_monitor = testMonitor(u"DP-1"_s);
};

void tst_waylanddisplay::init()
{
    m_compositor = std::make_shared<Compositor>();
    services::ServiceSet set;
    set.display = makeDisplay(m_compositor);
    services::Registry::install(set);
}

void tst_waylanddisplay::modesAtARate_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<QList<QSize>>("sizes");
    QTest::newRow("60") << 60 << QList<QSize>{{3840, 2160}, {1920, 1080}};
    QTest::newRow("30") << 30 << QList<QSize>{{3840, 2160}};
    QTest::newRow("any") << 0 << QList<QSize>{{3840, 2160}, {1920, 1080}};
    QTest::newRow("none") << 75 << QList<QSize>{};
}

void tst_waylanddisplay::modesAtARate()
{
    QFETCH(int, rate);
    QTEST(LuPlatform::availableMonitorResolutions(m_monitor, rate), "sizes");
}

void tst_waylanddisplay::presentStateIsTold()
{
    QCOMPARE(LuPlatform::getMonitorResolution(m_monitor), QSize(3840, 2160));
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 100);
    QVERIFY(!LuPlatform::getMonitorHiDPI(m_monitor));
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DP-1"_s), QRect(0, 0, 3840, 2160));
}

void tst_waylanddisplay::outputThatIsOffIsAbsent()
{
    for (const QString& name : {u"HDMI-1"_s, u"DP-9"_s, QString()}) {
        const auto monitor = testMonitor(name);
        QVERIFY(!LuPlatform::getMonitorResolution(monitor).isValid());
        QVERIFY(LuPlatform::availableMonitorDpiScalings(monitor).isEmpty());
        QVERIFY(!LuPlatform::setResolution(monitor, {1280, 1024}, 60, true, LuPlatform::AnyHidpi));
        QVERIFY(LuPlatform::getNativeScreenRect(name).isNull());
    }
    QVERIFY(m_compositor->changes.isEmpty());
}

void tst_waylanddisplay::modeIsChosen_data()
{
    QTest::addColumn<double>("scale"); // at present
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("match");
    QTest::addColumn<QString>("mode"); // empty: none
    QTest::addColumn<double>("newScale");
    const QSize full(1920, 1080);
    QTest::newRow("at a rate") << 1.0 << full << 120 << int(LuPlatform::AnyHidpi) << u"d"_s << 1.0;
    QTest::newRow("at a broken rate") << 1.0 << full << 60 << int(LuPlatform::AnyHidpi) << u"c"_s << 1.0;
    QTest::newRow("first at any rate") << 2.0 << full << 0 << int(LuPlatform::AnyHidpi) << u"c"_s << 1.0;
    QTest::newRow("same scale preferred")
        << 2.0 << full << 0 << int(LuPlatform::PreferSameHidpi) << u"d"_s << 2.0;
    QTest::newRow("preferred, but there is none")
        << 2.0 << full << 60 << int(LuPlatform::PreferSameHidpi) << u"c"_s << 1.0;
    QTest::newRow("same scale required")
        << 2.0 << full << 0 << int(LuPlatform::RequireSameHidpi) << u"d"_s << 2.0;
    QTest::newRow("required, but there is none")
        << 2.0 << full << 60 << int(LuPlatform::RequireSameHidpi) << QString() << 2.0;
    QTest::newRow("no such size") << 1.0 << QSize(800, 600) << 60 << int(LuPlatform::AnyHidpi) << QString()
                                  << 1.0;
    QTest::newRow("no such rate") << 1.0 << full << 75 << int(LuPlatform::AnyHidpi) << QString() << 1.0;
}

void tst_waylanddisplay::modeIsChosen()
{
    QFETCH(double, scale);
    QFETCH(QSize, size);
    QFETCH(int, rate);
    QFETCH(int, match);
    QFETCH(QString, mode);
    QFETCH(double, newScale);
    m_compositor->all[0].scale = scale;
    m_compositor->listener();
    QCOMPARE(LuPlatform::setResolution(m_monitor, size, rate, true, LuPlatform::HidpiMatchMode(match)),
             !mode.isEmpty());
    QCOMPARE(m_compositor->all[0].modeId, mode.isEmpty() ? u"a"_s : mode);
    QCOMPARE(m_compositor->all[0].scale, newScale);
}

void tst_waylanddisplay::temporaryModeIsNotKept()
{
    QVERIFY(LuPlatform::setResolution(m_monitor, {1920, 1080}, 60, false, LuPlatform::AnyHidpi));
    QVERIFY(!m_compositor->last.permanent);
}

void tst_waylanddisplay::scalingsAreTheModes()
{
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(m_monitor), QList<int>({100, 125, 133, 200}));
    LuPlatform::setMonitorDpiScaling(m_monitor, 133);
    QCOMPARE(m_compositor->all[0].scale, 4.0 / 3);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 133);
    LuPlatform::setMonitorDpiScaling(m_monitor, 150); // not offered
    QCOMPARE(m_compositor->changes.size(), 1);
}

void tst_waylanddisplay::hiDpiIsTwice()
{
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, true));
    QVERIFY(LuPlatform::getMonitorHiDPI(m_monitor));
    QCOMPARE(m_compositor->all[0].scale, 2.0);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, false));
    QCOMPARE(m_compositor->all[0].scale, 1.0);
    QVERIFY(LuPlatform::setResolution(m_monitor, {1920, 1080}, 60, true, LuPlatform::AnyHidpi));
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true)); // that mode has no such scale
    QCOMPARE(m_compositor->all[0].scale, 1.0);
}

void tst_waylanddisplay::turnTransposesTheResolution()
{
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QCOMPARE(m_compositor->all[0].degrees, 90);
    QCOMPARE(LuPlatform::getMonitorResolution(m_monitor), QSize(2160, 3840));
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DP-1"_s).size(), QSize(2160, 3840));
}

void tst_waylanddisplay::sameValueChangesNothing()
{
    LuPlatform::setMonitorPivot(m_monitor, 0);
    LuPlatform::setMonitorDpiScaling(m_monitor, 100);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, false));
    QVERIFY(m_compositor->changes.isEmpty());
}

void tst_waylanddisplay::refusalIsTold()
{
    m_compositor->refuses = true;
    QVERIFY(!LuPlatform::setResolution(m_monitor, {1920, 1080}, 60, true, LuPlatform::AnyHidpi));
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true));
}

void tst_waylanddisplay::changesAreToldOnce()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QVERIFY(changed.isEmpty()); // after the call has returned
    m_compositor->listener();
    m_compositor->listener();
    QTRY_COMPARE(changed.count(), 1);
    m_compositor->listener(); // nothing is different
    const int asked = m_compositor->asked;
    QTRY_VERIFY(m_compositor->asked > asked);
    QCOMPARE(changed.count(), 1);
}

void tst_waylanddisplay::compositorIsAskedOnce()
{
    const int asked = m_compositor->asked;
    for (int i = 0; i < 10; ++i)
        (void)LuPlatform::getMonitorResolution(m_monitor);
    QCOMPARE(m_compositor->asked, asked);
    m_compositor->listener();
    (void)LuPlatform::getMonitorResolution(m_monitor);
    QCOMPARE(m_compositor->asked, asked + 1);
}

void tst_waylanddisplay::neighboursStayBeside_data()
{
    QTest::addColumn<QList<QRect>>("before");
    QTest::addColumn<QSize>("size"); // of the first
    QTest::addColumn<QList<QRect>>("after");
    const QRect first(0, 0, 1920, 1080);
    QTest::newRow("alone") << QList<QRect>{first} << QSize(1080, 1920) << QList<QRect>{{0, 0, 1080, 1920}};
    QTest::newRow("right") << QList<QRect>{first, {1920, 0, 800, 600}} << QSize(1080, 1920)
                           << QList<QRect>{{0, 0, 1080, 1920}, {1080, 0, 800, 600}};
    QTest::newRow("left") << QList<QRect>{first, {-800, 0, 800, 600}} << QSize(1080, 1920)
                          << QList<QRect>{{0, 0, 1080, 1920}, {-800, 0, 800, 600}};
    QTest::newRow("below") << QList<QRect>{first, {0, 1080, 800, 600}} << QSize(1080, 1920)
                           << QList<QRect>{{0, 0, 1080, 1920}, {0, 1920, 800, 600}};
    QTest::newRow("two to the right")
        << QList<QRect>{first, {1920, 0, 800, 600}, {2720, 0, 800, 600}} << QSize(3840, 2160)
        << QList<QRect>{{0, 0, 3840, 2160}, {3840, 0, 800, 600}, {4640, 0, 800, 600}};
}

void tst_waylanddisplay::neighboursStayBeside()
{
    QFETCH(QList<QRect>, before);
    QFETCH(QSize, size);
    QTEST(arranged(before, 0, size), "after");
}

QTEST_MAIN(tst_waylanddisplay)
#include "tst_waylanddisplay.moc"

// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>
#include <LuShared/LuPlatformNotifications.h>
#include <ZrCore/ZrDispatch.h>

#include "TestMonitor.h"
#include "lushared/services/ServiceRegistry.h"
#include "services/wayland/Display.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <functional>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using namespace services::wayland;

namespace {

constexpr int Patience = 60'000;

/// A compositor with two outputs that a test looks into.
class Compositor : public OutputControl
{
public:
    std::optional<QList<Output>> outputsWithin(int) override
    {
        return silent ? std::nullopt : std::optional(all);
    }
    void outputs(Answer answer) override
    {
        ++asked;
        if (hangs)
            answers.append(std::move(answer));
        else
            answer(silent ? std::nullopt : std::optional(all));
    }
    void change(const QString& name, const OutputChange& change, Done done) override
    {
        changes.append(name);
        last = change;
        if (hangs) {
            pending.append([this, name, change, done] { finish(name, change, done); });
            return;
        }
        finish(name, change, done);
    }
    void setListener(Listener given) override { listener = std::move(given); }

    /// Deals with all that it was asked while it hung.
    void wakeUp()
    {
        hangs = false;
        for (const auto& each : std::exchange(pending, {}))
            each();
        for (const Answer& each : std::exchange(answers, {}))
            each(all);
    }

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
    bool idle = false; ///< Takes changes and carries none out.
    bool hangs = false;
    bool silent = false;
    int asked = 0;
    Listener listener;
    QList<std::function<void()>> pending;
    QList<Answer> answers;

private:
    void finish(const QString& name, const OutputChange& change, const Done& done)
    {
        for (Output& output : all) {
            if (output.name == name && !refuses && !idle)
                output.apply(change);
        }
        done(refuses ? u"not today"_s : QString());
    }
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
    void refusedChangeIsTakenBack();
    void changeThatIsNotCarriedOutIsTakenBack();
    void changesAreToldOnce();
    void turnIsNotKept();
    void hangingCompositorIsNotWaitedFor();
    void lastWordCounts();
    void lateFirstAnswerIsTold();
    void queuesWaitForTheFirstAnswer();
    void silentCompositorIsAskedAgain();
    void compositorIsAskedOnce();
    void neighboursStayBeside_data();
    void neighboursStayBeside();

private:
    void install();

    std::shared_ptr<Compositor> m_compositor;
    QSharedPointer<MonitorInfo> m_monitor = testMonitor(u"DP-1"_s);
};

void tst_waylanddisplay::init()
{
    m_compositor = std::make_shared<Compositor>();
    install();
}

void tst_waylanddisplay::install()
{
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
    install();
    QCOMPARE(LuPlatform::setResolution(m_monitor, size, rate, true, LuPlatform::HidpiMatchMode(match)),
             !mode.isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->changes.size(), mode.isEmpty() ? 0 : 1, Patience);
    QCOMPARE(m_compositor->all[0].modeId, mode.isEmpty() ? u"a"_s : mode);
    QCOMPARE(m_compositor->all[0].scale, newScale);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), int(newScale * 100));
}

void tst_waylanddisplay::temporaryModeIsNotKept()
{
    QVERIFY(LuPlatform::setResolution(m_monitor, {1920, 1080}, 60, false, LuPlatform::AnyHidpi));
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->changes.size(), 1, Patience);
    QVERIFY(!m_compositor->last.permanent);
}

void tst_waylanddisplay::scalingsAreTheModes()
{
    QCOMPARE(LuPlatform::availableMonitorDpiScalings(m_monitor), QList<int>({100, 125, 133, 200}));
    LuPlatform::setMonitorDpiScaling(m_monitor, 133);
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 133);
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].scale, 4.0 / 3, Patience);
    QVERIFY(m_compositor->last.permanent);
    LuPlatform::setMonitorDpiScaling(m_monitor, 150); // not offered
    QCOMPARE(LuPlatform::getMonitorDpiScaling(m_monitor), 133);
}

void tst_waylanddisplay::hiDpiIsTwice()
{
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, true));
    QVERIFY(LuPlatform::getMonitorHiDPI(m_monitor));
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].scale, 2.0, Patience);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, false));
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].scale, 1.0, Patience);
    QVERIFY(LuPlatform::setResolution(m_monitor, {1920, 1080}, 60, true, LuPlatform::AnyHidpi));
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true)); // that mode has no such scale
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].modeId, u"c"_s, Patience);
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true));
    QCOMPARE(m_compositor->all[0].scale, 1.0);
}

void tst_waylanddisplay::turnTransposesTheResolution()
{
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QCOMPARE(LuPlatform::getMonitorResolution(m_monitor), QSize(2160, 3840));
    QCOMPARE(LuPlatform::getNativeScreenRect(u"DP-1"_s).size(), QSize(2160, 3840));
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].degrees, 90, Patience);
}

void tst_waylanddisplay::sameValueChangesNothing()
{
    LuPlatform::setMonitorPivot(m_monitor, 0);
    LuPlatform::setMonitorDpiScaling(m_monitor, 100);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, false));
    QVERIFY(m_compositor->changes.isEmpty());
}

void tst_waylanddisplay::refusedChangeIsTakenBack()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    m_compositor->refuses = true;
    QTest::ignoreMessage(QtWarningMsg, "[LuPlatform] the compositor refuses: not today");
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, true));
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, Patience);
    QVERIFY(!LuPlatform::getMonitorHiDPI(m_monitor));
    // The same trouble again is no news.
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
    m_compositor->refuses = false;
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 3, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 90);
}

void tst_waylanddisplay::changeThatIsNotCarriedOutIsTakenBack()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    m_compositor->idle = true;
    QTest::ignoreMessage(QtWarningMsg, "[LuPlatform] the compositor did not change DP-1");
    LuPlatform::setMonitorPivot(m_monitor, 180);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 180);
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
}

void tst_waylanddisplay::changesAreToldOnce()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QVERIFY(changed.isEmpty()); // after the call has returned
    m_compositor->listener();
    m_compositor->listener();
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, Patience);
    m_compositor->listener(); // nothing is different
    const int asked = m_compositor->asked;
    QTRY_VERIFY_WITH_TIMEOUT(m_compositor->asked > asked, Patience);
    QCOMPARE(changed.count(), 1);
}

void tst_waylanddisplay::turnIsNotKept()
{
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->changes.size(), 1, Patience);
    QVERIFY(!m_compositor->last.permanent);
}

void tst_waylanddisplay::hangingCompositorIsNotWaitedFor()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    m_compositor->hangs = true;
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QVERIFY(LuPlatform::setMonitorHiDPI(m_monitor, true));
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->pending.size(), 1, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 90);
    QVERIFY(LuPlatform::getMonitorHiDPI(m_monitor));
    QCOMPARE(m_compositor->all[0].degrees, 0);
    QVERIFY(changed.isEmpty());
    m_compositor->wakeUp();
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->all[0].scale, 2.0, Patience);
    QCOMPARE(m_compositor->all[0].degrees, 90);
    QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), Patience);
}

void tst_waylanddisplay::lastWordCounts()
{
    m_compositor->hangs = true;
    LuPlatform::setMonitorPivot(m_monitor, 90);
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->pending.size(), 1, Patience);
    for (const int degrees : {180, 270, 90, 0})
        LuPlatform::setMonitorPivot(m_monitor, degrees);
    LuPlatform::setMonitorDpiScaling(m_monitor, 125);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
    m_compositor->wakeUp();
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->changes.size(), 2, Patience);
    QCOMPARE(m_compositor->last.degrees, 0);
    QCOMPARE(m_compositor->last.scale, 1.25);
    QVERIFY(m_compositor->last.permanent); // the scale's is
    QCOMPARE(m_compositor->all[0].degrees, 0);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 0);
}

void tst_waylanddisplay::lateFirstAnswerIsTold()
{
    m_compositor->silent = true;
    m_compositor->hangs = true;
    install();
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    QCOMPARE(m_compositor->answers.size(), 1);
    QVERIFY(!LuPlatform::getMonitorResolution(m_monitor).isValid());
    QVERIFY(!LuPlatform::setMonitorHiDPI(m_monitor, true));
    m_compositor->wakeUp();
    QCOMPARE(LuPlatform::getMonitorResolution(m_monitor), QSize(3840, 2160));
    QCOMPARE(changed.count(), 1);
}

void tst_waylanddisplay::queuesWaitForTheFirstAnswer()
{
    m_compositor->silent = true;
    m_compositor->hangs = true;
    m_compositor->all[0].degrees = 270;
    install();
    std::atomic_int pivot = -1;
    ZrDispatch queue(u"test"_s);
    queue.post(nullptr, [&] { pivot = LuPlatform::getMonitorPivot(m_monitor); });
    m_compositor->wakeUp();
    QTRY_COMPARE_WITH_TIMEOUT(pivot.load(), 270, Patience);
}

void tst_waylanddisplay::silentCompositorIsAskedAgain()
{
    QSignalSpy changed(LuPlatformNotifications::instance(), &LuPlatformNotifications::screenGeometryChanged);
    m_compositor->silent = true;
    QTest::ignoreMessage(QtWarningMsg, "[LuPlatform] the compositor does not tell its monitors");
    m_compositor->listener();
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->asked, 2, Patience);
    // What was known still holds.
    QCOMPARE(LuPlatform::getMonitorResolution(m_monitor), QSize(3840, 2160));
    m_compositor->silent = false;
    m_compositor->all[0].degrees = 90;
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 1, Patience);
    QCOMPARE(LuPlatform::getMonitorPivot(m_monitor), 90);
}

void tst_waylanddisplay::compositorIsAskedOnce()
{
    const int asked = m_compositor->asked;
    for (int i = 0; i < 10; ++i)
        (void)LuPlatform::getMonitorResolution(m_monitor);
    QCOMPARE(m_compositor->asked, asked);
    for (int i = 0; i < 3; ++i)
        m_compositor->listener();
    QTRY_COMPARE_WITH_TIMEOUT(m_compositor->asked, asked + 1, Patience);
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

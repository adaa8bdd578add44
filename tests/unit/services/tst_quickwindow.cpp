// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPlatform.h>
#include <LuShared/LuQuickWindow.h>

#include "services/simulated/SimulatedServices.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

namespace {

class CountingWindow : public LuQuickWindow
{
public:
    int calls = 0;

protected:
    void onScreenGeometryChanged() override
    {
        ++calls;
        LuQuickWindow::onScreenGeometryChanged();
    }
};

QJsonObject rect(int x, int y, int width, int height)
{
    return {{QStringLiteral("x"), x},
            {QStringLiteral("y"), y},
            {QStringLiteral("width"), width},
            {QStringLiteral("height"), height}};
}

QJsonObject screen(const char* name, const QJsonObject& area, const QJsonObject& available = {})
{
    QJsonObject result{{QStringLiteral("name"), QLatin1String(name)}, {QStringLiteral("rect"), area}};
    if (!available.isEmpty())
        result[u"available"] = available;
    return result;
}

} // namespace

class TestQuickWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_session.reset(new services::SimulatedServices);
        setScreens({screen("A", rect(0, 0, 1000, 800), rect(0, 0, 1000, 760)),
                    screen("B", rect(1000, 0, 600, 400))});
    }

    void cleanup() { m_session.reset(); }

    void flagsAreReplaced()
    {
        LuQuickWindow window;
        window.setWindowFlags(LuPlatform::windowFlags | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
        window.setWindowFlags(LuPlatform::windowFlags | Qt::WindowTransparentForInput);
        QCOMPARE(window.flags(), LuPlatform::windowFlags | Qt::WindowTransparentForInput);
    }

    void oneFlagLeavesTheOthers()
    {
        LuQuickWindow window;
        window.setWindowFlags(LuPlatform::windowFlags | Qt::FramelessWindowHint);
        window.setWindowFlag(Qt::WindowTransparentForInput, true);
        QCOMPARE(window.flags(),
                 LuPlatform::windowFlags | Qt::FramelessWindowHint | Qt::WindowTransparentForInput);
        window.setWindowFlag(Qt::WindowTransparentForInput, false);
        QCOMPARE(window.flags(), LuPlatform::windowFlags | Qt::FramelessWindowHint);
    }

    void fullScreenWithoutOverlayCoversTheScreenAndStaysHidden()
    {
        LuQuickWindow window;
        window.setScreen(screenNamed("A"));
        window.enterFullScreen(false);
        QVERIFY(!window.isVisible());
        QCOMPARE(window.geometry(), QRect(0, 0, 1000, 800));
    }

    void anOverlayIsShownOverItsOwnScreen()
    {
        LuQuickWindow window;
        window.setScreen(screenNamed("B"));
        window.enterFullScreen(true);
        QVERIFY(window.isVisible());
        QTRY_COMPARE(window.geometry(), QRect(1000, 0, 600, 400));
    }

    void anOverlayCanBeClosedAndShownAgain()
    {
        LuQuickWindow window;
        window.setScreen(screenNamed("B"));
        window.enterFullScreen(true);
        window.close();
        QVERIFY(!window.isVisible());
        window.enterFullScreen(true);
        QVERIFY(window.isVisible());
        QTRY_COMPARE(window.geometry(), QRect(1000, 0, 600, 400));
    }

    void aMaximizedWindowLeavesTaskBarsFree()
    {
        LuQuickWindow window;
        window.setScreen(screenNamed("A"));
        window.setWindowFlags(Qt::FramelessWindowHint);
        window.enterMaximized();
        QVERIFY(window.isVisible());
        QTRY_COMPARE(window.geometry(), QRect(0, 0, 1000, 760));
    }

    void aChangeOfItsScreenReachesTheWindow()
    {
        CountingWindow window;
        window.setScreen(screenNamed("A"));
        window.enterFullScreen(false);
        setScreens({screen("A", rect(0, 0, 1200, 900)), screen("B", rect(1200, 0, 600, 400))});
        QTRY_VERIFY(window.calls > 0);
        QTRY_COMPARE(window.geometry(), QRect(0, 0, 1200, 900));
    }

    void aChangeOfAnotherScreenDoesNot()
    {
        CountingWindow window;
        window.setScreen(screenNamed("A"));
        QSignalSpy other(screenNamed("B"), &QScreen::geometryChanged);
        setScreens({screen("A", rect(0, 0, 1000, 800), rect(0, 0, 1000, 760)),
                    screen("B", rect(1000, 0, 640, 480))});
        QTRY_VERIFY(other.count() > 0);
        QCOMPARE(window.calls, 0);
    }

    void aWindowThatMovesToAnotherScreenCoversThatOneAndFollowsIt()
    {
        CountingWindow window;
        window.setScreen(screenNamed("A"));
        window.enterFullScreen(true);
        window.setScreen(screenNamed("B"));
        QTRY_COMPARE(window.geometry(), QRect(1000, 0, 600, 400));
        QCOMPARE(window.calls, 0);
        setScreens({screen("A", rect(0, 0, 1000, 800)), screen("B", rect(1000, 0, 640, 480))});
        QTRY_COMPARE(window.geometry(), QRect(1000, 0, 640, 480));
        QVERIFY(window.calls > 0);
    }

    void anOrdinaryWindowKeepsItsSizeWhenItsScreenChanges()
    {
        CountingWindow window;
        window.setScreen(screenNamed("A"));
        window.setGeometry(10, 10, 128, 92);
        setScreens({screen("A", rect(0, 0, 1200, 900)), screen("B", rect(1200, 0, 600, 400))});
        QTRY_VERIFY(window.calls > 0);
        QCOMPARE(window.size(), QSize(128, 92));
    }

    void theBaseFlagsKeepWindowsOutOfTaskBars()
    {
        QCOMPARE(LuPlatform::windowFlags, Qt::WindowFlags(Qt::Tool));
    }

private:
    void setScreens(const QJsonArray& screens)
    {
        services::Error error;
        QVERIFY2(m_session->set(QStringLiteral("screens"), screens, &error), qPrintable(error.message));
    }

    static QScreen* screenNamed(const char* name)
    {
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* each : screens) {
            if (each->name() == QLatin1String(name))
                return each;
        }
        return nullptr;
    }

    std::unique_ptr<services::SimulatedServices> m_session;
};

QTEST_MAIN(TestQuickWindow)
#include "tst_quickwindow.moc"

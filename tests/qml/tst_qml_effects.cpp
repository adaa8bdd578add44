// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QSGRendererInterface>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// Effects on other items, by Qt's own module or by the one that stands in for it. A renderer without shaders
/// shows the source as it is and never nothing.
class TestEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theModuleIsThere();
    void everySquareIsDrawn();
    void effectsAreSeenWhereShadersAre();

private:
    QColor at(int place, int dx = 0, int dy = 0) const
    {
        return m_image.pixelColor(QPoint(place * 80 + 40 + dx, 50 + dy) * int(m_image.devicePixelRatio()));
    }

    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
    QImage m_image;
    bool m_software = false;
};

void TestEffects::init()
{
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->engine.load(QUrl(u"qrc:/tests/Effects.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    QVERIFY(QTest::qWaitForWindowExposed(m_window, PatienceMs));
    m_image = m_window->grabWindow();
    m_software = m_window->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

void TestEffects::cleanup()
{
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestEffects::theModuleIsThere()
{
    QCOMPARE(m_image.size() / m_image.devicePixelRatio(), QSize(400, 100));
}

void TestEffects::everySquareIsDrawn()
{
    for (int place = 0; place < 5; ++place)
        QVERIFY2(at(place) != QColor(Qt::white), qPrintable(u"nothing at place %1"_s.arg(place)));
    QCOMPARE(at(0), QColor(0xc0, 0x40, 0x00));
}

void TestEffects::effectsAreSeenWhereShadersAre()
{
    // The run on an X server is there for the shaders.
    QVERIFY(!m_software || !qEnvironmentVariableIsSet("LUMEN_EXPECT_SHADERS"));
    if (m_software) {
        // The source as it is.
        for (int place = 1; place < 5; ++place)
            QCOMPARE(at(place), QColor(0xc0, 0x40, 0x00));
        return;
    }
    QVERIFY(at(1).green() > at(1).red() + 40);
    // Beyond the square's edge there is some of it, and less of it inside the edge.
    QVERIFY(at(2, 23).green() < 250);
    QVERIFY(at(2, 18).green() > 0x48);
    // The corners are gone.
    QVERIFY(at(3, 18, 18).green() > 200);
    QCOMPARE(at(3), QColor(0xc0, 0x40, 0x00));
    QVERIFY(qAbs(at(4).red() - at(4).blue()) < 6);
}

QTEST_MAIN(TestEffects)
#include "tst_qml_effects.moc"

// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <LuShared/LuVCPNode.h>

#include <QQmlListReference>
#include <QQuickItem>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

/// The base types that packages build their panels on, apart from any package's panel.
class TestBases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aRowGrowsWithItsContent();
    void aBindingHasItsActionsAndItsDefault();
    void aWideTileSwitchesAndOpensItsPage();
    void aShortcutStartsSomething();
    void aSectionShowsWhileItsRequirementsHold();
    void anEditorStoresWhatItCollects();
    void anEditorThatIsLeftPutsEverythingBack();
    void feedbackTakesNoFocusAndGoesByItself();
    void thePackageSpeaksAsItsMonitorsMenu_data();
    void thePackageSpeaksAsItsMonitorsMenu();
    void theWalkthroughHasItsTwoPages();

private:
    QStringList log() const { return m_window->property("log").toStringList(); }
    QString word(const char* strings, const char* function, int mode) const;

    std::optional<Shell> m_shell;
    QPointer<QQuickWindow> m_window;
};

void TestBases::init()
{
    m_shell.emplace(QList<FakeMonitor*>());
    m_shell->window()->show();
    m_shell->engine.load(QUrl(u"qrc:/tests/Bases.qml"_s));
    m_window = qobject_cast<QQuickWindow*>(m_shell->engine.rootObjects().constLast());
    QVERIFY(m_window);
    QVERIFY(QTest::qWaitForWindowExposed(m_window, PatienceMs));
    QVERIFY(!m_window->grabWindow().isNull());
}

void TestBases::cleanup()
{
    m_shell.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QString TestBases::word(const char* strings, const char* function, int mode) const
{
    QString result;
    QMetaObject::invokeMethod(m_window->property(strings).value<QObject*>(), function,
                              Q_RETURN_ARG(QString, result), Q_ARG(int, mode));
    return result;
}

void TestBases::aRowGrowsWithItsContent()
{
    const QQuickItem* row = m_shell->item(u"row"_s);
    QVERIFY(row);
    QCOMPARE(row->height(), 24.0 + 20.0 + 16.0);
    QCOMPARE(row->width(), 308.0);
}

void TestBases::aBindingHasItsActionsAndItsDefault()
{
    const auto* target = m_window->findChild<QObject*>(u"target"_s);
    QVERIFY(target);
    QTRY_VERIFY(target->property("syncEnable").toBool());
    QCOMPARE(log(), QStringList{u"bound"_s});
    m_window->setProperty("rowAlive", false);
    QTRY_COMPARE(log(), (QStringList{u"bound"_s, u"unbinding true"_s}));
    QVERIFY(!target->property("syncEnable").toBool());
}

void TestBases::aWideTileSwitchesAndOpensItsPage()
{
    QVERIFY(m_shell->bridge->press(u"FloW"_s, u"switch"_s).ok());
    QVERIFY(m_window->property("wideActive").toBool());
    QVERIFY(m_shell->bridge->press(u"FloW"_s, u"button"_s).ok());
    QCOMPARE(log().mid(1), (QStringList{u"active true"_s, u"page"_s}));
}

void TestBases::aShortcutStartsSomething()
{
    QVERIFY(m_shell->bridge->press(u"Focus"_s).ok());
    QCOMPARE(log().mid(1), QStringList{u"shortcut"_s});
}

void TestBases::aSectionShowsWhileItsRequirementsHold()
{
    const auto shown = [this] {
        return QString::fromUtf8(QJsonDocument(m_shell->bridge->tree().value.toObject()).toJson())
            .contains(u"Section body"_s);
    };
    QVERIFY(shown());
    m_window->setProperty("sectionRequired", false);
    QVERIFY(!shown());
}

void TestBases::anEditorStoresWhatItCollects()
{
    QMetaObject::invokeMethod(m_window, "edit");
    QVERIFY(m_shell->bridge->press(u"Save"_s).ok());
    QCOMPARE(log().mid(1), (QStringList{u"record"_s, u"accepted 4"_s}));
    QCOMPARE(m_shell->bridge->press(u"Save"_s).code, int(LuWindowBridge::NoSuchThing));
}

void TestBases::anEditorThatIsLeftPutsEverythingBack()
{
    QMetaObject::invokeMethod(m_window, "edit");
    QVERIFY(m_shell->bridge->press(u"Cancel"_s).ok());
    QCOMPARE(log().mid(1), (QStringList{u"record"_s, u"restore"_s}));
}

void TestBases::feedbackTakesNoFocusAndGoesByItself()
{
    const auto* feedback = m_window->findChild<QQuickWindow*>(u"feedback"_s);
    QVERIFY(feedback);
    // The off-screen platform activates whatever is shown, so the flags are what can be seen here.
    QVERIFY(feedback->flags() & Qt::WindowDoesNotAcceptFocus);
    QVERIFY(feedback->flags() & Qt::WindowTransparentForInput);
    QMetaObject::invokeMethod(m_window, "showFeedback");
    QVERIFY(feedback->isVisible());
    QTRY_VERIFY(!feedback->isVisible());
}

void TestBases::thePackageSpeaksAsItsMonitorsMenu_data()
{
    QTest::addColumn<bool>("gamma");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("package");
    QTest::addColumn<QString>("base");
    QTest::newRow("5000 K") << false << int(LuVCPNode::ColorTemperature_5000) << u"Reddish"_s << u"5000 K"_s;
    QTest::newRow("6500 K") << false << int(LuVCPNode::ColorTemperature_6500) << u"Normal"_s << u"6500 K"_s;
    QTest::newRow("9300 K") << false << int(LuVCPNode::ColorTemperature_9300) << u"Bluish"_s << u"9300 K"_s;
    QTest::newRow("user") << false << int(LuVCPNode::ColorTemperature_UserDefine) << u"User defined"_s
                          << u"User defined"_s;
    QTest::newRow("gamma 1.6") << true << int(LuVCPNode::Gamma_16) << u"1.6"_s << u"1.6"_s;
    QTest::newRow("gamma 1.8") << true << int(LuVCPNode::Gamma_18) << u"1"_s << u"1.8"_s;
    QTest::newRow("gamma 2.0") << true << int(LuVCPNode::Gamma_20) << u"2"_s << u"2.0"_s;
    QTest::newRow("gamma 2.2") << true << int(LuVCPNode::Gamma_22) << u"3"_s << u"2.2"_s;
    QTest::newRow("gamma 2.4") << true << int(LuVCPNode::Gamma_24) << u"4"_s << u"2.4"_s;
    QTest::newRow("gamma 2.6") << true << int(LuVCPNode::Gamma_26) << u"5"_s << u"2.6"_s;
    QTest::newRow("gamma sRGB") << true << int(LuVCPNode::Gamma_sRGB) << u"sRGB"_s << u"sRGB"_s;
}

void TestBases::thePackageSpeaksAsItsMonitorsMenu()
{
    QFETCH(bool, gamma);
    QFETCH(int, mode);
    QFETCH(QString, package);
    QFETCH(QString, base);
    const char* function = gamma ? "gamma" : "colorTemperature";
    QCOMPARE(word("strings", function, mode), package);
    QCOMPARE(word("baseStrings", function, mode), base);
}

void TestBases::theWalkthroughHasItsTwoPages()
{
    auto* walkthrough = m_window->property("walkthrough").value<QObject*>();
    const QQmlListReference pages(walkthrough, "pages");
    QCOMPARE(pages.count(), 2);
    QCOMPARE(pages.at(0)->property("title").toString(), u"BackGlow Auto-dimming"_s);
    QCOMPARE(pages.at(1)->property("title").toString(), u"Night Hours Protection"_s);
    QVERIFY(
        pages.at(0)->property("animationSource").toUrl().toString().endsWith(u"intro_tk01_glow_a_ok.json"_s));
    QVERIFY(pages.at(1)
                ->property("animationSource")
                .toUrl()
                .toString()
                .endsWith(u"intro_tk02_night_v2_ok.json"_s));
    for (const int index : {0, 1})
        QVERIFY(!pages.at(index)->property("description").toString().isEmpty());
}

QTEST_MAIN(TestBases)
#include "tst_qml_bases.moc"

// SPDX-License-Identifier: Apache-2.0
#include "LuComputers.h"
#include "Shell.h"

#include <QDir>
#include <QJsonArray>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

#include <optional>

using namespace Qt::StringLiterals;

using Answer = LuComputersBackend::Answer;
using Failure = LuComputersState::Failure;
using Phase = LuComputersState::Phase;

namespace {

/// A connection that a test makes up.
class FakeComputers : public LuComputersBackend
{
public:
    LuComputersState state() const override { return is; }
    void setOn(bool on) override { note(on ? u"on"_s : u"off"_s); }
    void waitForOther() override { note(u"wait"_s); }
    Answer pairWith(const QString& address) override { return note(u"pair "_s + address); }
    void confirm() override { note(u"confirm"_s); }
    void cancel() override { note(u"cancel"_s); }
    void forget() override { note(u"forget"_s); }
    Answer movePeer(const QString& address) override { return note(u"move "_s + address); }
    Answer note(const QString& call)
    {
        calls.append(call);
        return answer;
    }
    void tell() { Q_EMIT changed(); }

    LuComputersState is;
    Answer answer = Answer::Taken;
    QStringList calls;
};

} // namespace

/// The page "Two computers".
class TestComputers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSessionWithoutTheServiceSaysSo();
    void theSwitchTurnsItOn();
    void whatCannotBeSwitchedOnSaysWhy();
    void aPairingIsStarted();
    void aComputerNearbyIsChosen();
    void phasesAreShown_data();
    void phasesAreShown();
    void theCodeIsConfirmedOrRefused();
    void failuresAreToldInWords_data();
    void failuresAreToldInWords();
    void aFailureIsPutAway();
    void anAddressThatIsNoneIsRefused();
    void theStateOfThePairedComputer_data();
    void theStateOfThePairedComputer();
    void forgettingAsksOnce();
    void thePeersAddressIsChanged();
    void aServiceThatGoesLeavesNothingBehind();
    void everyControlHasANameAndARole();
    void noTextIsCutInAnyLanguage_data();
    void noTextIsCutInAnyLanguage();
    void thePageIsDrawn_data();
    void thePageIsDrawn();

private:
    bool open()
    {
        m_window = m_shell->openSettings(u"computers"_s);
        return m_window != nullptr;
    }
    QQuickItem* item(const char* name) const { return m_shell->item(QLatin1String(name)); }
    QString text(const char* name) const
    {
        const QQuickItem* found = item(name);
        return found && found->isVisible() ? found->property("text").toString() : QString();
    }
    bool shows(const QString& part) const { return Shell::shows(m_window, part); }
    bool press(const char* name)
    {
        return item(name) && QMetaObject::invokeMethod(item(name), "assistivePress");
    }

    std::optional<Shell> m_shell;
    std::unique_ptr<FakeComputers> m_computers;
    QQuickWindow* m_window = nullptr;
};

void TestComputers::init()
{
    m_computers = std::make_unique<FakeComputers>();
    m_computers->is.on = true;
    m_computers->is.name = u"Desk"_s;
    m_computers->is.addresses = {u"192.168.1.20"_s};
    LuComputers::instance()->setBackend(m_computers.get());
    m_shell.emplace(QList<FakeMonitor*>());
}

void TestComputers::cleanup()
{
    m_window = nullptr;
    m_shell.reset();
    LuComputers::instance()->setBackend(nullptr);
    m_computers.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestComputers::aSessionWithoutTheServiceSaysSo()
{
    LuComputers::instance()->setBackend(nullptr);
    LuContext::instance()->setAbsenceSource([] { return QStringList{u"pointerEdge"_s}; }, true, true);
    QVERIFY(open());
    QVERIFY(!item("computersSwitch")->isEnabled());
    QVERIFY(shows(u"does not tell where the pointer is"_s));
    QVERIFY(!shows(u"Pair a computer"_s));
    LuContext::instance()->setAbsenceSource({}, true, false);
}

void TestComputers::theSwitchTurnsItOn()
{
    m_computers->is.on = false;
    m_computers->tell();
    QVERIFY(open());
    QVERIFY(!shows(u"Pair a computer"_s));
    QVERIFY(!shows(u"192.168.1.20"_s));
    QVERIFY(press("computersSwitch"));
    QCOMPARE(m_computers->calls, QStringList{u"on"_s});
    m_computers->is.on = true;
    m_computers->tell();
    QTRY_VERIFY(shows(u"192.168.1.20"_s) && shows(u"Pair a computer"_s));
    QCOMPARE(text("ownName"), u"Desk"_s);
    QVERIFY(press("computersSwitch"));
    QCOMPARE(m_computers->calls.last(), u"off"_s);
}

void TestComputers::whatCannotBeSwitchedOnSaysWhy()
{
    m_computers->is.on = false;
    m_computers->is.trouble = u"The bound address is already in use"_s;
    m_computers->tell();
    QVERIFY(open());
    QTRY_COMPARE(text("computersProblem"),
                 u"The connection could not be switched on: The bound address is already in use."_s);
}

void TestComputers::aPairingIsStarted()
{
    QVERIFY(open());
    QVERIFY(press("waitForOther"));
    QQuickItem* field = item("pairLine.field");
    QVERIFY(!item("pairLine.go")->isEnabled());
    field->setProperty("text", u"  192.168.1.7 "_s);
    QTRY_VERIFY(item("pairLine.go")->isEnabled());
    QVERIFY(press("pairLine.go"));
    QCOMPARE(m_computers->calls, (QStringList{u"wait"_s, u"pair 192.168.1.7"_s}));
    // The return key does the same.
    field->forceActiveFocus();
    QTest::keyClick(m_window, Qt::Key_Return);
    QCOMPARE(m_computers->calls.size(), 3);
}

void TestComputers::aComputerNearbyIsChosen()
{
    QVERIFY(open());
    QVERIFY(shows(u"Avahi"_s));
    m_computers->is.findsOthers = true;
    m_computers->tell();
    QTRY_VERIFY(shows(u"No computer nearby"_s));
    m_computers->is.nearby = {{u"Laptop"_s, u"192.168.1.8"_s}, {u"Tower"_s, u"192.168.1.9:5000"_s}};
    m_computers->tell();
    QTRY_VERIFY(shows(u"Laptop"_s) && shows(u"192.168.1.9:5000"_s));
    QVERIFY(m_shell->bridge->press(u"Pair with Tower"_s).ok());
    QCOMPARE(m_computers->calls, QStringList{u"pair 192.168.1.9:5000"_s});
}

void TestComputers::phasesAreShown_data()
{
    QTest::addColumn<int>("phase");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("code");
    QTest::newRow("waiting") << int(Phase::Waiting) << u"Waiting for the other computer"_s << QString();
    QTest::newRow("calling") << int(Phase::Calling) << u"Calling the other computer"_s << QString();
    QTest::newRow("comparing") << int(Phase::Comparing) << u"Does Laptop show the same code?"_s
                               << u"012 345"_s;
    QTest::newRow("confirmed") << int(Phase::Confirmed) << u"Now confirm the code on the other computer"_s
                               << u"012 345"_s;
}

void TestComputers::phasesAreShown()
{
    QFETCH(int, phase);
    m_computers->is.phase = Phase(phase);
    m_computers->is.code = u"012345"_s;
    m_computers->is.otherName = u"Laptop"_s;
    m_computers->tell();
    QVERIFY(open());
    QTEST(text("pairingState"), "state");
    QTEST(text("pairingCode"), "code");
    QCOMPARE(item("confirmPairing") != nullptr && item("confirmPairing")->isVisible(),
             Phase(phase) == Phase::Comparing);
    QVERIFY(!item("waitForOther") || !item("waitForOther")->isVisible());
    QVERIFY(press("cancelPairing"));
    QCOMPARE(m_computers->calls, QStringList{u"cancel"_s});
}

void TestComputers::theCodeIsConfirmedOrRefused()
{
    m_computers->is.phase = Phase::Comparing;
    m_computers->is.code = u"012345"_s;
    m_computers->tell();
    QVERIFY(open());
    QCOMPARE(text("pairingState"), u"Does the other computer show the same code?"_s);
    QCOMPARE(text("cancelPairing"), u"No"_s);
    QVERIFY(press("confirmPairing"));
    QVERIFY(press("cancelPairing"));
    QCOMPARE(m_computers->calls, (QStringList{u"confirm"_s, u"cancel"_s}));
}

void TestComputers::failuresAreToldInWords_data()
{
    QTest::addColumn<int>("failure");
    QTest::addColumn<QString>("part");
    QTest::newRow("nobody came") << int(Failure::NobodyCame) << u"has called within two minutes"_s;
    QTest::newRow("not confirmed") << int(Failure::NotConfirmed) << u"was not confirmed on both"_s;
    QTest::newRow("not reached") << int(Failure::NotReached) << u"No Lumen Desk answers there"_s;
    QTest::newRow("not waiting") << int(Failure::NotWaiting) << u"is not waiting"_s;
    QTest::newRow("refused") << int(Failure::Refused) << u"did not confirm"_s;
    QTest::newRow("broken") << int(Failure::Broken) << u"Nothing was paired"_s;
    QTest::newRow("unknown name") << int(Failure::UnknownName) << u"of this name"_s;
}

void TestComputers::failuresAreToldInWords()
{
    QFETCH(int, failure);
    QFETCH(QString, part);
    QVERIFY(open());
    QCOMPARE(text("computersProblem"), QString());
    m_computers->is.failure = Failure(failure);
    m_computers->tell();
    QTRY_VERIFY2(text("computersProblem").contains(part), qPrintable(text("computersProblem")));
    m_computers->is.failure = Failure::None;
    m_computers->tell();
    QTRY_COMPARE(text("computersProblem"), QString());
}

void TestComputers::aFailureIsPutAway()
{
    m_computers->is.failure = Failure::Refused;
    m_computers->tell();
    QVERIFY(open());
    QVERIFY(press("computersProblem.close"));
    QTRY_COMPARE(text("computersProblem"), QString());
    // The next one is told again.
    m_computers->is.failure = Failure::None;
    m_computers->tell();
    m_computers->is.failure = Failure::Refused;
    m_computers->tell();
    QTRY_VERIFY(!text("computersProblem").isEmpty());
}

void TestComputers::anAddressThatIsNoneIsRefused()
{
    QVERIFY(open());
    m_computers->answer = Answer::NoAddress;
    item("pairLine.field")->setProperty("text", u"my desk!"_s);
    QTRY_VERIFY(item("pairLine.go")->isEnabled());
    QVERIFY(press("pairLine.go"));
    QTRY_VERIFY(text("computersProblem").startsWith(u"This is neither an address"_s));
    // What was typed is still there to be mended.
    QCOMPARE(item("pairLine.field")->property("text").toString(), u"my desk!"_s);
    m_computers->answer = Answer::NotLocal;
    QVERIFY(press("pairLine.go"));
    QTRY_VERIFY(text("computersProblem").contains(u"local network"_s));
    m_computers->answer = Answer::Taken;
    QVERIFY(press("pairLine.go"));
    QTRY_COMPARE(text("computersProblem"), QString());
}

void TestComputers::theStateOfThePairedComputer_data()
{
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("forgotten");
    QTest::addColumn<QString>("state");
    QTest::newRow("connected") << true << true << false << u"Connected"_s;
    QTest::newRow("searching") << true << false << false << u"Searching"_s;
    QTest::newRow("forgotten there") << true << false << true << u"Not paired there"_s;
    QTest::newRow("switched off") << false << false << false << u"Off"_s;
}

void TestComputers::theStateOfThePairedComputer()
{
    QFETCH(bool, on);
    QFETCH(bool, connected);
    QFETCH(bool, forgotten);
    m_computers->is.on = on;
    m_computers->is.paired = true;
    m_computers->is.connected = connected;
    m_computers->is.forgottenThere = forgotten;
    m_computers->is.peerName = u"Laptop"_s;
    m_computers->is.peerAddress = u"192.168.1.7"_s;
    m_computers->tell();
    QVERIFY(open());
    QTEST(text("peerState"), "state");
    QVERIFY(shows(u"Laptop"_s) && shows(u"192.168.1.7"_s));
    QCOMPARE(shows(u"does not know this computer any more"_s), forgotten);
    QCOMPARE(item("movePeer") != nullptr, on && !connected);
}

void TestComputers::forgettingAsksOnce()
{
    m_computers->is.paired = true;
    m_computers->is.peerName = u"Laptop"_s;
    m_computers->tell();
    QVERIFY(open());
    QVERIFY(press("forgetPeer"));
    QTRY_VERIFY(shows(u"Forget Laptop?"_s));
    QVERIFY(m_computers->calls.isEmpty());
    QVERIFY(m_shell->bridge->press(u"Keep"_s).ok());
    QTRY_VERIFY(!shows(u"Forget Laptop?"_s));
    QVERIFY(press("forgetPeer"));
    QTRY_VERIFY(item("forgetForGood"));
    QVERIFY(press("forgetForGood"));
    QCOMPARE(m_computers->calls, QStringList{u"forget"_s});
    m_computers->is.paired = false;
    m_computers->tell();
    QTRY_VERIFY(!shows(u"Laptop"_s));
}

void TestComputers::thePeersAddressIsChanged()
{
    m_computers->is.paired = true;
    m_computers->tell();
    QVERIFY(open());
    QVERIFY(shows(u"Computer without a name"_s));
    QVERIFY(press("movePeer"));
    QTRY_VERIFY(item("moveLine.field"));
    m_computers->answer = Answer::NoAddress;
    item("moveLine.field")->setProperty("text", u"x y"_s);
    QTRY_VERIFY(item("moveLine.go")->isEnabled());
    QVERIFY(press("moveLine.go"));
    QVERIFY(item("moveLine.field")); // to be mended
    m_computers->answer = Answer::Taken;
    item("moveLine.field")->setProperty("text", u"192.168.1.30"_s);
    QVERIFY(press("moveLine.go"));
    QCOMPARE(m_computers->calls.last(), u"move 192.168.1.30"_s);
    QTRY_VERIFY(!item("moveLine.field"));
}

void TestComputers::aServiceThatGoesLeavesNothingBehind()
{
    m_computers->is.paired = true;
    m_computers->tell();
    QVERIFY(open());
    m_computers.reset();
    QTRY_VERIFY(!item("computersSwitch")->isEnabled());
    QVERIFY(!LuComputers::instance()->isPaired());
    LuComputers::instance()->setOn(true);
    QVERIFY(!LuComputers::instance()->pairWith(u"192.168.1.7"_s));
}

void TestComputers::everyControlHasANameAndARole()
{
    m_computers->is.paired = true;
    m_computers->is.nearby = {{u"Laptop"_s, u"192.168.1.8"_s}};
    m_computers->tell();
    QVERIFY(open());
    const auto tree = m_shell->bridge->tree(QString());
    QVERIFY(tree.ok());
    const QString text = QString::fromUtf8(QJsonDocument(QJsonArray{tree.value}).toJson());
    QVERIFY(text.contains(u"Address of the other computer"_s));
    QVERIFY(text.contains(u"Pair with Laptop"_s));
    QCOMPARE(m_shell->bridge->problems().value.toArray(), QJsonArray());
}

void TestComputers::noTextIsCutInAnyLanguage_data()
{
    QTest::addColumn<QString>("language");
    for (const char* language : {"cs", "de", "en", "es", "fr", "hr", "hu", "it", "ja", "ko", "nl", "pl", "pt",
                                 "ro", "ru", "sv", "zh", "zh_TW"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestComputers::noTextIsCutInAnyLanguage()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(u":/lumendesk/translations/lumen-desk_%1.qm"_s.arg(language)));
    QCoreApplication::installTranslator(&translator);
    const auto remove = qScopeGuard([&] { QCoreApplication::removeTranslator(&translator); });
    m_shell->engine.retranslate();
    m_computers->is.findsOthers = true;
    m_computers->is.nearby = {{u"Laptop"_s, u"192.168.1.7"_s}};
    m_computers->is.peerName = u"Laptop"_s;
    m_computers->is.otherName = u"Laptop"_s;
    m_computers->is.peerAddress = u"192.168.1.7:47824"_s;
    m_computers->tell();
    QVERIFY(open());
    const auto check = [this](const char* state) {
        m_computers->tell();
        QCoreApplication::processEvents();
        const QJsonArray problems = m_shell->bridge->problems().value.toArray();
        if (!problems.isEmpty())
            qWarning().noquote() << state << QJsonDocument(problems).toJson();
        return problems.isEmpty();
    };
    QVERIFY(check("choice"));
    for (const Phase phase : {Phase::Waiting, Phase::Calling, Phase::Comparing, Phase::Confirmed}) {
        m_computers->is.phase = phase;
        m_computers->is.code =
            phase == Phase::Comparing || phase == Phase::Confirmed ? u"012345"_s : QString();
        QVERIFY(check("pairing"));
    }
    m_computers->is.phase = Phase::Idle;
    m_computers->is.code.clear();
    for (const Failure failure :
         {Failure::NobodyCame, Failure::NotConfirmed, Failure::NotReached, Failure::NotWaiting,
          Failure::Refused, Failure::Broken, Failure::UnknownName}) {
        m_computers->is.failure = failure;
        QVERIFY(check("failure"));
    }
    m_computers->is.failure = Failure::None;
    m_computers->is.paired = true;
    QVERIFY(check("searching"));
    m_computers->is.forgottenThere = true;
    QVERIFY(check("forgotten"));
    QVERIFY(press("movePeer"));
    QVERIFY(check("another address"));
    QVERIFY(QMetaObject::invokeMethod(item("moveLine"), "canceled"));
    QVERIFY(press("forgetPeer"));
    QVERIFY(check("forgetting"));
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

void TestComputers::thePageIsDrawn_data()
{
    QTest::addColumn<int>("phase");
    QTest::addColumn<bool>("paired");
    QTest::newRow("choice") << int(Phase::Idle) << false;
    QTest::newRow("code") << int(Phase::Comparing) << false;
    QTest::newRow("paired") << int(Phase::Idle) << true;
}

void TestComputers::thePageIsDrawn()
{
    QFETCH(int, phase);
    QFETCH(bool, paired);
    m_computers->is.phase = Phase(phase);
    m_computers->is.code = u"012345"_s;
    m_computers->is.otherName = u"Laptop"_s;
    m_computers->is.paired = paired;
    m_computers->is.connected = paired;
    m_computers->is.peerName = u"Laptop"_s;
    m_computers->is.peerAddress = u"192.168.1.7"_s;
    m_computers->is.findsOthers = true;
    m_computers->is.nearby = {{u"Laptop"_s, u"192.168.1.7"_s}};
    m_computers->tell();
    QVERIFY(open());
    const QDir folder(qEnvironmentVariable("LUMEN_PICTURES", QDir::tempPath()));
    for (const QString& theme : {u"light"_s, u"dark"_s, u"contrast"_s}) {
        m_shell->context.setTheme(theme);
        const QImage picture = m_window->grabWindow();
        QVERIFY(!picture.isNull());
        if (theme != "contrast"_L1)
            QCOMPARE(picture.pixelColor(picture.width() - 3, picture.height() - 3).lightness() > 128,
                     theme == "light"_L1);
        if (qEnvironmentVariableIsSet("LUMEN_PICTURES"))
            QVERIFY(picture.save(folder.filePath(
                u"computers-%1-%2.png"_s.arg(QLatin1String(QTest::currentDataTag()), theme))));
    }
    m_shell->context.setTheme(u"system"_s);
}

QTEST_MAIN(TestComputers)
#include "tst_qml_computers.moc"

// SPDX-License-Identifier: Apache-2.0
#include "KvmModel.h"
#include "Shell.h"

#include <LuShared/LuKvm.h>
#include <ZrCore/ZrDispatch.h>
#include <ZrCore/ZrIdle.h>
#include <lushared/LuEventLog.h>
#include <lushared/LuHostOptions.h>
#include <lushared/LuSettings.h>
#include <services/simulated/SimulatedServices.h>

#include <QFile>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QtQml>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* Widget = "LuSmartKvmWidget";

constexpr const char* Modes = R"(<?xml version="1.0"?><VCPTree><VCPList>
<VCPcode Type="User" Name="User" Category="Picture Mode" Code="0x12" SHCode="0x00"/></VCPList></VCPTree>)";

constexpr const char* Features = R"(<?xml version="1.0"?><VCPTree><VCPList>
<VCPcode Type="PIP" Name="PIP" Category="PIP PBP AB" Value="on"/>
<VCPcode Type="PBP" Name="PBP" Category="PIP PBP AB" Value="on"/>
<VCPcode Type="HDMI" Name="HDMI" Category="Input Source" Value="on"/>
<VCPcode Type="USB-C" Name="USB-C" Category="Input Source" Value="on"/>
<VCPcode Type="SmartKvm Type" Name="SmartKvm Type" Category="SmartKvm Type" Value="SmartKvm"/>
<VCPcode Type="Auto" Name="Auto" Category="Kvm" Value="on"/>
<VCPcode Type="TBT" Name="TBT" Category="Kvm" Value="on"/>
<VCPcode Type="TypeC" Name="TypeC" Category="Kvm" Value="on"/></VCPList></VCPTree>)";

void write(const QString& file, const char* text)
{
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(text);
}

bool rest()
{
    return ZrIdle::wait(30'000);
}

} // namespace

/// The pointer feature with a driver: the module on a simulated monitor, and its panel.
class TestSmartKvm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void theSchemaSaysWhichVariant();
    void turningOnOpensTheChannelFirst();
    void turningOffClosesItLastAndFreesTheHub();
    void aCallOnTheQueueRunsAtOnce();
    void installingOpensTheChannel();
    void theDriversFactsAreTold();
    void aCrossingSwitchesTheHub();
    void closingTheLayoutSwitchesOff();
    void theLaunchRestores();
    void thePanelShows();
    void thePanelAsksForTheDriver();
    void thePanelOpensTheLayout();
    void theStatusIsShown_data();
    void theStatusIsShown();
    void theSidesFollowTheRotation();
    void theHubRestsWhileConnected();
    void theLayoutsPanelWarns();

private:
    bool setKvm(const QJsonObject& changes);
    void show();
    QJsonObject control(const QString& role, const QString& name);
    LuWindowBridge::Result press(const QString& name, const QString& role)
    {
        const auto result = m_shell->bridge->press(name, role);
        rest();
        return result;
    }
    QStringList calls();

    QTemporaryDir m_directory;
    services::SimulatedServices m_services;
    std::optional<KvmBed> m_bed;
    std::optional<Shell> m_shell;
    int m_callsSeen = 0;
};

void TestSmartKvm::initTestCase()
{
    QCoreApplication::setOrganizationName(u"lumen-desk"_s);
    LuSettings::instance().open(m_directory.filePath(u"config"_s));
    LuEventLog::instance().open(m_directory.filePath(u"data"_s));
    m_services.install();
    write(m_directory.filePath(u"TK30Z.xml"_s), Modes);
    write(m_directory.filePath(u"TK30Z_ext.xml"_s), Features);
    LuHostOptions::instance().schemaDirectory = m_directory.path();
    qmlRegisterUncreatableType<LuPipPbp>("TKPackage", 1, 0, "LuPipPbp", u"Internal class"_s);
    qmlRegisterUncreatableType<LuKvmSwitch>("TKPackage", 1, 0, "LuKvmSwitch", u"Internal class"_s);
}

void TestSmartKvm::init()
{
    QVERIFY(setKvm({{u"driverInstalled"_s, true}, {u"connected"_s, false}, {u"location"_s, 0}}));
    m_bed.emplace();
    m_bed->launch();
    calls();
}

void TestSmartKvm::cleanup()
{
    m_shell.reset();
    m_bed.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

bool TestSmartKvm::setKvm(const QJsonObject& changes)
{
    QJsonObject value = m_services.get(u"kvm"_s).toObject();
    value.remove(u"calls"_s);
    for (auto it = changes.begin(); it != changes.end(); ++it)
        value.insert(it.key(), it.value());
    return m_services.set(u"kvm"_s, value) && rest();
}

QStringList TestSmartKvm::calls()
{
    const QJsonArray all = m_services.get(u"kvm"_s)[u"calls"_s].toArray();
    QStringList result;
    for (int i = m_callsSeen; i < all.size(); ++i)
        result.append(all.at(i).toString());
    m_callsSeen = int(all.size());
    return result;
}

void TestSmartKvm::show()
{
    m_shell.emplace(QList<QObject*>{&m_bed->model()},
                    QStringList{u"LuSmartKvmWidget"_s, u"LuPIPPBPWidget"_s});
    QVERIFY(m_shell->window());
    m_shell->window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_shell->window(), PatienceMs));
    QVERIFY(m_shell->bridge->openPage(QString::fromLatin1(Widget)).ok());
}

QJsonObject TestSmartKvm::control(const QString& role, const QString& name)
{
    QList<QJsonValue> open{m_shell->bridge->tree().value};
    while (!open.isEmpty()) {
        const QJsonValue node = open.takeFirst();
        const QJsonArray children = node.isArray() ? node.toArray() : node[u"children"_s].toArray();
        for (const QJsonValue& child : children)
            open.append(child);
        if (node[u"role"_s].toString() == role && node[u"name"_s].toString() == name)
            return node.toObject();
    }
    return {};
}

void TestSmartKvm::theSchemaSaysWhichVariant()
{
    LuSmartKvm* kvm = m_bed->model().smartKvm;
    QVERIFY(kvm->smartKvmEnable());
    QVERIFY(!kvm->smartKvmBasicEnable());
    QVERIFY(kvm->isDriverRequired());
    QCOMPARE(m_services.get(u"kvm"_s)[u"type"_s].toInt(), int(LuKvm::SmartKvm));
    // What is the other variant's stays off.
    kvm->setBasicState(true);
    QVERIFY(!kvm->basicState());
}

void TestSmartKvm::turningOnOpensTheChannelFirst()
{
    KvmModel& model = m_bed->model();
    QSignalSpy changes(model.smartKvm, &LuSmartKvm::stateChanged);
    model.smartKvm->setState(true);
    QVERIFY(rest());
    QCOMPARE(m_bed->writes(), QStringList{u"0x6F 1"_s});
    QCOMPARE(calls(), (QStringList{u"setScreenRect"_s, u"activate"_s}));
    QCOMPARE(changes.count(), 1);
    model.smartKvm->setState(true);
    QVERIFY(rest());
    QCOMPARE(m_bed->writes(), QStringList());
}

void TestSmartKvm::turningOffClosesItLastAndFreesTheHub()
{
    KvmModel& model = m_bed->model();
    model.smartKvm->setState(true);
    model.kvmSwitch->setKvmSwitch(LuKvmSwitch::TypeC);
    QVERIFY(rest());
    m_bed->writes();
    calls();
    model.smartKvm->setState(false);
    QVERIFY(rest());
    QCOMPARE(m_bed->writes(), (QStringList{u"0x6F 0"_s, u"0xE4 4"_s}));
    QCOMPARE(calls(), QStringList{u"deactivate"_s});
}

void TestSmartKvm::aCallOnTheQueueRunsAtOnce()
{
    KvmModel& model = m_bed->model();
    std::atomic<bool> held{false};
    model.dispatch()->post(&model, [&] {
        model.smartKvm->setState(true, false);
        held = m_bed->monitor().value(0x6F) == 1;
    });
    QVERIFY(rest());
    QVERIFY(held);
}

void TestSmartKvm::installingOpensTheChannel()
{
    QVERIFY(setKvm({{u"driverInstalled"_s, false}}));
    calls();
    QSignalSpy installed(m_bed->model().smartKvm, &LuSmartKvm::isDriverInstalledChanged);
    QVERIFY(!m_bed->model().smartKvm->isDriverInstalled());
    m_bed->model().smartKvm->installDriver();
    QVERIFY(rest());
    QCOMPARE(m_bed->writes(), QStringList{u"0x6F 1"_s});
    QCOMPARE(calls(), QStringList{u"installDriver"_s});
    QVERIFY(m_bed->model().smartKvm->isDriverInstalled());
    QCOMPARE(installed.count(), 1);
}

void TestSmartKvm::theDriversFactsAreTold()
{
    KvmModel& model = m_bed->model();
    QSignalSpy connected(model.smartKvm, &LuSmartKvm::isConnectedChanged);
    model.smartKvm->setState(true);
    QVERIFY(rest());
    m_bed->writes();
    QVERIFY(setKvm({{u"connected"_s, true}}));
    QVERIFY(model.smartKvm->isConnected());
    QCOMPARE(connected.count(), 1);
    // That was no crossing.
    QCOMPARE(m_bed->writes(), QStringList());
}

void TestSmartKvm::aCrossingSwitchesTheHub()
{
    KvmModel& model = m_bed->model();
    model.pipPbp->forceOpenPbp();
    model.smartKvm->setState(true);
    QVERIFY(rest());
    m_bed->writes();
    Q_EMIT LuKvm::instance()->kvmChanged();
    QVERIFY(rest());
    // This computer is on USB-C, on the left: the last other port.
    QCOMPARE(m_bed->writes(), QStringList{u"0xE4 1"_s});
}

void TestSmartKvm::closingTheLayoutSwitchesOff()
{
    KvmModel& model = m_bed->model();
    model.pipPbp->forceOpenPbp();
    model.smartKvm->setState(true);
    QVERIFY(rest());
    model.pipPbp->setState(false);
    QVERIFY(rest());
    QVERIFY(!model.smartKvm->state());
    QCOMPARE(int(*m_bed->monitor().value(0x6F)), 0);
}

void TestSmartKvm::theLaunchRestores()
{
    m_bed->model().pipPbp->forceOpenPbp();
    m_bed->model().smartKvm->setState(true);
    m_bed->model().smartKvm->setDeviceLocation(LuKvm::RightLocation);
    QVERIFY(rest());
    QVERIFY(setKvm({{u"location"_s, 0}}));
    QVERIFY(m_bed->monitor().setByMenu(0x6F, 0));
    m_bed->launch();
    QVERIFY(m_bed->model().smartKvm->state());
    QCOMPARE(m_bed->model().smartKvm->deviceLocation(), LuKvm::RightLocation);
    QCOMPARE(int(*m_bed->monitor().value(0x6F)), 1);
}

void TestSmartKvm::thePanelShows()
{
    show();
    QVERIFY(m_shell->widget(Widget));
    QVERIFY(!control(u"radio"_s, u"TBT Upstream"_s).isEmpty());
    QVERIFY(press(u"TBT Upstream"_s, u"radio"_s).ok());
    QCOMPARE(m_bed->writes(), QStringList{u"0xE4 1"_s});
    QTRY_VERIFY(m_bed->model().smartKvm->syncEnable());
    m_shell->window()->hide();
    // It depends on the monitor alone.
    QVERIFY(m_bed->model().smartKvm->syncEnable());
}

void TestSmartKvm::thePanelAsksForTheDriver()
{
    QVERIFY(setKvm({{u"driverInstalled"_s, false}}));
    show();
    calls();
    QVERIFY(press(u"Smart KVM"_s, u"switch"_s).ok());
    QTRY_VERIFY(m_shell->item(u"selectionWindow"_s));
    QCOMPARE(m_shell->item(u"selectionWindow"_s)->property("title").toString(),
             u"Driver installation is required."_s);
    QVERIFY(!control(u"switch"_s, u"Smart KVM"_s)[u"checked"_s].toBool());
    QVERIFY(press(u"OK"_s, u"button"_s).ok());
    QStringList made;
    QTRY_VERIFY((made += calls()).contains(u"installDriver"_s));
    QVERIFY(rest());
    QVERIFY(!m_bed->model().smartKvm->state());
}

void TestSmartKvm::thePanelOpensTheLayout()
{
    show();
    QVERIFY(press(u"Smart KVM"_s, u"switch"_s).ok());
    QTRY_VERIFY(m_shell->item(u"selectionWindow"_s));
    QCOMPARE(m_shell->item(u"selectionWindow"_s)->property("title").toString(),
             u"Do you want to switch to PBP Mode?"_s);
    QSignalSpy looked(&m_shell->context, &LuContext::monitorListCheckRequested);
    QVERIFY(press(u"OK"_s, u"button"_s).ok());
    QTRY_VERIFY(m_bed->model().smartKvm->state());
    QVERIFY(rest());
    // The driver's channel first.
    QCOMPARE(m_bed->writes().filter(QRegularExpression(u"^0x(6F|7D)"_s)),
             (QStringList{u"0x6F 1"_s, u"0x7D 2"_s}));
    QCOMPARE(looked.count(), 1);
    QTRY_VERIFY(control(u"switch"_s, u"Smart KVM"_s)[u"checked"_s].toBool());
    QVERIFY(press(u"Smart KVM"_s, u"switch"_s).ok());
    QTRY_VERIFY(!m_bed->model().smartKvm->state());
}

void TestSmartKvm::theStatusIsShown_data()
{
    QTest::addColumn<bool>("driver");
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<QString>("text");
    QTest::newRow("no driver") << false << false << false << u"Driver installation is required"_s;
    QTest::newRow("no driver, on") << false << true << false << u"Driver installation is required"_s;
    QTest::newRow("off") << true << false << false << u"-"_s;
    QTest::newRow("searching") << true << true << false << u"Searching"_s;
    QTest::newRow("connected") << true << true << true << u"Connected"_s;
}

void TestSmartKvm::theStatusIsShown()
{
    QFETCH(bool, driver);
    QFETCH(bool, on);
    QFETCH(bool, connected);
    QFETCH(QString, text);
    QVERIFY(setKvm({{u"driverInstalled"_s, driver}, {u"connected"_s, connected}}));
    m_bed->model().smartKvm->setState(on);
    QVERIFY(rest());
    show();
    QTRY_VERIFY(m_shell->item(u"smartKvmStatus"_s));
    QTRY_COMPARE(m_shell->item(u"smartKvmStatus"_s)->property("text").toString(), text);
    QTRY_COMPARE(!control(u"label"_s, u"Smart KVM Enabled"_s).isEmpty(), on);
}

void TestSmartKvm::theSidesFollowTheRotation()
{
    m_bed->model().smartKvm->setState(true);
    QVERIFY(rest());
    show();
    QVERIFY(!control(u"radio"_s, u"Left"_s).isEmpty());
    QVERIFY(press(u"Right"_s, u"radio"_s).ok());
    QCOMPARE(m_bed->model().smartKvm->deviceLocation(), LuKvm::RightLocation);
    m_bed->model().autoPivot->setCurrentPivot(90);
    QTRY_VERIFY(!control(u"radio"_s, u"Top"_s).isEmpty());
    QVERIFY(press(u"Bottom"_s, u"radio"_s).ok());
    QCOMPARE(m_bed->model().smartKvm->deviceLocation(), LuKvm::BottomLocation);
    m_bed->model().autoPivot->setCurrentPivot(0);
}

void TestSmartKvm::theHubRestsWhileConnected()
{
    show();
    QTRY_VERIFY(control(u"radio"_s, u"TBT Upstream"_s)[u"enabled"_s].toBool());
    QVERIFY(setKvm({{u"connected"_s, true}}));
    QTRY_VERIFY(!control(u"radio"_s, u"TBT Upstream"_s)[u"enabled"_s].toBool());
}

void TestSmartKvm::theLayoutsPanelWarns()
{
    m_bed->model().pipPbp->forceOpenPbp();
    m_bed->model().smartKvm->setState(true);
    QVERIFY(rest());
    show();
    QVERIFY(m_shell->bridge->openPage(u"LuPIPPBPWidget"_s).ok());
    QVERIFY(press(u"PIP / PBP"_s, u"switch"_s).ok());
    QTRY_VERIFY(m_shell->item(u"selectionWindow"_s));
    QCOMPARE(m_shell->item(u"selectionWindow"_s)->property("title").toString(),
             u"Do you want to turn off PBP Mode and Smart KVM?"_s);
    QVERIFY(press(u"OK"_s, u"button"_s).ok());
    QTRY_VERIFY(!m_bed->model().pipPbp->state());
    QVERIFY(rest());
    QVERIFY(!m_bed->model().smartKvm->state());
}

QTEST_MAIN(TestSmartKvm)
#include "tst_qml_smartkvm.moc"

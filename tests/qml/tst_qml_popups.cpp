// SPDX-License-Identifier: Apache-2.0
#include "Shell.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>
#include <QTest>
#include <QTime>

#include <optional>

using namespace Qt::StringLiterals;

/// Stands for a flow with its periods.
class FakeFlowInfo : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString id MEMBER id CONSTANT)
    Q_PROPERTY(QString name MEMBER name CONSTANT)

public:
    using QObject::QObject;
    Q_INVOKABLE void appendFlowTimePeriodList(QTime start, QTime end, const QVariantList& days)
    {
        calls << u"append %1-%2 %3"_s.arg(start.toString(u"hh:mm"_s), end.toString(u"hh:mm"_s), text(days));
    }
    Q_INVOKABLE void replaceFlowTimePeriodList(QObject* period, QTime start, QTime end,
                                               const QVariantList& days)
    {
        calls << u"replace %1 %2-%3 %4"_s.arg(period->objectName(), start.toString(u"hh:mm"_s),
                                              end.toString(u"hh:mm"_s), text(days));
    }
    static QString text(const QVariantList& days)
    {
        QString result;
        for (const QVariant& day : days)
            result += day.toBool() ? u'1' : u'0';
        return result;
    }
    QString id;
    QString name;
    QStringList calls;
};

/// Stands for one period of a flow.
class FakePeriod : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QTime startTime MEMBER start CONSTANT)
    Q_PROPERTY(QTime endTime MEMBER end CONSTANT)
    Q_PROPERTY(QVariantList repeatDays MEMBER days CONSTANT)

public:
    using QObject::QObject;
    QTime start{22, 30};
    QTime end{6, 5};
    QVariantList days{false, true, false, false, false, false, true};
};

/// Stands for the feature that keeps the flows.
class FakeFlow : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QObject*> modeList MEMBER modeList CONSTANT)
    Q_PROPERTY(QList<int> actions MEMBER actions CONSTANT)

public:
    using QObject::QObject;
    Q_INVOKABLE void appendFlowName(const QString& name) { calls << u"append "_s + name; }
    Q_INVOKABLE void replaceFlow(const QString& id, const QString& name)
    {
        calls << u"replace %1 %2"_s.arg(id, name);
    }
    QList<QObject*> modeList;
    QList<int> actions{12, 3, 9};
    QStringList calls;
};

/// A monitor with flows.
class FlowMonitor : public FakeMonitor
{
    Q_OBJECT
    Q_PROPERTY(QObject* flow MEMBER flow CONSTANT)

public:
    using FakeMonitor::FakeMonitor;
    QObject* flow = nullptr;
};

/// Popups that panels share, and feedback on the screen.
class TestPopups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aFlowGetsAName();
    void aTakenNameIsRefused();
    void aFlowIsRenamed();
    void aPeriodIsAdded();
    void aPeriodIsEdited();
    void aPeriodOfNoLengthIsRefused();
    void anActionIsChosenFromThoseThatAreLeft();
    void anEditorStoresThroughTheController();
    void onePopupAtATime();
    void popupsStandOverTheSettingsWhileTheseAreOpen();
    void feedbackStandsWhereItsShareSays_data();
    void feedbackStandsWhereItsShareSays();
    void feedbackLargerThanTheScreenStandsAtItsCorner();
    void feedbackOpenedAgainStaysItsWholeTime();

private:
    QVariant call(const char* function, const QVariantList& arguments);
    bool opened() const { return m_controller->property("opened").toBool(); }

    std::optional<FlowMonitor> m_monitor;
    std::optional<Shell> m_shell;
    std::optional<FakeFlow> m_flow;
    std::optional<FakeFlowInfo> m_info;
    QObject* m_controller = nullptr;
};

void TestPopups::init()
{
    m_monitor.emplace(u"TK30Z"_s);
    m_flow.emplace();
    m_info.emplace();
    m_info->id = u"7"_s;
    m_info->name = u"Work"_s;
    m_flow->modeList = {&*m_info};
    m_monitor->flow = &*m_flow;
    m_shell.emplace(QList<FakeMonitor*>{&*m_monitor});
    QVERIFY(m_shell->bridge->show().ok());
    QQmlComponent component(&m_shell->engine);
    component.setData(
        "import QtQml\nimport LumenDesk.Popups\nQtObject { property var it: LuPopupController }\n",
        QUrl(u"qrc:/tests/Holder.qml"_s));
    const std::unique_ptr<QObject> holder(component.create());
    QVERIFY2(holder, qPrintable(component.errorString()));
    m_controller = holder->property("it").value<QObject*>();
    QVERIFY(m_controller);
}

void TestPopups::cleanup()
{
    QMetaObject::invokeMethod(m_controller, "close");
    m_shell.reset();
    m_info.reset();
    m_flow.reset();
    m_monitor.reset();
    QCOMPARE(Shell::takeWarnings(), QStringList());
}

QVariant TestPopups::call(const char* function, const QVariantList& arguments)
{
    const QMetaObject* meta = m_controller->metaObject();
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.name() != function || method.parameterCount() != arguments.size())
            continue;
        QList<QVariant> values = arguments;
        for (int i = 0; i < values.size(); ++i) {
            if (const QMetaType type = method.parameterMetaType(i); type != QMetaType::fromType<QVariant>())
                values[i].convert(type);
        }
        const auto argument = [&](int i) {
            if (i >= values.size())
                return QGenericArgument();
            return method.parameterMetaType(i) == QMetaType::fromType<QVariant>()
                       ? QGenericArgument("QVariant", &values[i])
                       : QGenericArgument(method.parameterMetaType(i).name(), values[i].constData());
        };
        QVariant result;
        method.invoke(m_controller, QGenericReturnArgument("QVariant", &result), argument(0), argument(1),
                      argument(2));
        return result;
    }
    return {};
}

void TestPopups::aFlowGetsAName()
{
    call("openFlowAddName", {QVariant::fromValue<QObject*>(&*m_flow)});
    QVERIFY(opened());
    // Nothing to save yet.
    QCOMPARE(m_shell->bridge->press(u"Save"_s).code, int(LuWindowBridge::NotWritable));
    QVERIFY(m_shell->bridge->setValue(u"Name"_s, u"  Evening "_s, u"textField"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Save"_s).ok());
    QCOMPARE(m_flow->calls, QStringList{u"append Evening"_s});
    QVERIFY(!opened());
}

void TestPopups::aTakenNameIsRefused()
{
    call("openFlowAddName", {QVariant::fromValue<QObject*>(&*m_flow)});
    QVERIFY(m_shell->bridge->setValue(u"Name"_s, u"Work"_s, u"textField"_s).ok());
    QCOMPARE(m_shell->bridge->press(u"Save"_s).code, int(LuWindowBridge::NotWritable));
    QVERIFY(m_shell->bridge->key(u"Name"_s, u"Return"_s, u"textField"_s).ok());
    QVERIFY(opened());
    QVERIFY(m_shell->bridge->press(u"Cancel"_s).ok());
    QVERIFY(m_flow->calls.isEmpty());
    QVERIFY(!opened());
}

void TestPopups::aFlowIsRenamed()
{
    call("openFlowRename",
         {QVariant::fromValue<QObject*>(&*m_flow), QVariant::fromValue<QObject*>(&*m_info)});
    QVERIFY(m_shell->bridge->setValue(u"Name"_s, u"Office"_s, u"textField"_s).ok());
    QVERIFY(m_shell->bridge->key(u"Name"_s, u"Return"_s, u"textField"_s).ok());
    QCOMPARE(m_flow->calls, QStringList{u"replace 7 Office"_s});
    QVERIFY(!opened());
}

void TestPopups::aPeriodIsAdded()
{
    call("openFlowSchedulePopup", {QVariant::fromValue<QObject*>(&*m_info), QVariant::fromValue(nullptr)});
    QVERIFY(m_shell->bridge->setValue(u"Start, hour"_s, u"07"_s).ok());
    QVERIFY(m_shell->bridge->setValue(u"Start, minute"_s, u"45"_s).ok());
    QVERIFY(m_shell->bridge->setValue(u"End, hour"_s, u"08"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Monday"_s, u"checkBox"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Saturday"_s, u"checkBox"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Save"_s).ok());
    QCOMPARE(m_info->calls, QStringList{u"append 07:45-08:00 0100001"_s});
}

void TestPopups::aPeriodIsEdited()
{
    FakePeriod period;
    period.setObjectName(u"night"_s);
    call("openFlowSchedulePopup",
         {QVariant::fromValue<QObject*>(&*m_info), QVariant::fromValue<QObject*>(&period)});
    QVERIFY(m_shell->bridge->setValue(u"End, minute"_s, u"15"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Monday"_s, u"checkBox"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Save"_s).ok());
    QCOMPARE(m_info->calls, QStringList{u"replace night 22:30-06:15 0000001"_s});
}

void TestPopups::aPeriodOfNoLengthIsRefused()
{
    call("openFlowSchedulePopup", {QVariant::fromValue<QObject*>(&*m_info), QVariant::fromValue(nullptr)});
    QVERIFY(m_shell->bridge->setValue(u"End, hour"_s, u"09"_s).ok());
    QCOMPARE(m_shell->bridge->press(u"Save"_s).code, int(LuWindowBridge::NotWritable));
    QVERIFY(m_shell->bridge->press(u"Cancel"_s).ok());
    QVERIFY(m_info->calls.isEmpty());
}

void TestPopups::anActionIsChosenFromThoseThatAreLeft()
{
    m_shell->context.setWidgetUrlSource(
        [](QObject*) { return QList<QUrl>{QUrl(u"qrc:///tests/package/Widgets/LuOneWidget.qml"_s)}; });
    call("openFlowActionSelection", {QVariant::fromValue<QObject*>(&*m_monitor), u"7"_s});
    QVERIFY(m_shell->bridge->press(u"Low Blue Light"_s, u"radio"_s).ok());
    QVERIFY(m_shell->bridge->press(u"Next"_s).ok());
    // Its editor follows.
    QTRY_VERIFY(m_shell->item(u"testEditor"_s));
    QCOMPARE(m_shell->item(u"testEditor"_s)->property("actionTitle").toInt(), 9);
}

void TestPopups::anEditorStoresThroughTheController()
{
    m_shell->context.setWidgetUrlSource(
        [](QObject*) { return QList<QUrl>{QUrl(u"qrc:///tests/package/Widgets/LuOneWidget.qml"_s)}; });
    call("openFlowAction", {QVariant::fromValue<QObject*>(&*m_monitor), u"7"_s, 9});
    QVERIFY(opened());
    QVERIFY(m_shell->bridge->press(u"Save"_s).ok());
    // The double is no monitor of the program, which keeps no action of it.
    QCOMPARE(Shell::takeWarnings().size(), 1);
    call("openFlowAction", {QVariant::fromValue<QObject*>(&*m_monitor), u"7"_s, 99});
    QVERIFY(!opened());
    QCOMPARE(Shell::takeWarnings().size(), 1);
}

void TestPopups::onePopupAtATime()
{
    call("openFlowAddName", {QVariant::fromValue<QObject*>(&*m_flow)});
    QQuickItem* first = m_shell->item(u"namePopup"_s);
    call("openFlowSchedulePopup", {QVariant::fromValue<QObject*>(&*m_info), QVariant::fromValue(nullptr)});
    QVERIFY(first);
    QVERIFY(m_shell->item(u"schedulePopup"_s));
    QTRY_VERIFY(!m_shell->item(u"namePopup"_s));
    QVERIFY(opened());
}

void TestPopups::popupsStandOverTheSettingsWhileTheseAreOpen()
{
    QVERIFY(m_shell->bridge->openSection(u"general"_s).ok());
    call("openFlowAddName", {QVariant::fromValue<QObject*>(&*m_flow)});
    const QQuickItem* popup = m_shell->item(u"namePopup"_s);
    QVERIFY(popup);
    QCOMPARE(popup->window(), m_shell->window()->property("settingsWindow").value<QQuickWindow*>());
    QVERIFY(m_shell->bridge->press(u"Cancel"_s).ok());
}

void TestPopups::feedbackStandsWhereItsShareSays_data()
{
    QTest::addColumn<double>("share");
    QTest::newRow("volume, five sixths") << 5.0 / 6;
    QTest::newRow("flow, nine tenths") << 0.9;
    QTest::newRow("the upper edge") << 0.0;
}

void TestPopups::feedbackStandsWhereItsShareSays()
{
    QFETCH(double, share);
    QQmlComponent component(&m_shell->engine);
    component.setData("import QtQuick\nimport LumenDesk\nLuWindow { width: 250; height: 76; timeout: 0 }\n",
                      QUrl(u"qrc:/tests/Feedback.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    auto* window = qobject_cast<QQuickWindow*>(object.get());
    QVERIFY2(window, qPrintable(component.errorString()));
    window->setProperty("verticalShare", share);
    QMetaObject::invokeMethod(window, "open");
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTRY_COMPARE(window->x(), screen.x() + qRound((screen.width() - 250) / 2.0));
    QCOMPARE(window->y(), screen.y() + qRound((screen.height() - 76) * share));
    QVERIFY(window->flags() & Qt::WindowDoesNotAcceptFocus);
    window->hide();
}

void TestPopups::feedbackLargerThanTheScreenStandsAtItsCorner()
{
    QQmlComponent component(&m_shell->engine);
    component.setData(
        "import QtQuick\nimport LumenDesk\nLuWindow { width: 9000; height: 9000; timeout: 0 }\n",
        QUrl(u"qrc:/tests/Feedback.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    auto* window = qobject_cast<QQuickWindow*>(object.get());
    QVERIFY(window);
    QMetaObject::invokeMethod(window, "place");
    QCOMPARE(window->position(), QGuiApplication::primaryScreen()->geometry().topLeft());
}

void TestPopups::feedbackOpenedAgainStaysItsWholeTime()
{
    QQmlComponent component(&m_shell->engine);
    component.setData(
        "import QtQuick\nimport LumenDesk\n"
        "LuWindow { width: 100; height: 50; timeout: 2000; property int ends: 0; onClosed: ++ends }\n",
        QUrl(u"qrc:/tests/Feedback.qml"_s));
    const std::unique_ptr<QObject> object(component.create());
    auto* window = qobject_cast<QQuickWindow*>(object.get());
    QVERIFY(window);
    QElapsedTimer sinceLast;
    for (int i = 0; i < 3; ++i) {
        QMetaObject::invokeMethod(window, "open");
        sinceLast.start();
        QTRY_VERIFY(sinceLast.elapsed() > 150);
    }
    QTRY_COMPARE(window->property("ends").toInt(), 1);
    QVERIFY(sinceLast.elapsed() >= 1900); // a timer of the engine may be a twentieth early
    QVERIFY(!window->isVisible());
}

QTEST_MAIN(TestPopups)
#include "tst_qml_popups.moc"

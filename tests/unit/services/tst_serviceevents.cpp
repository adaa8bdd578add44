// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuKvm.h>
#include <LuShared/LuMediaDevices.h>
#include <LuShared/LuPlatformNotifications.h>
#include <LuShared/LuPlatformProgram.h>
#include <LuShared/LuServerLocation.h>

#include "lushared/services/ServiceRegistry.h"
#include "services/simulated/SimulatedServices.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

using services::Error;

namespace {

QJsonValue json(const QByteArray& text)
{
    return QJsonDocument::fromJson("[" + text + "]").array().first();
}

} // namespace

class TestServiceEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_session.reset(new services::SimulatedServices);
        m_session->install();
    }

    void cleanup() { m_session.reset(); }

    void aSignalIsRaisedByItsName_data()
    {
        QTest::addColumn<QObject*>("sender");
        QTest::addColumn<QByteArray>("signature");
        QTest::addColumn<QByteArray>("arguments");
        QObject* const desktop = LuPlatformNotifications::instance();
        QObject* const media = LuMediaDevices::instance();
        const auto row = [](const char* name, QObject* sender, const char* parameters,
                            const char* arguments) {
            QTest::addRow("%s %s", name, arguments)
                << sender << QByteArray(name) + parameters << QByteArray(arguments);
        };
        row("activeKeyEvent", desktop, "(Qt::KeyboardModifiers,Qt::Key,bool)",
            R"({"modifiers":"Ctrl+Alt","key":"C","repeated":false})");
        row("activeKeyEvent", desktop, "(Qt::KeyboardModifiers,Qt::Key,bool)", R"(["Ctrl","C",true])");
        row("activeAppChanged", desktop, "(ulong)", R"({"pid":7})");
        row("activeAppDragged", desktop, "(ulong,QPointF)", R"({"pid":7,"x":1,"y":2})");
        row("activeAppReleased", desktop, "(ulong,QPointF)", "[7,1,2]");
        row("screenGeometryChanged", desktop, "()", "{}");
        row("systemBrightnessChanged", desktop, "()", "[]");
        row("appListInitialized", desktop, "()", "null");
        row("kvmChanged", LuKvm::instance(), "()", "{}");
        row("deviceLocationChanged", LuKvm::instance(), "()", "{}");
        row("audioOutputsChanged", media, "()", "{}");
        row("systemVolumeChanged", media, "()", "{}");
        row("locationStatusChanged", LuServerLocation::instance(), "()", "{}");
    }

    void aSignalIsRaisedByItsName()
    {
        QFETCH(QObject*, sender);
        QFETCH(QByteArray, signature);
        QFETCH(QByteArray, arguments);
        const QMetaObject* const meta = sender->metaObject();
        const int index = meta->indexOfSignal(QMetaObject::normalizedSignature(signature.constData()));
        QVERIFY2(index >= 0, signature.constData());
        QSignalSpy spy(sender, meta->method(index));
        QVERIFY(spy.isValid());
        Error error;
        const QString name = QString::fromLatin1(signature.left(signature.indexOf('(')));
        const QJsonObject answer = m_session->emitSignal(name, json(arguments), &error);
        QVERIFY2(!error, qPrintable(error.message));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(answer.contains(u"handled"), name == u"activeKeyEvent");
    }

    void badArgumentsRaiseNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<int>("code");
        const auto row = [](const char* tag, const char* name, const char* arguments, int code) {
            QTest::newRow(tag) << QString::fromLatin1(name) << QByteArray(arguments) << code;
        };
        row("unknown signal", "keyPressed", "{}", Error::NoSuchPath);
        row("empty name", "", "{}", Error::NoSuchPath);
        row("other case", "ActiveAppChanged", R"({"pid":1})", Error::NoSuchPath);
        row("missing pid", "activeAppChanged", "{}", Error::InvalidParameters);
        row("missing y", "activeAppDragged", R"({"pid":1,"x":1})", Error::InvalidParameters);
        row("short list", "activeAppDragged", "[1,2]", Error::InvalidParameters);
        row("long list", "screenGeometryChanged", "[1]", Error::InvalidParameters);
        row("unknown argument", "kvmChanged", R"({"pid":1})", Error::InvalidParameters);
        row("number for arguments", "kvmChanged", "1", Error::InvalidParameters);
        row("missing key", "activeKeyEvent", R"({"modifiers":"Ctrl"})", Error::InvalidParameters);
        row("pid text", "activeAppChanged", R"({"pid":"1"})", Error::WrongType);
        row("pid negative", "activeAppChanged", R"({"pid":-1})", Error::WrongType);
        row("x text", "activeAppReleased", R"({"pid":1,"x":"1","y":1})", Error::WrongType);
        row("unknown key", "activeKeyEvent", R"({"key":"Bogus"})", Error::WrongType);
        row("key with modifier", "activeKeyEvent", R"({"key":"Ctrl+C"})", Error::WrongType);
        row("key number", "activeKeyEvent", R"({"key":67})", Error::WrongType);
        row("unknown modifier", "activeKeyEvent", R"({"modifiers":"Ctrl+Hyper","key":"C"})",
            Error::WrongType);
        row("repeated number", "activeKeyEvent", R"({"key":"C","repeated":1})", Error::WrongType);
    }

    void badArgumentsRaiseNothing()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, arguments);
        QFETCH(int, code);
        LuPlatformNotifications* const desktop = LuPlatformNotifications::instance();
        QSignalSpy keys(desktop, &LuPlatformNotifications::activeKeyEvent);
        QSignalSpy active(desktop, &LuPlatformNotifications::activeAppChanged);
        QSignalSpy dragged(desktop, &LuPlatformNotifications::activeAppDragged);
        QSignalSpy released(desktop, &LuPlatformNotifications::activeAppReleased);
        QSignalSpy geometry(desktop, &LuPlatformNotifications::screenGeometryChanged);
        QSignalSpy kvm(LuKvm::instance(), &LuKvm::kvmChanged);
        Error error;
        QCOMPARE(m_session->emitSignal(name, json(arguments), &error), QJsonObject());
        QCOMPARE(error.code, code);
        QVERIFY(!error.message.isEmpty());
        for (const QSignalSpy* spy : {&keys, &active, &dragged, &released, &geometry, &kvm})
            QCOMPARE(spy->count(), 0);
    }

    void aKeyIsReadFromItsName_data()
    {
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("key");
        const auto row = [](const char* arguments, Qt::KeyboardModifiers modifiers, int key) {
            QTest::newRow(arguments) << QByteArray(arguments) << int(modifiers) << key;
        };
        row(R"({"key":"C"})", Qt::NoModifier, Qt::Key_C);
        row(R"({"key":"c","modifiers":""})", Qt::NoModifier, Qt::Key_C);
        row(R"({"key":"7","modifiers":"ctrl+shift"})", Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_7);
        row(R"({"key":"F12","modifiers":"Alt"})", Qt::AltModifier, Qt::Key_F12);
        row(R"({"key":"Left","modifiers":"Meta"})", Qt::MetaModifier, Qt::Key_Left);
        row(R"({"key":"PgUp"})", Qt::NoModifier, Qt::Key_PageUp);
        row(R"({"key":"PageUp"})", Qt::NoModifier, Qt::Key_PageUp);
        row(R"({"key":"Space"})", Qt::NoModifier, Qt::Key_Space);
        row(R"({"key":"Esc"})", Qt::NoModifier, Qt::Key_Escape);
        row(R"({"key":"+"})", Qt::NoModifier, Qt::Key_Plus);
        row(R"({"key":","})", Qt::NoModifier, Qt::Key_Comma);
        row(R"({"key":"Control","modifiers":"Ctrl"})", Qt::ControlModifier, Qt::Key_Control);
        row(R"({"key":"","modifiers":"Ctrl+Alt"})", Qt::ControlModifier | Qt::AltModifier, Qt::Key_unknown);
    }

    void aKeyIsReadFromItsName()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(int, modifiers);
        QFETCH(int, key);
        QSignalSpy spy(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent);
        Error error;
        m_session->emitSignal(QStringLiteral("activeKeyEvent"), json(arguments), &error);
        QVERIFY2(!error, qPrintable(error.message));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy[0][0].value<Qt::KeyboardModifiers>().toInt(), modifiers);
        QCOMPARE(int(spy[0][1].value<Qt::Key>()), key);
        QCOMPARE(spy[0][2].toBool(), false);
    }

    void theHandlerSaysWhetherAKeyWasTaken()
    {
        QStringList order;
        bool repeatedSeen = false;
        services::Registry::current().events->setKeyHandler(
            [&](Qt::KeyboardModifiers modifiers, Qt::Key key, bool repeated) {
                order.append(QStringLiteral("handler"));
                repeatedSeen = repeated;
                return modifiers == Qt::ControlModifier && key == Qt::Key_C;
            });
        QObject receiver;
        connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent, &receiver,
                [&] { order.append(QStringLiteral("signal")); });
        const QString name = QStringLiteral("activeKeyEvent");
        QVERIFY(m_session->emitSignal(name, json(R"({"modifiers":"Ctrl","key":"C"})"))[u"handled"].toBool());
        QVERIFY(!repeatedSeen);
        QVERIFY(!m_session
                     ->emitSignal(name, json(R"({"modifiers":"Ctrl","key":"D","repeated":true})"))[u"handled"]
                     .toBool());
        QVERIFY(repeatedSeen);
        QCOMPARE(order.join(u' '), QStringLiteral("handler signal handler signal"));
    }

    void withoutAHandlerNoKeyIsTaken()
    {
        const QJsonObject answer =
            m_session->emitSignal(QStringLiteral("activeKeyEvent"), json(R"({"key":"C"})"));
        QCOMPARE(answer, (QJsonObject{{QStringLiteral("handled"), false}}));
    }

    void theArgumentsArrive()
    {
        LuPlatformNotifications* const desktop = LuPlatformNotifications::instance();
        QSignalSpy dragged(desktop, &LuPlatformNotifications::activeAppDragged);
        QSignalSpy active(desktop, &LuPlatformNotifications::activeAppChanged);
        m_session->emitSignal(QStringLiteral("activeAppDragged"),
                              json(R"({"pid":4294967296,"x":-1.5,"y":2})"));
        QCOMPARE(dragged[0][0].toULongLong(), 4294967296ULL);
        QCOMPARE(dragged[0][1].toPointF(), QPointF(-1.5, 2));
        m_session->emitSignal(QStringLiteral("activeAppChanged"), json("[9]"));
        QCOMPARE(active[0][0].toULongLong(), 9ULL);
        QCOMPARE(m_session->get(QStringLiteral("activePid")).toInt(), 9);
    }

    void anInitializedListIsReady()
    {
        QVERIFY(m_session->set(QStringLiteral("applicationsReady"), false));
        m_session->emitSignal(QStringLiteral("appListInitialized"), QJsonObject());
        QVERIFY(LuPlatformProgram::instance()->appListReady);
        QVERIFY(m_session->get(QStringLiteral("applicationsReady")).toBool());
    }

private:
    std::unique_ptr<services::SimulatedServices> m_session;
};

QTEST_MAIN(TestServiceEvents)
#include "tst_serviceevents.moc"

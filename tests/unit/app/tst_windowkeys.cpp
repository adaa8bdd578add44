// SPDX-License-Identifier: Apache-2.0
#include <app/WindowKeys.h>

#include <LuShared/LuPlatformNotifications.h>
#include <services/api/DesktopEvents.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

struct Session : services::DesktopEvents
{
    Session(bool every, bool takes) : m_every(every), m_takes(takes) {}
    void setKeyHandler(KeyHandler) override {}
    bool hearsEveryKey() const override { return m_every; }
    bool takesActionKeys() const override { return m_takes; }
    void start() override {}
    void stop() override {}
    const bool m_every;
    const bool m_takes;
};

} // namespace

/// Keys of the program's own windows, in sessions that tell few keys.
class TestWindowKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreRaisedOnceWhereTheSessionIsDeaf_data();
    void keysAreRaisedOnceWhereTheSessionIsDeaf();
};

void TestWindowKeys::keysAreRaisedOnceWhereTheSessionIsDeaf_data()
{
    QTest::addColumn<int>("session"); // 0 none, 1 hears every key, 2 hears few, 3 hears none
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("repeated");
    QTest::addColumn<QStringList>("raised");
    const int both = int(Qt::ControlModifier | Qt::AltModifier);
    QTest::newRow("combination") << 2 << both << int(Qt::Key_J) << false << QStringList{u"Ctrl+Alt+J"_s};
    QTest::newRow("held") << 2 << both << int(Qt::Key_J) << true << QStringList{u"Ctrl+Alt+J*"_s};
    QTest::newRow("modifier") << 2 << int(Qt::ControlModifier) << int(Qt::Key_Alt) << false
                              << QStringList{u"Ctrl+Alt+"_s};
    QTest::newRow("first modifier") << 2 << 0 << int(Qt::Key_Shift) << false << QStringList{u"Shift+"_s};
    QTest::newRow("session without keys")
        << 3 << both << int(Qt::Key_J) << false << QStringList{u"handled"_s, u"Ctrl+Alt+J"_s};
    QTest::newRow("session that hears") << 1 << both << int(Qt::Key_J) << false << QStringList();
    QTest::newRow("session that has gone") << 0 << both << int(Qt::Key_J) << false << QStringList();
}

void TestWindowKeys::keysAreRaisedOnceWhereTheSessionIsDeaf()
{
    QFETCH(int, session);
    QFETCH(int, modifiers);
    QFETCH(int, key);
    QFETCH(bool, repeated);
    QFETCH(QStringList, raised);
    const auto events = session == 0 ? nullptr : std::make_shared<Session>(session == 1, session != 3);
    QStringList heard;
    WindowKeys keys(
        events,
        [&](Qt::KeyboardModifiers held, Qt::Key pressed, bool) {
            heard.append(int(held) == modifiers && int(pressed) == key ? u"handled"_s : u"wrong"_s);
            return true;
        },
        nullptr);
    qGuiApp->installEventFilter(&keys);
    QObject context;
    connect(LuPlatformNotifications::instance(), &LuPlatformNotifications::activeKeyEvent, &context,
            [&heard](Qt::KeyboardModifiers held, Qt::Key pressed, bool again) {
                QString text = QKeySequence(int(held)).toString(QKeySequence::PortableText);
                if (pressed != Qt::Key_unknown)
                    text += QKeySequence(pressed).toString(QKeySequence::PortableText);
                heard.append(text + (again ? u"*"_s : QString()));
            });
    QWindow window;
    QObject item;
    for (QObject* receiver : std::initializer_list<QObject*>{&window, &item}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), QString(), repeated);
        QCoreApplication::sendEvent(receiver, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::KeyboardModifiers(modifiers));
        QCoreApplication::sendEvent(receiver, &release);
    }
    QCOMPARE(heard, raised);
}

QTEST_MAIN(TestWindowKeys)
#include "tst_windowkeys.moc"

// SPDX-License-Identifier: Apache-2.0
#include <app/InputNotice.h>

#include <ZrCore/ZrAsker.h>

#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

using MakeEvent = std::function<std::unique_ptr<QEvent>()>;
Q_DECLARE_METATYPE(MakeEvent)

namespace {

MakeEvent mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    return [=] {
        return std::make_unique<QMouseEvent>(type, QPointF(5, 5), QPointF(5, 5), QPointF(5, 5), button,
                                             buttons, Qt::NoModifier);
    };
}

} // namespace

/// Which events count as a person's input.
class TestInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPersonIsNoticed_data();
    void aPersonIsNoticed();
};

void TestInput::aPersonIsNoticed_data()
{
    QTest::addColumn<MakeEvent>("make");
    QTest::addColumn<bool>("noticed");
    QTest::newRow("press") << mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton) << true;
    QTest::newRow("drag") << mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton) << true;
    QTest::newRow("release") << mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton) << true;
    QTest::newRow("a pointer that passes") << mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton) << false;
    QTest::newRow("key") << MakeEvent([] {
        return std::make_unique<QKeyEvent>(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    }) << true;
    QTest::newRow("wheel") << MakeEvent([] {
        return std::make_unique<QWheelEvent>(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, 120),
                                             Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    }) << true;
    QTest::newRow("focus") << MakeEvent([] { return std::make_unique<QFocusEvent>(QEvent::FocusIn); })
                           << false;
    QTest::newRow("an event of the program's own")
        << MakeEvent([] { return std::make_unique<QEvent>(QEvent::User); }) << false;
}

void TestInput::aPersonIsNoticed()
{
    QFETCH(MakeEvent, make);
    QFETCH(bool, noticed);
    QTRY_VERIFY_WITH_TIMEOUT(!ZrAsker::isAsking(), 10'000); // the row before lasts a second
    InputNotice notice;
    qGuiApp->installEventFilter(&notice);
    QWindow window;
    const std::unique_ptr<QEvent> event = make();
    QCoreApplication::sendEvent(&window, event.get());
    QCOMPARE(ZrAsker::isAsking(), noticed);
}

QTEST_MAIN(TestInput)
#include "tst_input.moc"

// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// What X servers lack, told to scripts and on a panel. Each test runs on a server of its own kind.
class tst_desk_servers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aUsualServerHasWhatPanelsNeed();
    void aServerWithoutRandrSaysSo();

private:
    QStringList absent() { return m_desk->client().get(u"context.absences"_s).toObject().keys(); }
    QString pageOf(const QString& widget)
    {
        if (!m_desk->client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok())
            return {};
        const QJsonValue tree = m_desk->client().call(u"ui.tree"_s, {{u"widget"_s, widget}}).result;
        return QString::fromUtf8(QJsonDocument(QJsonArray{tree}).toJson());
    }

    std::unique_ptr<DeskProcess> m_desk;
};

void tst_desk_servers::init()
{
    m_desk = std::make_unique<DeskProcess>();
    QVERIFY2(m_desk->start(
                 {u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"native"_s}),
             qPrintable(m_desk->errors()));
    QVERIFY(m_desk->client().call(u"idle"_s).ok());
}

void tst_desk_servers::cleanup()
{
    if (m_desk->isRunning()) {
        QCOMPARE(m_desk->client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
        QCOMPARE(m_desk->stop(), 0);
    }
    m_desk.reset();
}

void tst_desk_servers::aUsualServerHasWhatPanelsNeed()
{
    QStringList missing = absent();
    // The sound server is not the X server's; nothing composes this one.
    missing.removeAll(u"soundOutputs"_s);
    QCOMPARE(missing, QStringList{u"translucentWindows"_s});
    QVERIFY(pageOf(u"LuAutoPivotWidget"_s).contains(u"Auto Pivot"_s));
    QVERIFY(!pageOf(u"LuAutoPivotWidget"_s).contains(u"This session"_s));
    QVERIFY(pageOf(u"LuBrightnessWidget"_s).contains(u"Nothing composes this desktop"_s));
}

void tst_desk_servers::aServerWithoutRandrSaysSo()
{
    QStringList missing = absent();
    missing.removeAll(u"soundOutputs"_s);
    QCOMPARE(missing, (QStringList{u"displayModes"_s, u"rotation"_s, u"scaling"_s, u"translucentWindows"_s}));
    QVERIFY(
        pageOf(u"LuAutoPivotWidget"_s).contains(u"This session does not let programs turn the picture."_s));
}

QTEST_GUILESS_MAIN(tst_desk_servers)
#include "tst_desk_servers.moc"

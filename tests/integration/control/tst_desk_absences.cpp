// SPDX-License-Identifier: Apache-2.0
#include "DeskProcess.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// What a session cannot do, told to scripts and on the panels.
class tst_desk_absences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aSessionWithoutADesktopSaysSo();
    void aSimulatedSessionLacksNothing();
    void headlessScriptsAreToldToo();

private:
    QJsonObject absences()
    {
        return m_desk.client()
            .call(u"get"_s, {{u"path"_s, u"context.absences"_s}})
            .result[u"value"]
            .toObject();
    }
    static void labelsOf(const QJsonValue& tree, QStringList& labels)
    {
        if (tree.isArray()) {
            const QJsonArray list = tree.toArray();
            for (const QJsonValue& each : list)
                labelsOf(each, labels);
            return;
        }
        if (tree[u"role"].toString() == "label"_L1)
            labels.append(tree[u"name"].toString());
        if (const QJsonValue children = tree[u"children"]; children.isArray())
            labelsOf(children, labels);
    }

    DeskProcess m_desk;
};

void tst_desk_absences::cleanup()
{
    if (m_desk.isRunning())
        QCOMPARE(m_desk.stop(), 0);
}

void tst_desk_absences::aSessionWithoutADesktopSaysSo()
{
    QVERIFY2(m_desk.start(
                 {u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s, u"native"_s}),
             qPrintable(m_desk.errors()));
    QVERIFY(m_desk.client().call(u"idle"_s).ok());
    const QString reason = u"There is no desktop session."_s;
    const QJsonObject absent = absences();
    for (const char* name :
         {"displayModes", "rotation", "scaling", "globalShortcuts", "foregroundApplication", "windowPlacing",
          "copyPasteKeys", "pointerEdge", "overlayOnTop"})
        QCOMPARE(absent[QLatin1String(name)].toString(), reason);
    QVERIFY(!absent.contains(u"translucentWindows"_s));
    QVERIFY(!absent.contains(u"monitorControl"_s));

    for (const QString& widget : {u"LuAutoPivotWidget"_s, u"LuShortcutsWidget"_s, u"LuSmartKvmBasicWidget"_s,
                                  u"LuBrightnessWidget"_s}) {
        QVERIFY(m_desk.client().call(u"ui.open"_s, {{u"widget"_s, widget}}).ok());
        QStringList labels;
        labelsOf(m_desk.client().call(u"ui.tree"_s, {{u"widget"_s, widget}}).result, labels);
        QVERIFY2(labels.contains(reason), qPrintable(widget + u": "_s + labels.join(u'|')));
    }
    QCOMPARE(m_desk.client().call(u"ui.warnings"_s).result.toArray(), QJsonArray());
}

void tst_desk_absences::aSimulatedSessionLacksNothing()
{
    QVERIFY2(m_desk.start({u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s, u"--services"_s,
                           u"simulated"_s}),
             qPrintable(m_desk.errors()));
    QJsonArray outputs{QJsonObject{{u"id"_s, u"a"_s}, {u"name"_s, u"A"_s}}};
    QVERIFY(m_desk.client()
                .call(u"services.set"_s, {{u"path"_s, u"audioOutputs"_s}, {u"value"_s, outputs}})
                .ok());
    QCOMPARE(absences(), QJsonObject());
    // Sound comes and goes while the program runs, and scripts hear of it.
    QVERIFY(m_desk.client().call(u"watch"_s, {{u"paths"_s, QJsonArray{u"context.absences"_s}}}).ok());
    QVERIFY(m_desk.client()
                .call(u"services.set"_s, {{u"path"_s, u"audioOutputs"_s}, {u"value"_s, QJsonArray()}})
                .ok());
    QCOMPARE(absences().keys(), QStringList{u"soundOutputs"_s});
    QTRY_VERIFY(m_desk.client().call(u"version"_s).ok() && !m_desk.client().messages().isEmpty());
}

void tst_desk_absences::headlessScriptsAreToldToo()
{
    QVERIFY2(m_desk.start({u"--headless"_s, u"--simulate"_s, u"TK30Z"_s, u"--ddc-timing"_s, u"fast"_s,
                           u"--services"_s, u"native"_s}),
             qPrintable(m_desk.errors()));
    QCOMPARE(absences()[u"rotation"].toString(), u"There is no desktop session."_s);
}

QTEST_GUILESS_MAIN(tst_desk_absences)
#include "tst_desk_absences.moc"

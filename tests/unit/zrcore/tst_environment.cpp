// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrEnvironment.h"
#include "ZrCore/ZrPlatform.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

class tst_environment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { ZrEnvironment::clear(); }
    void builtInSwitchesAreOn_data();
    void builtInSwitchesAreOn();
    void builtInAddressesAreUsable_data();
    void builtInAddressesAreUsable();
    void laterLayersWinKeyByKey();
    void nestedAndDottedNamesAreTheSame();
    void choicesFollowTheDevice();
    void laterLayerMayReplaceAChoiceByAValue();
    void damagedFileIsRefusedWhole_data();
    void damagedFileIsRefusedWhole();
    void missingFileIsRefused();
    void clearGoesBackToTheBuiltIn();
    void unknownKeyIsInvalid();
    void deviceModelCanBeReplaced();

private:
    QString write(const QByteArray& text, const QString& name = u"env.json"_s)
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write the test file");
        return file.fileName();
    }
    QTemporaryDir m_folder;
};

void tst_environment::builtInSwitchesAreOn_data()
{
    QTest::addColumn<bool>("expected");
    for (const char* key : {"using.application-mode", "using.daisy-chain", "using.dpi-scaling", "using.flow",
                            "using.hi-dpi", "using.resolution", "using.shortcuts", "using.hdr"})
        QTest::newRow(key) << true;
    if (ZrEnvironment::deviceClass() == u"linux"_s)
        QTest::newRow("using.focus-assist") << false;
}

void tst_environment::builtInSwitchesAreOn()
{
    QFETCH(bool, expected);
    const QVariant value = ZrEnvironment::varDeviceChoice(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(value.isValid());
    QCOMPARE(value.typeId(), int(QMetaType::Bool));
    QCOMPARE(value.toBool(), expected);
}

void tst_environment::builtInAddressesAreUsable_data()
{
    QTest::addColumn<QString>("scheme");
    for (const char* key :
         {"google.url", "bing.url", "baidu.url", "chatgpt.url", "youtube.url", "openweather.url"})
        QTest::newRow(key) << u"https"_s;
    QTest::newRow("openweather.api") << u"lumen-sun"_s;
}

void tst_environment::builtInAddressesAreUsable()
{
    QFETCH(QString, scheme);
    const QUrl url = ZrEnvironment::var(QString::fromLatin1(QTest::currentDataTag())).toUrl();
    QVERIFY(url.isValid());
    QCOMPARE(url.scheme(), scheme);
    QVERIFY(!url.host().isEmpty() && !url.hasQuery());
}

void tst_environment::laterLayersWinKeyByKey()
{
    QVERIFY(ZrEnvironment::addLayer(write(R"({"using": {"flow": false}, "own": 1})")));
    QCOMPARE(ZrEnvironment::var(u"using.flow"_s), QVariant(false));
    QCOMPARE(ZrEnvironment::var(u"using.resolution"_s), QVariant(true));
    QVERIFY(ZrEnvironment::addLayer(write(R"({"own": 2})", u"second.json"_s)));
    QCOMPARE(ZrEnvironment::var(u"own"_s).toInt(), 2);
    QCOMPARE(ZrEnvironment::var(u"using.flow"_s), QVariant(false));
}

void tst_environment::nestedAndDottedNamesAreTheSame()
{
    QVERIFY(ZrEnvironment::addLayer(write(R"({"a.b": {"c": 1, "d.e": 2}, "a": {"b.f": 3}})")));
    QCOMPARE(ZrEnvironment::var(u"a.b.c"_s).toInt(), 1);
    QCOMPARE(ZrEnvironment::var(u"a.b.d.e"_s).toInt(), 2);
    QCOMPARE(ZrEnvironment::var(u"a.b.f"_s).toInt(), 3);
    QVERIFY(ZrEnvironment::keys().contains(u"a.b.d.e"_s));
}

void tst_environment::choicesFollowTheDevice()
{
    const QString own = ZrEnvironment::deviceClass();
    QVERIFY(ZrEnvironment::addLayer(write(
        u"{\"x\": {\"default\": 1, \"%1\": 2}, \"y\": {\"default\": 3}, \"z\": 4}"_s.arg(own).toUtf8())));
    QCOMPARE(ZrEnvironment::varDeviceChoice(u"x"_s).toInt(), 2);
    QCOMPARE(ZrEnvironment::varDeviceChoice(u"y"_s).toInt(), 3);
    QCOMPARE(ZrEnvironment::varDeviceChoice(u"z"_s).toInt(), 4);
    QCOMPARE(ZrEnvironment::var(u"x"_s).toMap().size(), 2);
    const QString other = own == u"linux"_s ? u"windows"_s : u"linux"_s;
    QVERIFY(ZrEnvironment::addLayer(write(u"{\"w\": {\"%1\": 5}}"_s.arg(other).toUtf8())));
    QVERIFY(!ZrEnvironment::varDeviceChoice(u"w"_s).isValid());
}

void tst_environment::laterLayerMayReplaceAChoiceByAValue()
{
    QVERIFY(ZrEnvironment::addLayer(write(R"({"using.focus-assist": true})")));
    QCOMPARE(ZrEnvironment::varDeviceChoice(u"using.focus-assist"_s), QVariant(true));
}

void tst_environment::damagedFileIsRefusedWhole_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << u"line 1"_s;
    QTest::newRow("cut off") << QByteArray("{\n\"using.flow\": false,\n") << u"line 3"_s;
    QTest::newRow("garbage") << QByteArray("\x01\xff\x00garbage", 10) << u"line 1"_s;
    QTest::newRow("list") << QByteArray("[1, 2]") << u"no JSON object"_s;
    QTest::newRow("trailing text") << QByteArray("{\"using.flow\": false} x") << u"line 1"_s;
    QTest::newRow("deep") << QByteArray(100'000, '[') << u"line 1"_s;
    QTest::newRow("large") << QByteArray("{\"using.flow\": false, \"t\": \"" + QByteArray(1024 * 1024, 'x') +
                                         "\"}")
                           << u"larger than 1 MiB"_s;
}

void tst_environment::damagedFileIsRefusedWhole()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    QVERIFY(ZrEnvironment::addLayer(write(R"({"own": 7})", u"good.json"_s)));
    const QStringList keys = ZrEnvironment::keys();
    const QString file = write(text);
    QString error;
    QVERIFY(!ZrEnvironment::addLayer(file, &error));
    QVERIFY2(error.startsWith(file) && error.contains(reason), qPrintable(error));
    QVERIFY(!ZrEnvironment::addLayer(file));
    QCOMPARE(ZrEnvironment::keys(), keys);
    QCOMPARE(ZrEnvironment::var(u"own"_s).toInt(), 7);
    QCOMPARE(ZrEnvironment::var(u"using.flow"_s), QVariant(true));
}

void tst_environment::missingFileIsRefused()
{
    QString error;
    QVERIFY(!ZrEnvironment::addLayer(m_folder.filePath(u"missing.json"_s), &error));
    QVERIFY(error.contains(u"missing.json"_s));
    QVERIFY(!ZrEnvironment::addLayer(m_folder.path(), &error));
}

void tst_environment::clearGoesBackToTheBuiltIn()
{
    QVERIFY(ZrEnvironment::addLayer(write(R"({"using.flow": false, "own": 1})")));
    ZrEnvironment::clear();
    QCOMPARE(ZrEnvironment::var(u"using.flow"_s), QVariant(true));
    QVERIFY(!ZrEnvironment::var(u"own"_s).isValid());
}

void tst_environment::unknownKeyIsInvalid()
{
    QVERIFY(!ZrEnvironment::var(u"using"_s).isValid());
    QVERIFY(!ZrEnvironment::varDeviceChoice(u"no.such"_s).isValid());
    QVERIFY(!ZrEnvironment::var(QString()).isValid());
}

void tst_environment::deviceModelCanBeReplaced()
{
    const QString own = ZrPlatform::deviceModel();
    QCOMPARE(own, own.trimmed());
    ZrPlatform::setDeviceModel(u"MacBookPro18,3"_s);
    QCOMPARE(ZrPlatform::deviceModel(), u"MacBookPro18,3"_s);
    ZrPlatform::setDeviceModel(u""_s);
    QCOMPARE(ZrPlatform::deviceModel(), QString());
    ZrPlatform::setDeviceModel(QString());
    QCOMPARE(ZrPlatform::deviceModel(), own);
}

QTEST_GUILESS_MAIN(tst_environment)
#include "tst_environment.moc"

// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrS.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_zrs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makePathMakesParents();
    void makePathTellsFailure();
    void uuidsAreUnique();
    void urlsResolveBelowTheirBase_data();
    void urlsResolveBelowTheirBase();
    void urlsResolveBelowTheDataFolder();
    void localFiles_data();
    void localFiles();
    void optIntTakesWholeNumbers_data();
    void optIntTakesWholeNumbers();
    void optStringTakesText();
    void decryptsStoredValues();
};

void tst_zrs::makePathMakesParents()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"a/b c/ü"_s);
    QVERIFY(ZrS::makePath(path));
    QVERIFY(QDir(path).exists());
    QVERIFY(ZrS::makePath(path));
}

void tst_zrs::makePathTellsFailure()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot make the folder"_s));
    QVERIFY(!ZrS::makePath(file.fileName() + u"/below"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot make the folder"_s));
    QVERIFY(!ZrS::makePath(QString()));
}

void tst_zrs::uuidsAreUnique()
{
    static const QRegularExpression form(u"^[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}$"_s);
    QSet<QString> seen;
    for (int i = 0; i < 1'000; ++i) {
        const QString id = ZrS::makeUuid();
        QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
        seen.insert(id);
    }
    QCOMPARE(seen.size(), 1'000);
}

void tst_zrs::urlsResolveBelowTheirBase_data()
{
    QTest::addColumn<QString>("relative");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("expected");
    QTest::newRow("file") << u"x/y.svg"_s << u"file:///data"_s << u"file:///data/x/y.svg"_s;
    QTest::newRow("slash at the end") << u"y.svg"_s << u"file:///data/"_s << u"file:///data/y.svg"_s;
    QTest::newRow("resource") << u"images/a.svg"_s << u"qrc:/TKPackage"_s << u"qrc:/TKPackage/images/a.svg"_s;
    QTest::newRow("full address") << u"https://a.example/b"_s << u"file:///data"_s
                                  << u"https://a.example/b"_s;
    QTest::newRow("absolute path") << u"/etc/x"_s << u"file:///data"_s << u"file:///etc/x"_s;
    QTest::newRow("resource path") << u":/a/b"_s << u"file:///data"_s << u"qrc:/a/b"_s;
    QTest::newRow("signs of an address in a name")
        << u"50%=a?b#c.svg"_s << u"file:///data"_s << u"file:///data/50%25=a%3Fb%23c.svg"_s;
}

void tst_zrs::urlsResolveBelowTheirBase()
{
    QFETCH(QString, relative);
    QFETCH(QString, base);
    QFETCH(QString, expected);
    QCOMPARE(ZrS::resolveUrl(relative, QUrl(base)).toString(QUrl::FullyEncoded), expected);
}

void tst_zrs::urlsResolveBelowTheDataFolder()
{
    QTemporaryDir folder;
    const QString usual = ZrS::dataPath();
    QVERIFY(!usual.isEmpty());
    ZrS::setDataPath(folder.path());
    QCOMPARE(ZrS::dataPath(), folder.path());
    QCOMPARE(ZrS::resolveLocalFile(ZrS::resolveUrl(u"custom/1.svg"_s, QUrl())),
             folder.filePath(u"custom/1.svg"_s));
    ZrS::setDataPath(QString());
    QCOMPARE(ZrS::dataPath(), usual);
}

void tst_zrs::localFiles_data()
{
    QTest::addColumn<QUrl>("url");
    QTest::addColumn<QString>("expected");
    QTest::newRow("file") << QUrl(u"file:///a/b%20c"_s) << u"/a/b c"_s;
    QTest::newRow("resource") << QUrl(u"qrc:/a/b.svg"_s) << u":/a/b.svg"_s;
    QTest::newRow("plain path") << QUrl(u"a/b"_s) << u"a/b"_s;
    QTest::newRow("web") << QUrl(u"https://a.example/b"_s) << QString();
    QTest::newRow("empty") << QUrl() << QString();
}

void tst_zrs::localFiles()
{
    QFETCH(QUrl, url);
    QFETCH(QString, expected);
    QCOMPARE(ZrS::resolveLocalFile(url), expected);
}

void tst_zrs::optIntTakesWholeNumbers_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("number") << QJsonValue(200) << 200;
    QTest::newRow("negative") << QJsonValue(-3) << -3;
    QTest::newRow("text") << QJsonValue(u"429"_s) << 429;
    QTest::newRow("fraction") << QJsonValue(1.5) << 77;
    QTest::newRow("too large") << QJsonValue(3e9) << 77;
    QTest::newRow("largest") << QJsonValue(2147483647.0) << 2147483647;
    QTest::newRow("other text") << QJsonValue(u"x"_s) << 77;
    QTest::newRow("bool") << QJsonValue(true) << 77;
    QTest::newRow("null") << QJsonValue() << 77;
    QTest::newRow("absent") << QJsonValue(QJsonValue::Undefined) << 77;
}

void tst_zrs::optIntTakesWholeNumbers()
{
    QFETCH(QJsonValue, value);
    QFETCH(int, expected);
    QCOMPARE(ZrS::optInt(value, 77), expected);
}

void tst_zrs::optStringTakesText()
{
    QCOMPARE(ZrS::optString(QJsonValue(u"a"_s), u"b"_s), u"a"_s);
    QCOMPARE(ZrS::optString(QJsonValue(QString()), u"b"_s), QString());
    QCOMPARE(ZrS::optString(QJsonValue(1), u"b"_s), u"b"_s);
    QCOMPARE(ZrS::optString(QJsonValue(), u"b"_s), u"b"_s);
}

void tst_zrs::decryptsStoredValues()
{
    QCOMPARE(ZrS::decryptData(ZrS::NoCipher, "a=\xff"), QByteArray("a=\xff"));
    QCOMPARE(ZrS::decryptData(ZrS::Base64Cipher, "S2V5IDE="), QByteArray("Key 1"));
    QCOMPARE(ZrS::decryptData(ZrS::Base64Cipher, "S2V5IDE"), QByteArray("Key 1"));
    QCOMPARE(ZrS::decryptData(ZrS::Base64Cipher, QByteArray()), QByteArray());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no valid Base64"_s));
    QCOMPARE(ZrS::decryptData(ZrS::Base64Cipher, "!!"), QByteArray());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"unknown cipher"_s));
    QCOMPARE(ZrS::decryptData(static_cast<ZrS::CipherType>(9), "a"), QByteArray());
}

QTEST_GUILESS_MAIN(tst_zrs)
#include "tst_zrs.moc"

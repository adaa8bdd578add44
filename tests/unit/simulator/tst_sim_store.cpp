// SPDX-License-Identifier: Apache-2.0
#include "wirehost.h"

#include <QTemporaryDir>

class TestSimStore : public QObject
{
    Q_OBJECT

private:
    QString path() const { return m_dir->filePath(QStringLiteral("monitor.json")); }

    void writeFile(const QByteArray& text) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), text.size());
    }

    std::unique_ptr<QTemporaryDir> m_dir;

private slots:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void valuesOfAllModesAndWindowsComeBack();
    void aSelectionDoesNotComeBack();
    void aMissingFileGivesFactoryValues();
    void aFileIsWrittenAfterAChangeOnly();
    void aDamagedFileGivesFactoryValuesAndIsKept_data();
    void aDamagedFileGivesFactoryValuesAndIsKept();
    void aValueOfAnUnknownCodeIsDropped();
    void aFolderThatCannotBeWrittenIsTold();
};

void TestSimStore::valuesOfAllModesAndWindowsComeBack()
{
    {
        sim::Monitor monitor(identity("TK30Z"));
        QVERIFY(monitor.setByMenu(0x12, 11));
        QVERIFY(monitor.setByMenu(0xDC, 0x32));
        QVERIFY(monitor.setByMenu(0x12, 22));
        QVERIFY(monitor.setByMenu(0x81, 1));
        QVERIFY(monitor.setByMenu(0x10, 0));
        QVERIFY(monitor.setByMenu(0x62, 33));
        QVERIFY(monitor.setByMenu(0x7E, 15, 2048));
        QVERIFY(monitor.setByMenu(0x99, 0x13, 100));
        QVERIFY(monitor.setByMenu(0xAA, 0xFFFF));
        QString error;
        QVERIFY2(monitor.save(path(), &error), qPrintable(error));
    }
    sim::Monitor monitor(identity("TK30Z@other"));
    QString error;
    QVERIFY2(monitor.load(path(), &error), qPrintable(error));
    QCOMPARE(int(*monitor.value(0xDC)), 0x32);
    QCOMPARE(int(*monitor.value(0x12)), 22);
    QCOMPARE(int(*monitor.value(0x10)), 0);
    QCOMPARE(int(*monitor.value(0x62)), 33);
    QCOMPARE(int(*monitor.value(0x7E, 2048)), 15);
    QCOMPARE(int(*monitor.value(0x7E, 512)), 17);
    QCOMPARE(int(*monitor.value(0x99, 100)), 0x13);
    QCOMPARE(int(*monitor.value(0xAA)), 0xFFFF);
    QVERIFY(monitor.setByMenu(0xDC, 0x12));
    QCOMPARE(int(*monitor.value(0x12)), 11);
}

void TestSimStore::aSelectionDoesNotComeBack()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QVERIFY(monitor.setStore(path()));
    QCOMPARE(host.set(0xA5, 1024), ddc::BusStatus::Ok);
    QVERIFY(!monitor.needsPersist());
    QVERIFY(monitor.save(path()));
    sim::Monitor next(identity("TK30Z"));
    QVERIFY(next.load(path()));
    QCOMPARE(int(*next.value(0xA5)), 0);
}

void TestSimStore::aMissingFileGivesFactoryValues()
{
    sim::Monitor monitor(identity("TK30Z"));
    QString error;
    QVERIFY(monitor.setStore(path(), &error));
    QCOMPARE(error, QString());
    QCOMPARE(int(*monitor.value(0x12)), 50);
    QVERIFY(!monitor.needsPersist());
    QVERIFY(!QFile::exists(path()));
}

void TestSimStore::aFileIsWrittenAfterAChangeOnly()
{
    sim::Monitor monitor(identity("TK30Z"));
    WireHost host(monitor);
    QVERIFY(monitor.persist());
    QVERIFY(monitor.setStore(path()));
    QVERIFY(monitor.persist());
    QVERIFY(!QFile::exists(path()));
    QCOMPARE(host.get(0x12), 50);
    QCOMPARE(host.set(0x12, 50), ddc::BusStatus::Ok);
    QVERIFY(!monitor.needsPersist());
    QCOMPARE(host.set(0x12, 51), ddc::BusStatus::Ok);
    QVERIFY(monitor.needsPersist());
    QVERIFY(monitor.persist());
    QVERIFY(!monitor.needsPersist());
    sim::Monitor next(identity("TK30Z"));
    QVERIFY(next.setStore(path()));
    QVERIFY(!next.needsPersist());
    QCOMPARE(int(*next.value(0x12)), 51);
    next.reset();
    QVERIFY(next.needsPersist());
    QVERIFY(next.persist());
    sim::Monitor third(identity("TK30Z"));
    QVERIFY(third.setStore(path()));
    QCOMPARE(int(*third.value(0x12)), 50);
}

void TestSimStore::aDamagedFileGivesFactoryValuesAndIsKept_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QByteArray head(R"({"format":1,"model":"TK30Z",)");
    QTest::newRow("empty") << QByteArray() << "at byte 0";
    QTest::newRow("cut off") << head + R"("values":{"0x12":4)"
                             << "at byte";
    QTest::newRow("a list") << QByteArray("[1]") << "not a file of monitor values";
    QTest::newRow("another program's") << QByteArray("{}") << "not a file of monitor values";
    QTest::newRow("a later format") << QByteArray(R"({"format":2,"model":"TK30Z"})")
                                    << "not a file of monitor values";
    QTest::newRow("another model's") << QByteArray(R"({"format":1,"model":"TK10"})")
                                     << "values of the model \"TK10\"";
    QTest::newRow("no values") << head + R"("modes":{}})"
                               << "\"values\" or \"modes\" is missing";
    QTest::newRow("no modes") << head + R"("values":{}})"
                              << "\"values\" or \"modes\" is missing";
    QTest::newRow("value is a text") << head + R"("values":{"0x12":"x"},"modes":{}})"
                                     << "wrong entry \"0x12\"";
    QTest::newRow("value too large") << head + R"("values":{"0x12":1e9},"modes":{}})"
                                     << "wrong entry \"0x12\"";
    QTest::newRow("value is a fraction") << head + R"("values":{"0x12":1.5},"modes":{}})"
                                         << "wrong entry \"0x12\"";
    QTest::newRow("code is a text") << head + R"("values":{"x":1},"modes":{}})"
                                    << "wrong entry \"x\"";
    QTest::newRow("mode is a text") << head + R"("values":{},"modes":{"x":{}}})"
                                    << "wrong colour mode \"x\"";
    QTest::newRow("mode is a number") << head + R"("values":{},"modes":{"0x12":3}})"
                                      << "wrong colour mode \"0x12\"";
    QTest::newRow("binary") << QByteArray(4096, char(0xFF)) << "at byte";
}

void TestSimStore::aDamagedFileGivesFactoryValuesAndIsKept()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    writeFile(text);
    sim::Monitor monitor(identity("TK30Z@1"));
    QVERIFY(monitor.setByMenu(0x62, 44));
    QString error;
    QVERIFY(!monitor.setStore(path(), &error));
    QVERIFY2(error.startsWith(path() + QStringLiteral(": ")) && error.contains(message), qPrintable(error));
    QVERIFY2(error.contains(QStringLiteral("TK30Z@1 starts with factory values")), qPrintable(error));
    QCOMPARE(int(*monitor.value(0x62)), 20);
    QVERIFY(!QFile::exists(path()));
    QFile kept(path() + QStringLiteral(".damaged"));
    QVERIFY(kept.open(QIODevice::ReadOnly));
    QCOMPARE(kept.readAll(), text);
}

void TestSimStore::aValueOfAnUnknownCodeIsDropped()
{
    writeFile(R"({"format":1,"model":"TK30Z","values":{"0x01":7,"0x62":8},"modes":{}})");
    sim::Monitor monitor(identity("TK30Z"));
    QVERIFY(monitor.load(path()));
    QCOMPARE(int(*monitor.value(0x62)), 8);
    QVERIFY(!monitor.value(0x01));
}

void TestSimStore::aFolderThatCannotBeWrittenIsTold()
{
    const QString nowhere = m_dir->filePath(QStringLiteral("missing/monitor.json"));
    sim::Monitor monitor(identity("TK30Z"));
    QString error;
    QVERIFY(!monitor.save(nowhere, &error));
    QVERIFY2(error.startsWith(nowhere + QStringLiteral(": ")), qPrintable(error));
    QVERIFY(monitor.setStore(nowhere));
    QVERIFY(monitor.setByMenu(0x12, 4));
    error.clear();
    QVERIFY(!monitor.persist(&error));
    QVERIFY(!error.isEmpty());
    QVERIFY(monitor.needsPersist());
}

QTEST_GUILESS_MAIN(TestSimStore)
#include "tst_sim_store.moc"

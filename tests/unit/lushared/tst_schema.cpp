// SPDX-License-Identifier: Apache-2.0
#include <lushared/LuSchemaReader.h>

#include <LuShared/LuModelModuleInterface.h>
#include <LuShared/LuUtils.h>

#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "SimulatedBed.h"

namespace {

const QByteArray Schema = R"(<?xml version="1.0" encoding="UTF-8"?>
<VCPTree><VCPList>
<VCPcode Type="a" Name="a" Category="On" Value="on"/>
<VCPcode Type="b" Name="b" Category="Off" Value="off"/>
<VCPcode Type="1.8" Name="1.8" Category="Gamma" Value="on"/>
<VCPcode Type="2.0" Name="2.0" Category="Gamma" Value="off"/>
<VCPcode Type="n" Name="n" Category="Number" Value="50"/>
<VCPcode Type="t" Name="t" Category="Text" Value="LocalContrast"/>
</VCPList></VCPTree>)";

/// Opens the readers of the base to the test.
class Reader : public LuModelModuleInterface
{
public:
    using LuModelModuleInterface::loadVCPFunctionOnOffByCategory;
    using LuModelModuleInterface::loadVCPFunctionsOnOffByCategory;
    using LuModelModuleInterface::loadVCPFunctionStringByCategory;
    using LuModelModuleInterface::loadVCPFunctionValueByCategory;
    using LuModelModuleInterface::LuModelModuleInterface;
    void readSchema(const QByteArray&) override {}
    LuSyncTasks* syncPeriodically() override { return nullptr; }
};

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onOffByCategory();
    void allOnOffOfACategory();
    void textByCategory();
    void numberByCategory();
    void damageYieldsWhatStandsInFront();
    void hexBytes_data();
    void hexBytes();
    void mimeDataIsCopiedDeeply();
};

void TestSchema::onOffByCategory()
{
    SimulatedBed bed;
    auto* reader = new Reader(&bed.launch());
    QVERIFY(reader->loadVCPFunctionOnOffByCategory(Schema, QStringLiteral("On")));
    QVERIFY(!reader->loadVCPFunctionOnOffByCategory(Schema, QStringLiteral("Off")));
    QVERIFY(!reader->loadVCPFunctionOnOffByCategory(Schema, QStringLiteral("Absent")));
    QVERIFY(!reader->loadVCPFunctionOnOffByCategory(Schema, QStringLiteral("on")));
    QVERIFY(bed.idle());
}

void TestSchema::allOnOffOfACategory()
{
    SimulatedBed bed;
    auto* reader = new Reader(&bed.launch());
    QHash<QString, bool> result;
    reader->loadVCPFunctionsOnOffByCategory(Schema, QStringLiteral("Gamma"), result);
    QCOMPARE(result, (QHash<QString, bool>{{QStringLiteral("1.8"), true}, {QStringLiteral("2.0"), false}}));
    QVERIFY(bed.idle());
}

void TestSchema::textByCategory()
{
    SimulatedBed bed;
    auto* reader = new Reader(&bed.launch());
    QString text = QStringLiteral("as it was");
    QVERIFY(!reader->loadVCPFunctionStringByCategory(Schema, QStringLiteral("Absent"), text));
    QCOMPARE(text, QStringLiteral("as it was"));
    QVERIFY(reader->loadVCPFunctionStringByCategory(Schema, QStringLiteral("Text"), text));
    QCOMPARE(text, QStringLiteral("LocalContrast"));
    QVERIFY(bed.idle());
}

void TestSchema::numberByCategory()
{
    SimulatedBed bed;
    auto* reader = new Reader(&bed.launch());
    int number = 7;
    QVERIFY(!reader->loadVCPFunctionValueByCategory(Schema, QStringLiteral("Absent"), number));
    QVERIFY(!reader->loadVCPFunctionValueByCategory(Schema, QStringLiteral("Text"), number));
    QCOMPARE(number, 7);
    QVERIFY(reader->loadVCPFunctionValueByCategory(Schema, QStringLiteral("Number"), number));
    QCOMPARE(number, 50);
    QVERIFY(bed.idle());
}

void TestSchema::damageYieldsWhatStandsInFront()
{
    int entries = 0;
    const QString problem =
        LuSchemaReader::forEachEntry(Schema.left(Schema.indexOf("2.0")), [&entries](const auto&) {
            ++entries;
            return true;
        });
    QCOMPARE(entries, 3);
    QVERIFY(problem.startsWith(QStringLiteral("line 6")));
}

void TestSchema::hexBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");
    QTest::newRow("byte") << QStringLiteral("0x1F") << 0x1F;
    QTest::newRow("capital X") << QStringLiteral("0X1f") << 0x1F;
    QTest::newRow("zero") << QStringLiteral("0x00") << 0;
    QTest::newRow("too large") << QStringLiteral("0x100") << -1;
    QTest::newRow("decimal") << QStringLiteral("31") << -1;
    QTest::newRow("empty") << QString() << -1;
    QTest::newRow("no digits") << QStringLiteral("0x") << -1;
    QTest::newRow("negative") << QStringLiteral("0x-1") << -1;
}

void TestSchema::hexBytes()
{
    QFETCH(QString, text);
    QTEST(LuSchemaReader::hexByte(text), "value");
}

void TestSchema::mimeDataIsCopiedDeeply()
{
    QVERIFY(!LuUtils::copyMimeData(nullptr));
    std::unique_ptr<QMimeData> copy;
    {
        QMimeData source;
        source.setText(QStringLiteral("text"));
        source.setHtml(QStringLiteral("<b>text</b>"));
        source.setUrls({QUrl(QStringLiteral("file:///a"))});
        source.setData(QStringLiteral("application/x-own"), "bytes");
        copy.reset(LuUtils::copyMimeData(&source));
    }
    QCOMPARE(copy->text(), QStringLiteral("text"));
    QCOMPARE(copy->html(), QStringLiteral("<b>text</b>"));
    QCOMPARE(copy->urls(), QList<QUrl>{QUrl(QStringLiteral("file:///a"))});
    QCOMPARE(copy->data(QStringLiteral("application/x-own")), QByteArray("bytes"));
}

QTEST_MAIN(TestSchema)
#include "tst_schema.moc"

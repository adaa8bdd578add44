// SPDX-License-Identifier: Apache-2.0
#include "schema_reader.h"
#include "schema_tables.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace SchemaReader;
using namespace SchemaTables;

namespace {

Document modeFile(const QString& model)
{
    return read(u"model/%1.xml"_s.arg(model));
}

Document featureFile(const QString& model)
{
    return read(u"model/%1_ext.xml"_s.arg(model));
}

QString between(QLatin1StringView separator, const QString& text)
{
    return separator + text + separator;
}

void modelRows()
{
    QTest::addColumn<QString>("model");
    for (const QLatin1StringView model : models)
        QTest::newRow(model.data()) << QString(model);
}

} // namespace

// The modes, features and delays of the models.
class tst_SchemaFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyFileButTheShortcutsIsWellFormed();
    void modesStandInOrderWithTheirCodes_data() { modelRows(); }
    void modesStandInOrderWithTheirCodes();
    void aModeHasExactlyItsFlags_data() { modelRows(); }
    void aModeHasExactlyItsFlags();
    void aFeatureHasItsValueInEachModel_data();
    void aFeatureHasItsValueInEachModel();
    void noFeatureBesidesTheTable_data() { modelRows(); }
    void noFeatureBesidesTheTable();
    void choicesKeepTheirOrder_data();
    void choicesKeepTheirOrder();
    void sisterModelsShareTheirBytes_data();
    void sisterModelsShareTheirBytes();
    void delaysHoldForTheirScope();
};

void tst_SchemaFiles::everyFileButTheShortcutsIsWellFormed()
{
    QStringList files{u"TK_vcpDelay.xml"_s, u"Resolutions.xml"_s, u"osdSetting/TK20_osd.xml"_s,
                      u"osdSetting/TK30Z_osd.xml"_s};
    for (const QLatin1StringView model : models)
        files << u"model/%1.xml"_s.arg(model) << u"model/%1_ext.xml"_s.arg(model);
    for (const QString& file : std::as_const(files)) {
        const Document document = read(file);
        QVERIFY2(document.error == QXmlStreamReader::NoError && !document.elements.isEmpty(),
                 qPrintable(file));
    }
}

void tst_SchemaFiles::modesStandInOrderWithTheirCodes()
{
    QFETCH(QString, model);
    QStringList expected;
    for (const Mode& mode : modes) {
        if (mode.models.contains(between(" "_L1, model)))
            expected << mode.name + " "_L1 + mode.code;
    }
    QStringList found;
    for (const Element& mode : modeFile(model).named("VCPcode"_L1, u"VCPList"_s))
        found << mode["Name"_L1] + u' ' + mode["Code"_L1];
    QCOMPARE(found, expected);
}

void tst_SchemaFiles::aModeHasExactlyItsFlags()
{
    QFETCH(QString, model);
    const QList<Element> found = modeFile(model).named("VCPcode"_L1);
    QVERIFY(found.size() >= 7);
    for (const Element& mode : found) {
        const QString name = mode["Name"_L1];
        Attributes expected{{u"Type"_s, name},
                            {u"Name"_s, name},
                            {u"Category"_s, u"Picture Mode"_s},
                            {u"Code"_s, mode["Code"_L1]},
                            {u"SHCode"_s, u"0x00"_s}};
        for (const Flag& flag : flags) {
            if (!flag.models.contains(between(" "_L1, model)))
                continue;
            if (flag.on.contains(between("|"_L1, name)))
                expected.insert(flag.name, on);
            else if (flag.off.contains(between("|"_L1, name)))
                expected.insert(flag.name, off);
        }
        QVERIFY2(mode.attributes == expected, qPrintable(name));
    }
}

void tst_SchemaFiles::aFeatureHasItsValueInEachModel_data()
{
    QTest::addColumn<qsizetype>("row");
    for (std::size_t row = 0; row < features.size(); ++row)
        QTest::addRow("%s %s", features[row].category.data(), features[row].type.data()) << qsizetype(row);
}

void tst_SchemaFiles::aFeatureHasItsValueInEachModel()
{
    QFETCH(qsizetype, row);
    const Feature& feature = features[std::size_t(row)];
    for (const QLatin1StringView model : models) {
        QStringList values;
        for (const Element& entry : featureFile(model).named("VCPcode"_L1, u"VCPList"_s)) {
            if (entry["Category"_L1] == feature.category && entry["Type"_L1] == feature.type)
                values << entry["Value"_L1];
        }
        const QLatin1StringView value = feature.values[featureColumn(model)];
        QVERIFY2(values == (value.isNull() ? QStringList() : QStringList(value)), model.data());
    }
}

void tst_SchemaFiles::noFeatureBesidesTheTable()
{
    QFETCH(QString, model);
    const QList<Element> entries = featureFile(model).named("VCPcode"_L1);
    qsizetype expected = 0;
    for (const Feature& feature : features)
        expected += feature.values[featureColumn(QLatin1StringView(model.toLatin1()))].isNull() ? 0 : 1;
    QCOMPARE(entries.size(), expected);
    for (const Element& entry : entries) {
        QCOMPARE(entry.attributes.keys(), QStringList({u"Category"_s, u"Name"_s, u"Type"_s, u"Value"_s}));
        QCOMPARE(entry["Name"_L1], entry["Type"_L1]);
    }
}

void tst_SchemaFiles::choicesKeepTheirOrder_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("types");
    QTest::newRow("gamma") << u"TK10"_s << u"Gamma"_s << u"1.8,2.0,2.2,2.4,2.6,sRGB"_s;
    QTest::newRow("audio") << u"TK20"_s << u"Audio Mode"_s << u"Standard,Dialogue,Music"_s;
    QTest::newRow("layouts") << u"TK30Z"_s << u"PIP PBP AB"_s << u"PIP,PBP,PBP 2:1,PBP 3:1,PBPx4"_s;
    QTest::newRow("inputs") << u"TK30Z"_s << u"Input Source"_s << u"DisplayPort,HDMI,USB-C"_s;
    QTest::newRow("two HDMI inputs") << u"TK40"_s << u"Input Source"_s
                                     << u"DVI,USB-C,HDMI1,HDMI2,DisplayPort,MiniDisplayPort,Thunderbolt3"_s;
    QTest::newRow("kvm") << u"TK30Z"_s << u"Kvm"_s << u"Auto,TypeC,TypeB"_s;
}

void tst_SchemaFiles::choicesKeepTheirOrder()
{
    QFETCH(QString, model);
    QFETCH(QString, category);
    QStringList types;
    for (const Element& entry : featureFile(model).named("VCPcode"_L1)) {
        if (entry["Category"_L1] == category)
            types << entry["Type"_L1];
    }
    QTEST(types.join(u','), "types");
}

void tst_SchemaFiles::sisterModelsShareTheirBytes_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::newRow("TK30 modes") << u"model/TK30.xml"_s << u"model/TK30X.xml"_s;
    QTest::newRow("TK30 features") << u"model/TK30_ext.xml"_s << u"model/TK30X_ext.xml"_s;
    QTest::newRow("TK40 modes") << u"model/TK40.xml"_s << u"model/TK40X.xml"_s;
    QTest::newRow("TK40 features") << u"model/TK40_ext.xml"_s << u"model/TK40X_ext.xml"_s;
}

void tst_SchemaFiles::sisterModelsShareTheirBytes()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QVERIFY(!bytes(first).isEmpty());
    QCOMPARE(bytes(second), bytes(first));
}

void tst_SchemaFiles::delaysHoldForTheirScope()
{
    const Document table = read(u"TK_vcpDelay.xml"_s);
    QStringList rules;
    for (const Element& entry : table.named("Entry"_L1))
        rules << entry.parent + u' ' + entry["VcpCode"_L1] + u' ' + entry["Delay"_L1];
    QCOMPARE(rules, QStringList({u"TK 0xDC 500"_s, u"TK 0x08 5000"_s, u"TK30Z 0x04 2000"_s,
                                 u"TK30Z 0x94 700"_s, u"TK30Z 0xE4 1000"_s, u"TK30Z 0x13 500"_s}));
    QCOMPARE(table.named("Package"_L1, u"VcpDelay"_s).size(), 1);
    QCOMPARE(table.named("Model"_L1, u"VcpDelay"_s).size(), 1);
}

QTEST_APPLESS_MAIN(tst_SchemaFiles)
#include "tst_schema_files.moc"

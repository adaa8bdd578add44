// SPDX-License-Identifier: Apache-2.0
#include "resolution_table.h"
#include "schema_reader.h"
#include "shortcut_tables.h"

#include <QSize>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace SchemaReader;
using namespace SchemaTables;

namespace {

QSize sizeFromText(const QString& text)
{
    const QStringList parts = text.trimmed().split(u'x');
    return parts.size() == 2 ? QSize(parts[0].toInt(), parts[1].toInt()) : QSize();
}

// The sizes that a computer of this identifier gets: the first row that matches, its readable sizes only.
QList<QSize> resolutionsOf(const QString& identifier)
{
    QList<QSize> sizes;
    for (const Element& row : read(u"Resolutions.xml"_s).named("Model"_L1)) {
        if (row["Identifier"_L1] != identifier)
            continue;
        const QStringList texts = row["Resolutions"_L1].split(u',');
        for (const QString& text : texts) {
            if (const QSize size = sizeFromText(text); size.isValid())
                sizes.append(size);
        }
        break;
    }
    return sizes;
}

} // namespace

// The menu tables, the default shortcuts and the resolutions of computers.
class tst_SchemaTables : public QObject
{
    Q_OBJECT

private slots:
    void menuFunctionsStandInOrderAndAreOn_data();
    void menuFunctionsStandInOrderAndAreOn();
    void aMenuFunctionHasItsCodes_data();
    void aMenuFunctionHasItsCodes();
    void hintsOfTheUsbSpeedsNameResolutionAndRefreshRate_data();
    void hintsOfTheUsbSpeedsNameResolutionAndRefreshRate();
    void menuTablesDifferInTwoFunctionsOnly();
    void modelsWithoutMenuTableHaveNoFile();
    void defaultShortcutsAreComplete_data();
    void defaultShortcutsAreComplete();
    void anUnclosedEntryEndsInAnErrorAfterTheLastOne_data();
    void anUnclosedEntryEndsInAnErrorAfterTheLastOne();
    void resolutionTableHas54DifferentRows();
    void aComputerGetsTheSizesOfItsDisplay_data();
    void aComputerGetsTheSizesOfItsDisplay();
    void onlyTheOddRowsAreOdd();
};

void tst_SchemaTables::menuFunctionsStandInOrderAndAreOn_data()
{
    const QString shared =
        u"Language InputAutoSwitch UsbCConfiguration UsbCAwake StandbyCharging PowerOnCharging "
        "PowerOffCharging DeepSleep AMA"_s;
    QTest::addColumn<QString>("functions");
    QTest::newRow("TK20") << shared;
    QTest::newRow("TK30Z") << shared + u" BacklightControl"_s;
}

void tst_SchemaTables::menuFunctionsStandInOrderAndAreOn()
{
    QStringList functions;
    const QString model = QString::fromLatin1(QTest::currentDataTag());
    for (const Element& function :
         read(u"osdSetting/%1_osd.xml"_s.arg(model)).named("Function"_L1, u"OsdSetting"_s)) {
        functions << function["Name"_L1];
        QCOMPARE(function["Enabled"_L1], u"on"_s);
    }
    QTEST(functions.join(u' '), "functions");
}

void tst_SchemaTables::aMenuFunctionHasItsCodes_data()
{
    QTest::addColumn<QString>("codes");
    QTest::newRow("Language")
        << u"English=0x02,French=0x03,German=0x04,Italian=0x05,Spanish=0x0A,"
           "Portuguese (Portugal)=0x08,Portuguese (Brazil)=0x0E,Dutch=0x14,Swedish=0x0B,"
           "Polish=0x1E,Czech=0x12,Hungarian=0x1A,Croatian=0x11,Romanian=0x1F,Turkish=0x0C,"
           "Russian=0x09,Arabic=0x0F,Japanese=0x06,Korean=0x07,Chinese (Simplified)=0x0D,"
           "Chinese (Traditional)=0x01"_s;
    QTest::newRow("InputAutoSwitch") << u"On=0x01,Off=0x00"_s;
    QTest::newRow("UsbCAwake") << u"On=0x01,Off=0x00,Ports:USB-C"_s;
    QTest::newRow("StandbyCharging") << u"0x04/"_s;
    QTest::newRow("PowerOnCharging") << u"0x02/"_s;
    QTest::newRow("PowerOffCharging") << u"0x08/"_s;
    QTest::newRow("DeepSleep") << u"0x20/0x10"_s;
    QTest::newRow("AMA") << u"Off=0x00,High=0x01,Premium=0x02"_s;
    QTest::newRow("BacklightControl") << u"On=0x01,Off=0x00"_s;
}

void tst_SchemaTables::aMenuFunctionHasItsCodes()
{
    QStringList codes;
    const QString function = QString::fromLatin1(QTest::currentDataTag());
    for (const Element& element : read(u"osdSetting/TK30Z_osd.xml"_s).elements) {
        if (element.parent != function)
            continue;
        if (element.name == "Entry"_L1)
            codes << element["Name"_L1] + u'=' + element["Code"_L1];
        else if (element.name == "Flag"_L1)
            codes << element["OnFlag"_L1] + u'/' + element["OffFlag"_L1];
        else
            codes << element["Property"_L1] + u':' + element["Value"_L1];
    }
    QTEST(codes.join(u','), "codes");
}

void tst_SchemaTables::hintsOfTheUsbSpeedsNameResolutionAndRefreshRate_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("speed");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("hints");
    QTest::newRow("TK20 fast") << u"TK20"_s << u"USB3.2Gen1"_s << u"0x01"_s << u"2560 1440 60"_s;
    QTest::newRow("TK20 slow") << u"TK20"_s << u"USB2.0"_s << u"0x00"_s << u"2560 1440 144"_s;
    QTest::newRow("TK30Z fast") << u"TK30Z"_s << u"USB3.1Gen2"_s << u"0x01"_s << u"3840 2560 30"_s;
    QTest::newRow("TK30Z slow") << u"TK30Z"_s << u"USB2.0"_s << u"0x00"_s << u"3840 2560 120"_s;
}

void tst_SchemaTables::hintsOfTheUsbSpeedsNameResolutionAndRefreshRate()
{
    QFETCH(QString, model);
    QFETCH(QString, speed);
    const Document table = read(u"osdSetting/%1_osd.xml"_s.arg(model));
    Attributes codes;
    for (const Element& entry : table.named("Entry"_L1, u"UsbCConfiguration"_s))
        codes.insert(entry["Name"_L1], entry["Code"_L1]);
    Attributes hints;
    for (const Element& hint : table.named("ExtraHint"_L1, u"UsbCConfiguration"_s))
        hints.insert(hint["Property"_L1], hint["Value"_L1]);
    QCOMPARE(codes.size(), 2);
    QTEST(codes.value(speed), "code");
    QCOMPARE(hints.size(), 6);
    const QStringList found{hints.value(speed + u"_Resolution_Width"_s),
                            hints.value(speed + u"_Resolution_Height"_s),
                            hints.value(speed + u"_RefreshRate"_s)};
    QTEST(found.join(u' '), "hints");
}

void tst_SchemaTables::menuTablesDifferInTwoFunctionsOnly()
{
    const auto withoutDifferences = [](const QString& file) {
        QStringList lines;
        for (const Element& element : read(file).elements) {
            const QString function = element.name == "Function"_L1 ? element["Name"_L1] : element.parent;
            if (function != "UsbCConfiguration"_L1 && function != "BacklightControl"_L1)
                lines << element.name + u' ' + element.parent + u' ' + element.attributes.values().join(u' ');
        }
        return lines;
    };
    QVERIFY(withoutDifferences(u"osdSetting/TK20_osd.xml"_s).size() > 40);
    QCOMPARE(withoutDifferences(u"osdSetting/TK20_osd.xml"_s),
             withoutDifferences(u"osdSetting/TK30Z_osd.xml"_s));
}

void tst_SchemaTables::modelsWithoutMenuTableHaveNoFile()
{
    const QDir folder(QStringLiteral(LUMEN_SCHEMA_FOLDER) + u"/osdSetting"_s);
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), QStringList({u"TK20_osd.xml"_s, u"TK30Z_osd.xml"_s}));
}

void tst_SchemaTables::defaultShortcutsAreComplete_data()
{
    QTest::addColumn<QList<Shortcut>>("expected");
    QTest::addColumn<qsizetype>("count");
    QTest::newRow("TK") << QList<Shortcut>(tkShortcuts.begin(), tkShortcuts.end()) << qsizetype(28);
    QTest::newRow("ZQ") << seriesShortcuts(zqShortcuts) << qsizetype(21);
    QTest::newRow("FN") << seriesShortcuts(fnShortcuts) << qsizetype(22);
    QTest::newRow("YH") << seriesShortcuts(yhShortcuts) << qsizetype(24);
}

void tst_SchemaTables::defaultShortcutsAreComplete()
{
    QFETCH(QList<Shortcut>, expected);
    const QString series = QString::fromLatin1(QTest::currentDataTag());
    QMap<QString, QString> found;
    const QList<Element> entries = read(series + u"DefaultShortcuts.xml"_s).named("Entry"_L1);
    for (const Element& entry : entries)
        found.insert(entry["Name"_L1], entry["WinKeys"_L1] + u'|' + entry["MacKeys"_L1]);
    QMap<QString, QString> wanted;
    for (const Shortcut& shortcut : std::as_const(expected))
        wanted.insert(shortcut.name, shortcut.win + "|"_L1 + shortcut.mac);
    QTEST(entries.size(), "count");
    QCOMPARE(found, wanted);
}

void tst_SchemaTables::anUnclosedEntryEndsInAnErrorAfterTheLastOne_data()
{
    QTest::addColumn<QString>("last");
    QTest::newRow("TK") << u"Kvm_LoopAllKvmSwitch"_s;
    QTest::newRow("ZQ") << u"ExtraCopyPaste_Paste"_s;
    QTest::newRow("FN") << u"ExtraCopyPaste_Paste"_s;
    QTest::newRow("YH") << u"ExtraCopyPaste_Paste"_s;
}

void tst_SchemaTables::anUnclosedEntryEndsInAnErrorAfterTheLastOne()
{
    const QString file = QString::fromLatin1(QTest::currentDataTag()) + u"DefaultShortcuts.xml"_s;
    const Document document = read(file);
    QCOMPARE(document.error, QXmlStreamReader::NotWellFormedError);
    QCOMPARE(document.elements.first().name, u"OsdSetting"_s);
    QTEST(document.elements.last()["Name"_L1], "last");
    QCOMPARE(bytes(file).count("<Entry "), document.elements.size() - 1);
    QVERIFY(!bytes(file).contains("/>") && !bytes(file).contains("</Entry"));
}

void tst_SchemaTables::resolutionTableHas54DifferentRows()
{
    QStringList identifiers;
    for (const Element& row : read(u"Resolutions.xml"_s).named("Model"_L1, u"ModelList"_s))
        identifiers << row["Identifier"_L1];
    QCOMPARE(identifiers.size(), 54);
    QCOMPARE(identifiers.removeDuplicates(), 0);
    QStringList wanted;
    for (const Display& display : displays) {
        if (!display.sizes.isEmpty())
            wanted << QString(display.computers).split(u'|');
    }
    identifiers.sort();
    wanted.sort();
    QCOMPARE(identifiers, wanted);
}

void tst_SchemaTables::aComputerGetsTheSizesOfItsDisplay_data()
{
    QTest::addColumn<QString>("computers");
    QTest::addColumn<QString>("sizes");
    for (const Display& display : displays)
        QTest::newRow(display.name) << QString(display.computers) << QString(display.sizes);
}

void tst_SchemaTables::aComputerGetsTheSizesOfItsDisplay()
{
    QFETCH(QString, computers);
    for (const QString& computer : computers.split(u'|')) {
        QStringList sizes;
        for (const QSize& size : resolutionsOf(computer))
            sizes << u"%1x%2"_s.arg(size.width()).arg(size.height());
        QTEST(sizes.join(u' '), "sizes");
    }
}

void tst_SchemaTables::onlyTheOddRowsAreOdd()
{
    QStringList blanks;
    QStringList signs;
    for (const Element& row : read(u"Resolutions.xml"_s).named("Model"_L1)) {
        const QString identifier = row["Identifier"_L1];
        const qsizetype written = row["Resolutions"_L1].count(u',') + 1;
        if (identifier != identifier.trimmed())
            blanks << identifier;
        if (resolutionsOf(identifier).size() != written)
            signs << identifier;
        QVERIFY2(written >= 3, qPrintable(identifier));
    }
    QCOMPARE(blanks, QStringList({u"MacBookPro18,1 "_s, u"Mac15,11 "_s}));
    QCOMPARE(signs, QStringList({u"Mac15,13"_s}));
}

QTEST_APPLESS_MAIN(tst_SchemaTables)
#include "tst_schema_tables.moc"

// SPDX-License-Identifier: Apache-2.0
#include "TestObjects.h"

#include <control/ObjectAccess.h>
#include <control/RequestError.h>
#include <control/ValueReader.h>
#include <control/ValueWriter.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace control;

namespace {

QJsonValue parse(const QByteArray& text)
{
    return QJsonDocument::fromJson('[' + text + ']').array().first();
}

template <class Function>
int codeOf(Function function)
{
    try {
        function();
    } catch (const RequestError& error) {
        return error.message().isEmpty() ? 999 : error.code();
    }
    return 0;
}

} // namespace

/// Values in both directions, as the protocol's "Addresses and values" has them.
class TestControlValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aValueComesBackAsItWasSet_data();
    void aValueComesBackAsItWasSet();
    void otherFormsAreTaken_data();
    void otherFormsAreTaken();
    void aValueThatDoesNotFitIsRefusedAndChangesNothing_data();
    void aValueThatDoesNotFitIsRefusedAndChangesNothing();
    void invalidValuesReadAsNull_data();
    void invalidValuesReadAsNull();
    void everyNumberOfAnEnumerationIsTaken();
    void aTimeWithoutZoneIsLocal();
    void objectsAreReadWithTheirProperties();
    void objectsThatPointAtEachOtherEnd();
    void objectsAreGivenByIdOrPath_data();
    void objectsAreGivenByIdOrPath();
    void colourModesAreGivenByName();
    void audioDevicesAreGivenById();
    void propertiesOfAnActionArePlain();

private:
    Model m_model;
};

void TestControlValues::aValueComesBackAsItWasSet_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("bool") << "module.state" << QByteArray("true");
    QTest::newRow("int") << "module.level" << QByteArray("-2147483648");
    QTest::newRow("uint") << "module.count" << QByteArray("4294967295");
    QTest::newRow("int64") << "module.wide" << QByteArray("-9007199254740993");
    QTest::newRow("uint64") << "module.widest" << QByteArray("9223372036854775807");
    QTest::newRow("byte") << "module.byte" << QByteArray("255");
    QTest::newRow("double") << "module.ratio" << QByteArray("0.125");
    QTest::newRow("string") << "module.text" << QByteArray("\"caf\xc3\xa9 \\u0000\"");
    QTest::newRow("enumeration") << "module.mode" << QByteArray("7");
    QTest::newRow("small enumeration") << "module.small" << QByteArray("2");
    QTest::newRow("flags") << "module.options" << QByteArray("5");
    QTest::newRow("size") << "module.size" << QByteArray(R"({"height":2,"width":1})");
    QTest::newRow("rect") << "module.rect" << QByteArray(R"({"height":4,"width":3,"x":-1,"y":2})");
    QTest::newRow("rectF") << "module.rectF" << QByteArray(R"({"height":4.5,"width":3,"x":-1.25,"y":2})");
    QTest::newRow("color") << "module.color" << QByteArray("\"#80097bf8\"");
    QTest::newRow("url") << "module.url" << QByteArray("\"https://example.org/a?b=c\"");
    QTest::newRow("empty url") << "module.url" << QByteArray("\"\"");
    QTest::newRow("time") << "module.time" << QByteArray("\"07:30:15.250\"");
    QTest::newRow("date and time") << "module.dateTime" << QByteArray("\"2024-03-04T07:30:15.250\"");
    QTest::newRow("list of strings") << "module.names" << QByteArray(R"(["a","b"])");
    QTest::newRow("list of numbers") << "module.numbers" << QByteArray("[3,1,2]");
    QTest::newRow("empty list") << "module.numbers" << QByteArray("[]");
    QTest::newRow("list of sizes") << "module.sizes" << QByteArray(R"([{"height":2,"width":1}])");
    QTest::newRow("list of anything") << "module.variants" << QByteArray(R"([1,"a",null,[true],{"b":1.5}])");
    QTest::newRow("map") << "module.map" << QByteArray(R"({"a":1,"b":{"c":[1]}})");
    QTest::newRow("anything") << "module.any" << QByteArray(R"({"a":[1,"2"]})");
    QTest::newRow("null for anything") << "module.any" << QByteArray("null");
    QTest::newRow("json") << "module.json" << QByteArray(R"({"a":{"b":[null]}})");
    QTest::newRow("gadget") << "module.gadget" << QByteArray(R"({"depth":9,"label":"x"})");
    QTest::newRow("colour mode") << "colorMode" << QByteArray("\"Cinema\"");
    QTest::newRow("no colour mode") << "colorMode" << QByteArray("null");
}

void TestControlValues::aValueComesBackAsItWasSet()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, json);
    const ObjectAccess access(&m_model, nullptr);
    access.set(path, parse(json));
    QCOMPARE(access.get(path), parse(json));
}

void TestControlValues::otherFormsAreTaken_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("name of an enumeration") << "module.mode" << QByteArray("\"Auto\"") << QByteArray("7");
    QTest::newRow("names of flags") << "module.options" << QByteArray("\"A|C\"") << QByteArray("5");
    QTest::newRow("whole number as 3.0") << "module.level" << QByteArray("3.0") << QByteArray("3");
    QTest::newRow("whole number for a double") << "module.ratio" << QByteArray("2") << QByteArray("2");
    QTest::newRow("opaque colour") << "module.color" << QByteArray("\"#097BF8\"")
                                   << QByteArray("\"#ff097bf8\"");
    QTest::newRow("upper case colour")
        << "module.color" << QByteArray("\"#FF097BF8\"") << QByteArray("\"#ff097bf8\"");
    QTest::newRow("time of minutes") << "module.time" << QByteArray("\"07:30\"")
                                     << QByteArray("\"07:30:00.000\"");
    QTest::newRow("time of seconds") << "module.time" << QByteArray("\"07:30:01\"")
                                     << QByteArray("\"07:30:01.000\"");
    QTest::newRow("date and time of seconds") << "module.dateTime" << QByteArray("\"2024-03-04T07:30:15\"")
                                              << QByteArray("\"2024-03-04T07:30:15.000\"");
}

void TestControlValues::otherFormsAreTaken()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, read);
    const ObjectAccess access(&m_model, nullptr);
    access.set(path, parse(given));
    QCOMPARE(access.get(path), parse(read));
}

void TestControlValues::aValueThatDoesNotFitIsRefusedAndChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("number for a bool") << "module.state" << QByteArray("1");
    QTest::newRow("string for a bool") << "module.state" << QByteArray("\"true\"");
    QTest::newRow("null for a bool") << "module.state" << QByteArray("null");
    QTest::newRow("string for a number") << "module.level" << QByteArray("\"3\"");
    QTest::newRow("fraction for an int") << "module.level" << QByteArray("1.5");
    QTest::newRow("too large for an int") << "module.level" << QByteArray("2147483648");
    QTest::newRow("huge for an int") << "module.level" << QByteArray("1e300");
    QTest::newRow("negative for a uint") << "module.count" << QByteArray("-1");
    QTest::newRow("negative for a uint64") << "module.widest" << QByteArray("-1");
    QTest::newRow("too large for a byte") << "module.byte" << QByteArray("256");
    QTest::newRow("string for a double") << "module.ratio" << QByteArray("\"0.5\"");
    QTest::newRow("number for a string") << "module.text" << QByteArray("5");
    QTest::newRow("null for a string") << "module.text" << QByteArray("null");
    QTest::newRow("unknown name") << "module.mode" << QByteArray("\"Sideways\"");
    QTest::newRow("fraction for an enumeration") << "module.mode" << QByteArray("0.5");
    QTest::newRow("too large for a small one") << "module.small" << QByteArray("256");
    QTest::newRow("unknown flag") << "module.options" << QByteArray("\"A|X\"");
    QTest::newRow("size without height") << "module.size" << QByteArray(R"({"width":1})");
    QTest::newRow("size with more") << "module.size" << QByteArray(R"({"width":1,"height":2,"depth":3})");
    QTest::newRow("size of fractions") << "module.size" << QByteArray(R"({"width":1.5,"height":2})");
    QTest::newRow("size of strings") << "module.size" << QByteArray(R"({"width":"1","height":"2"})");
    QTest::newRow("size as a list") << "module.size" << QByteArray("[1,2]");
    QTest::newRow("rect beyond int") << "module.rect"
                                     << QByteArray(R"({"x":1e12,"y":0,"width":1,"height":1})");
    QTest::newRow("no colour") << "module.color" << QByteArray("\"bluish\"");
    QTest::newRow("colour as a number") << "module.color" << QByteArray("255");
    QTest::newRow("number for an address") << "module.url" << QByteArray("7");
    QTest::newRow("broken address") << "module.url" << QByteArray("\"http://[\"");
    QTest::newRow("no time") << "module.time" << QByteArray("\"25:00\"");
    QTest::newRow("number for a time") << "module.time" << QByteArray("700");
    QTest::newRow("no date") << "module.dateTime" << QByteArray("\"2024-13-01T00:00:00\"");
    QTest::newRow("string for a list") << "module.names" << QByteArray("\"a\"");
    QTest::newRow("wrong entry") << "module.names" << QByteArray(R"(["a",1])");
    QTest::newRow("wrong number") << "module.numbers" << QByteArray(R"([1,1.5])");
    QTest::newRow("list for a map") << "module.map" << QByteArray("[]");
    QTest::newRow("list for json") << "module.json" << QByteArray("[]");
    QTest::newRow("unknown member") << "module.gadget" << QByteArray(R"({"width":1})");
    QTest::newRow("wrong member") << "module.gadget" << QByteArray(R"({"depth":"1"})");
    QTest::newRow("unknown colour mode") << "colorMode" << QByteArray("\"Sepia\"");
    QTest::newRow("number for a colour mode") << "colorMode" << QByteArray("2");
    QTest::newRow("unknown object") << "module.active" << QByteArray("\"id-9\"");
    QTest::newRow("object of another class") << "module.active" << QByteArray("\"module\"");
    QTest::newRow("number for an object") << "module.active" << QByteArray("1");
    QTest::newRow("unknown audio device") << "module.audio" << QByteArray(R"({"id":"none"})");
}

void TestControlValues::aValueThatDoesNotFitIsRefusedAndChangesNothing()
{
    QFETCH(QString, path);
    QFETCH(QByteArray, json);
    const ObjectAccess access(&m_model, nullptr);
    const QJsonValue before = access.get(path);
    QCOMPARE(codeOf([&] { access.set(path, parse(json)); }), int(WrongValue));
    QCOMPARE(access.get(path), before);
}

void TestControlValues::invalidValuesReadAsNull_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("invalid colour") << QVariant::fromValue(QColor());
    QTest::newRow("invalid time") << QVariant(QTime());
    QTest::newRow("invalid date and time") << QVariant(QDateTime());
    QTest::newRow("no audio device") << QVariant::fromValue(QAudioDevice());
    QTest::newRow("null object") << QVariant::fromValue<QObject*>(nullptr);
    QTest::newRow("not a number") << QVariant(qQNaN());
    QTest::newRow("infinity") << QVariant(qInf());
}

void TestControlValues::invalidValuesReadAsNull()
{
    QFETCH(QVariant, value);
    QVERIFY(toJson(value).isNull());
}

void TestControlValues::everyNumberOfAnEnumerationIsTaken()
{
    const ObjectAccess access(&m_model, nullptr);
    access.set(u"module.mode"_s, 99);
    QCOMPARE(int(m_model.module()->mode), 99);
    access.set(u"module.mode"_s, -3);
    QCOMPARE(access.get(u"module.mode"_s), QJsonValue(-3));
    access.set(u"module.small"_s, 200);
    QCOMPARE(access.get(u"module.small"_s), QJsonValue(200));
    access.call(u"module.setMode"_s, {u"On"_s});
    QCOMPARE(m_model.module()->mode, Module::On);
    access.call(u"module.setMode"_s, {1234});
    QCOMPARE(int(m_model.module()->mode), 1234);
}

void TestControlValues::aTimeWithoutZoneIsLocal()
{
    const ObjectAccess access(&m_model, nullptr);
    access.set(u"module.dateTime"_s, u"2024-03-04T07:30:15"_s);
    QCOMPARE(m_model.module()->dateTime, QDateTime(QDate(2024, 3, 4), QTime(7, 30, 15)));
    access.set(u"module.dateTime"_s, u"2024-03-04T07:30:15Z"_s);
    QCOMPARE(m_model.module()->dateTime, QDateTime(QDate(2024, 3, 4), QTime(7, 30, 15), Qt::UTC));
    const QString read = access.get(u"module.dateTime"_s).toString();
    QCOMPARE(QDateTime::fromString(read, Qt::ISODateWithMs), m_model.module()->dateTime);
}

void TestControlValues::objectsAreReadWithTheirProperties()
{
    m_model.module()->active = m_model.module()->flows[1];
    const QJsonObject read = ObjectAccess(&m_model, nullptr).get(u"module.active"_s).toObject();
    QCOMPARE(read, (QJsonObject{{u"id"_s, u"id-2"_s}, {u"name"_s, u"Play"_s}}));
    const QJsonArray flows = ObjectAccess(&m_model, nullptr).get(u"module.flows"_s).toArray();
    QCOMPARE(flows.size(), 2);
    QCOMPARE(flows[0].toObject().value("name"_L1), QJsonValue(u"Work"_s));
    QCOMPARE(ObjectAccess(&m_model, nullptr).get(u"colorModeList"_s),
             (QJsonArray{u"Standard"_s, u"Cinema"_s}));
}

void TestControlValues::objectsThatPointAtEachOtherEnd()
{
    const QJsonObject read = ObjectAccess(&m_model, nullptr).get(u"module"_s).toObject();
    QVERIFY(read.contains("self"_L1));
    QVERIFY(read.value("self"_L1).isNull());
    QVERIFY(!read.contains("objectName"_L1));
}

void TestControlValues::objectsAreGivenByIdOrPath_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("name");
    QTest::newRow("id") << "id-2"
                        << "Play";
    QTest::newRow("path") << "module.flows[0]"
                          << "Work";
}

void TestControlValues::objectsAreGivenByIdOrPath()
{
    QFETCH(QString, given);
    QFETCH(QString, name);
    const ObjectAccess access(&m_model, nullptr);
    access.set(u"module.active"_s, given);
    QCOMPARE(m_model.module()->active->m_name, name);
    QCOMPARE(access.call(u"module.nameOf"_s, {given}), QJsonValue(name));
    QCOMPARE(access.call(u"module.nameOf"_s, {QJsonValue()}), QJsonValue(u"none"_s));
    // The empty flow stands for none where a property holds it, and null does where none does.
    m_model.module()->active = m_model.empty;
    access.set(u"module.active"_s, u""_s);
    QCOMPARE(m_model.module()->active, m_model.empty);
    m_model.module()->active = m_model.module()->flows[0];
    access.set(u"module.active"_s, u""_s);
    QCOMPARE(m_model.module()->active, nullptr);
}

void TestControlValues::colourModesAreGivenByName()
{
    const ObjectAccess access(&m_model, nullptr);
    QCOMPARE(access.call(u"module.codeOf"_s, {u"Cinema"_s}), QJsonValue(2));
    QCOMPARE(access.call(u"module.codeOf"_s, {QJsonValue()}), QJsonValue(-1));
    QCOMPARE(codeOf([&] { access.call(u"module.codeOf"_s, {u"Sepia"_s}); }), int(WrongValue));
}

void TestControlValues::audioDevicesAreGivenById()
{
    QStringList asked;
    ValueReader::setAudioLookup([&asked](const QString& id) {
        asked.append(id);
        return QAudioDevice();
    });
    const ObjectAccess access(&m_model, nullptr);
    QCOMPARE(codeOf([&] {
                 access.set(u"module.audio"_s, QJsonObject{{u"id"_s, u"a"_s}, {u"name"_s, u"A"_s}});
             }),
             int(WrongValue));
    QCOMPARE(codeOf([&] { access.set(u"module.audio"_s, u"b"_s); }), int(WrongValue));
    QCOMPARE(asked, (QStringList{u"a"_s, u"b"_s}));
    access.set(u"module.audio"_s, QJsonValue());
    QVERIFY(m_model.module()->audio.isNull());
    ValueReader::setAudioLookup({});
}

void TestControlValues::propertiesOfAnActionArePlain()
{
    const ObjectAccess access(&m_model, nullptr);
    const QVariantMap read = access.readProperties(
        m_model.module(), {{u"mode"_s, u"Auto"_s}, {u"state"_s, true}, {u"names"_s, QJsonArray{u"a"_s}}});
    QCOMPARE(read.value(u"mode"_s), QVariant(7));
    QCOMPARE(read.value(u"mode"_s).typeId(), int(QMetaType::Int));
    QCOMPARE(read.value(u"state"_s), QVariant(true));
    QCOMPARE(read.value(u"names"_s).toStringList(), QStringList{u"a"_s});
    QCOMPARE(codeOf([&] { access.readProperties(m_model.module(), {{u"nope"_s, 1}}); }), int(NoSuchPath));
    QCOMPARE(codeOf([&] { access.readProperties(m_model.module(), {{u"fixed"_s, 1}}); }), int(NotWritable));
    QCOMPARE(codeOf([&] { access.readProperties(m_model.module(), {{u"state"_s, 1}}); }), int(WrongValue));
}

QTEST_GUILESS_MAIN(TestControlValues)
#include "tst_control_values.moc"

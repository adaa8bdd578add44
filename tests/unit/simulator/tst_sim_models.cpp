// SPDX-License-Identifier: Apache-2.0
#include "ModelCatalog.h"
#include "wirehost.h"

#include <QTemporaryDir>

namespace {

const char* const Series =
    "04 05 08 10 12 14 16 18 19 1A 59 5A 5B 5C 5D 5E 5F 60 62 72 87 8A 8D 90 9B 9C 9D 9E 9F A0 B6 "
    "C9 CC D0 D1 D6 DC DF E3 E5 FA FD";
const char* const MenuTable = "13 67 68 69 6A 71 86 94 99 BE EE EF F0 F6 F8";
const char* const WindowTable = "7D 7E 7F 80 A5 F4 F5";

QList<int> codesOf(const QByteArrayList& parts)
{
    QList<int> codes;
    for (const QByteArray& part : parts)
        for (const QByteArray& text : part.split(' '))
            if (!text.isEmpty())
                codes.append(text.toInt(nullptr, 16));
    std::sort(codes.begin(), codes.end());
    return codes;
}

} // namespace

class TestSimModels : public QObject
{
    Q_OBJECT

private slots:
    void allModelFilesAreGood();
    void aModelHasItsColourModesInOrder_data();
    void aModelHasItsColourModesInOrder();
    void aModelAnswersOnItsCodesAndNoOthers_data();
    void aModelAnswersOnItsCodesAndNoOthers();
    void aModelHasItsInputs_data();
    void aModelHasItsInputs();
    void everyFactoryValueCanBeWrittenBack_data();
    void everyFactoryValueCanBeWrittenBack();
    void anUnknownNameGivesAMonitorWithTheBasics();
    void aWrongModelFileIsToldByNameAndReason_data();
    void aWrongModelFileIsToldByNameAndReason();
    void anEmptyFolderIsTold();
};

void TestSimModels::allModelFilesAreGood()
{
    const auto& catalog = sim::ModelCatalog::instance();
    QCOMPARE(catalog.errors(), QStringList());
    QCOMPARE(catalog.names(),
             QStringList({QStringLiteral("TK10"), QStringLiteral("TK20"), QStringLiteral("TK30"),
                          QStringLiteral("TK30X"), QStringLiteral("TK30Z"), QStringLiteral("TK40"),
                          QStringLiteral("TK40X"), QStringLiteral("builtin")}));
    QVERIFY(catalog.contains(QStringLiteral("TK40X")));
    QVERIFY(!catalog.contains(QStringLiteral("generic")));
    QVERIFY(!catalog.contains(QStringLiteral("series")));
}

void TestSimModels::aModelHasItsColourModesInOrder_data()
{
    const QString ten =
        QStringLiteral("Coding - Light Theme=31,Coding - Dark Theme=30,M-book=0F,Cinema=32,ePaper=1F,"
                       "User=12,HDR=23");
    const QString thirty =
        QStringLiteral("Coding - Light Theme=31,Coding - Dark Theme=30,M-book=0F,Cinema=32,ePaper=1F,"
                       "sRGB=0A,User=12,HDR=23");
    const QString forty =
        QStringLiteral("Coding - Light Theme=31,Coding - Dark Theme=30,M-book=0F,Cinema=32,Game=28,"
                       "ePaper=1F,sRGB=0A,User=12,HDR=23");
    const QString paper =
        QStringLiteral("Coding - Light Theme=31,Coding - Dark Theme=30,Coding - Paper Color=3A,"
                       "M-book=0F,Cinema=32,Game=28,ePaper=1F,sRGB=0A,User=12,HDR=23");
    QTest::addColumn<QString>("modes");
    QTest::newRow("TK10") << ten;
    QTest::newRow("TK20") << paper;
    QTest::newRow("TK30") << thirty;
    QTest::newRow("TK30X") << thirty;
    QTest::newRow("TK30Z") << paper;
    QTest::newRow("TK40") << forty;
    QTest::newRow("TK40X") << forty;
}

void TestSimModels::aModelHasItsColourModesInOrder()
{
    QFETCH(QString, modes);
    const auto model = sim::ModelCatalog::instance().lookup(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(model->modeCode, 0xDC);
    QStringList found;
    for (const sim::ColorMode& mode : model->modes)
        found.append(mode.name + QStringLiteral("=%1").arg(mode.code, 2, 16, QLatin1Char('0')).toUpper());
    QCOMPARE(found.join(QLatin1Char(',')), modes);

    sim::Monitor monitor(identity(QTest::currentDataTag()));
    WireHost host(monitor);
    for (const sim::ColorMode& mode : model->modes) {
        QCOMPARE(host.set(0xDC, mode.code), ddc::BusStatus::Ok);
        QCOMPARE(host.get(0xDC), mode.code);
    }
}

void TestSimModels::aModelAnswersOnItsCodesAndNoOthers_data()
{
    QTest::addColumn<QByteArrayList>("codes");
    const QByteArrayList thirty{Series, "E2 E6 E7 E9 D7 D9"};
    const QByteArrayList forty{Series, WindowTable, "AA E2 E6 E7 E9 D7 D9"};
    QTest::newRow("TK10") << QByteArrayList{Series, "AA E2 E6 E7 E9"};
    QTest::newRow("TK20") << QByteArrayList{Series, MenuTable, "81 F3"};
    QTest::newRow("TK30") << thirty;
    QTest::newRow("TK30X") << thirty;
    QTest::newRow("TK30Z") << QByteArrayList{Series, MenuTable, WindowTable,
                                             "6F 81 AA D7 D9 E4 E6 E7 E8 E9 F3"};
    QTest::newRow("TK40") << forty;
    QTest::newRow("TK40X") << forty;
    QTest::newRow("Unknown") << QByteArrayList{"04 10 12 60 62 8D DF"};
}

void TestSimModels::aModelAnswersOnItsCodesAndNoOthers()
{
    QFETCH(QByteArrayList, codes);
    sim::Monitor monitor(identity(QTest::currentDataTag()));
    WireHost host(monitor);
    QList<int> answered;
    for (int code = 0; code < 256; ++code) {
        const int value = host.get(code);
        QVERIFY2(value != -2, qPrintable(QString::number(code, 16)));
        if (value >= 0)
            answered.append(code);
    }
    QCOMPARE(answered, codesOf(codes));
}

void TestSimModels::aModelHasItsInputs_data()
{
    QTest::addColumn<QByteArray>("inputs");
    QTest::newRow("TK10") << QByteArray("60(11 0F 13)");
    QTest::newRow("TK20") << QByteArray("60(0F 11 13)");
    QTest::newRow("TK30") << QByteArray("60(11 0F 13)");
    QTest::newRow("TK30X") << QByteArray("60(11 0F 13)");
    QTest::newRow("TK30Z") << QByteArray("60(0F 11 13)");
    QTest::newRow("TK40") << QByteArray("60(13 11 12 0F)");
    QTest::newRow("TK40X") << QByteArray("60(13 11 12 0F)");
}

void TestSimModels::aModelHasItsInputs()
{
    QFETCH(QByteArray, inputs);
    QVERIFY(sim::Monitor(identity(QTest::currentDataTag())).capabilities().contains(inputs));
}

void TestSimModels::everyFactoryValueCanBeWrittenBack_data()
{
    QTest::addColumn<int>("unused");
    for (const QString& name : sim::ModelCatalog::instance().names())
        QTest::newRow(qPrintable(name)) << 0;
}

// What the monitor itself reports must be a value that it takes, in every colour mode.
void TestSimModels::everyFactoryValueCanBeWrittenBack()
{
    const auto model = sim::ModelCatalog::instance().lookup(QString::fromLatin1(QTest::currentDataTag()));
    sim::Monitor monitor(identity(QTest::currentDataTag()));
    WireHost host(monitor);
    for (const sim::ColorMode& mode : model->modes) {
        QVERIFY(monitor.setByMenu(0xDC, mode.code));
        for (auto it = model->codes.cbegin(); it != model->codes.cend(); ++it) {
            using Type = sim::CodeDescription::Type;
            if (it->type == Type::ReadOnly || it->type == Type::Command || !it->instances.isEmpty())
                continue;
            const int code = it.key();
            const int factory = host.get(code);
            const bool gain = code == 0x16 || code == 0x18 || code == 0x1A;
            if (gain || code == 0xDC || mode.fixed.contains(code))
                continue;
            QVERIFY(monitor.setByMenu(code, 0xFFFF));
            QCOMPARE(host.set(code, factory), ddc::BusStatus::Ok);
            QVERIFY2(host.get(code) == factory, qPrintable(QStringLiteral("0x%1").arg(code, 0, 16)));
        }
    }
}

void TestSimModels::anUnknownNameGivesAMonitorWithTheBasics()
{
    sim::Monitor monitor(identity("Office27@77"));
    WireHost host(monitor);
    QCOMPARE(monitor.model(), QStringLiteral("Office27"));
    QCOMPARE(monitor.serial(), QStringLiteral("77"));
    QCOMPARE(monitor.id(), QStringLiteral("Office27@77"));
    QVERIFY(!monitor.isBuiltIn());
    QVERIFY(monitor.edid().contains("Office27\n"));
    QCOMPARE(host.set(0x10, 200), ddc::BusStatus::Ok);
    QCOMPARE(host.get(0x10), 100);
    QCOMPARE(host.get(0xDC), -1);
    QCOMPARE(host.get(0x8D), 2);
    QCOMPARE(host.get(0x62), 30);
}

void TestSimModels::aWrongModelFileIsToldByNameAndReason_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto code = [](const char* body) {
        return QByteArray(R"({"model":"X","codes":{"0x10":{)") + body + "}}}";
    };
    QTest::newRow("not JSON") << QByteArray("{") << "x.json: not a JSON object";
    QTest::newRow("no name") << QByteArray("{}") << "x.json: \"model\" is missing";
    QTest::newRow("unknown parent") << QByteArray(R"({"model":"X","extends":["y"]})")
                                    << "extends \"y\", which cannot be read";
    QTest::newRow("itself as parent") << QByteArray(R"({"model":"X","extends":["x"]})") << "extends itself";
    QTest::newRow("code") << QByteArray(R"({"model":"X","codes":{"0x100":{}}})")
                          << "\"0x100\" is not a VCP code";
    QTest::newRow("type") << code(R"("type":"odd")") << "code 0x10: unknown type \"odd\"";
    QTest::newRow("no maximum") << code(R"("type":"continuous")")
                                << "code 0x10: a continuous code needs a \"maximum\"";
    QTest::newRow("factory above") << code(R"("type":"continuous","maximum":5,"factory":6)")
                                   << "above the maximum";
    QTest::newRow("factory text") << code(R"("type":"continuous","maximum":5,"factory":"x")")
                                  << "\"factory\" is not a number";
    QTest::newRow("no values") << code(R"("type":"list")") << "a list needs \"values\"";
    QTest::newRow("factory not listed") << code(R"("type":"list","values":[1])") << "not in the list";
    QTest::newRow("range backwards") << code(R"("type":"list","values":["5..1"])")
                                     << "something that is no value";
    QTest::newRow("no fields") << code(R"("type":"packed")") << "needs \"fields\"";
    QTest::newRow("mode code") << QByteArray(R"({"model":"X","modeCode":"0xDC"})")
                               << "\"modeCode\" without \"modes\"";
    QTest::newRow("mode without code")
        << QByteArray(R"({"model":"X","modes":[{"name":"A"}]})") << "no valid \"code\"";
    QTest::newRow("mode twice")
        << QByteArray(R"({"model":"X","modes":[{"name":"A","code":1},{"name":"B","code":1}]})")
        << "two colour modes have the code 0x01";
    QTest::newRow("busy") << QByteArray(R"({"model":"X","busy":{"0x10":50}})")
                          << "\"busy\" has a wrong entry \"0x10\"";
    QTest::newRow("behaviour") << QByteArray(R"({"model":"X","behaviours":[{"name":"dance"}]})")
                               << "unknown behaviour \"dance\"";
    QTest::newRow("behaviour's code")
        << QByteArray(R"({"model":"X","behaviours":[{"name":"bands","code":"0x99"}]})")
        << "behaviour \"bands\": \"code\" does not name a code of the model";
}

void TestSimModels::aWrongModelFileIsToldByNameAndReason()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("x.json")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
    file.close();
    const sim::ModelCatalog catalog(dir.path());
    QCOMPARE(catalog.errors().size(), 1);
    QVERIFY2(catalog.errors().first().startsWith(QLatin1String("x.json: ")),
             qPrintable(catalog.errors().first()));
    QVERIFY2(catalog.errors().first().contains(message), qPrintable(catalog.errors().first()));
    QCOMPARE(catalog.names(), QStringList());
    QVERIFY(catalog.lookup(QStringLiteral("X")));
}

void TestSimModels::anEmptyFolderIsTold()
{
    QTemporaryDir dir;
    const sim::ModelCatalog catalog(dir.path());
    QCOMPARE(catalog.errors(), QStringList{dir.path() + QStringLiteral(": no model files")});
}

QTEST_GUILESS_MAIN(TestSimModels)
#include "tst_sim_models.moc"

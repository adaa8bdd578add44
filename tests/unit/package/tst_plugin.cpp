// SPDX-License-Identifier: Apache-2.0
#include "SimulatedBed.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>
#include <QProcess>
#include <QTest>

class TestPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportsExactlyThreeSymbols();
    void metadataNamesInterfaceAndClass();
    void instanceIsTheSameEachTime();
    void supportedModelsAreSevenInOrder();
    void listsKeepTheirOrder();
    void kindIsThree();
    void nameIsThatOfTheTranslations();
    void widgetUrlsStandBelowTheModule();
    void missingWidgetFilesAreKnown();
    void resourcesStandInTheirFolders_data();
    void resourcesStandInTheirFolders();
    void qmldirNamesTheModule();
    void everySubfolderPrefersTheResources();

private:
    LuPackagesInterface* package() const { return TestBed::instance().package(); }
};

void TestPlugin::exportsExactlyThreeSymbols()
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                    QStringLiteral("-C"), TestBed::packageFile()});
    QVERIFY(nm.waitForFinished());
    QStringList symbols;
    const QList<QByteArray> lines = nm.readAllStandardOutput().split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray name = line.mid(line.indexOf(' ', line.indexOf(' ') + 1) + 1).trimmed();
        if (!name.isEmpty())
            symbols.append(QString::fromLatin1(name));
    }
    symbols.sort();
    QCOMPARE(symbols, (QStringList{QStringLiteral("qml_register_types_TKPackage()"),
                                   QStringLiteral("qt_plugin_instance"),
                                   QStringLiteral("qt_plugin_query_metadata_v2")}));
}

void TestPlugin::metadataNamesInterfaceAndClass()
{
    const QJsonObject metaData = QPluginLoader(TestBed::packageFile()).metaData();
    QCOMPARE(metaData.value(QLatin1String("IID")).toString(),
             QStringLiteral("com.orvane.lupackagesinterface/1.10"));
    QCOMPARE(metaData.value(QLatin1String("className")).toString(), QStringLiteral("TKPackage"));
    bool found = false;
    const QList<QStaticPlugin> plugins = QPluginLoader::staticPlugins();
    QVERIFY(package());
    for (const QStaticPlugin& plugin : QPluginLoader::staticPlugins()) {
        const QJsonObject data = plugin.metaData();
        if (data.value(QLatin1String("className")).toString() != QLatin1String("TKPackagePlugin"))
            continue;
        found = true;
        QCOMPARE(data.value(QLatin1String("IID")).toString(),
                 QStringLiteral("org.qt-project.Qt.QQmlExtensionInterface/1.0"));
        QCOMPARE(data.value(QLatin1String("uri")).toArray().at(0).toString(), QStringLiteral("TKPackage"));
    }
    QVERIFY(found);
}

void TestPlugin::instanceIsTheSameEachTime()
{
    QPluginLoader first(TestBed::packageFile());
    QPluginLoader second(TestBed::packageFile());
    QVERIFY(first.instance());
    QCOMPARE(first.instance(), second.instance());
    QCOMPARE(first.instance()->parent(), nullptr);
}

void TestPlugin::supportedModelsAreSevenInOrder()
{
    QCOMPARE(package()->supportedModels(),
             (QStringList{QStringLiteral("TK10"), QStringLiteral("TK20"), QStringLiteral("TK30"),
                          QStringLiteral("TK30X"), QStringLiteral("TK30Z"), QStringLiteral("TK40"),
                          QStringLiteral("TK40X")}));
}

void TestPlugin::listsKeepTheirOrder()
{
    QCOMPARE(package()->supportedModels(), package()->supportedModels());
    QCOMPARE(package()->widgetUrls(), package()->widgetUrls());
}

void TestPlugin::kindIsThree()
{
    QCOMPARE(package()->packageKind(), 3);
}

void TestPlugin::nameIsThatOfTheTranslations()
{
    QCOMPARE(package()->name(), QStringLiteral("TKPackage"));
    QVERIFY(package()->translator());
    QCOMPARE(package()->translator(), package()->translator());
}

void TestPlugin::widgetUrlsStandBelowTheModule()
{
    static const QStringList names{
        QStringLiteral("LuVolumeWidget"),
        QStringLiteral("LuBrightnessWidget"),
        QStringLiteral("LuBuiltInBrightnessWidget"),
        QStringLiteral("LuResolutionWidget"),
        QStringLiteral("LuDpiScalingWidget"),
        QStringLiteral("LuBackLightWidget"),
        QStringLiteral("LuNightProtectionWidget"),
        QStringLiteral("LuABPlusWidget"),
        QStringLiteral("LuABSettingWidget"),
        QStringLiteral("LuLowBlueLightWidget"),
        QStringLiteral("LuEcoPrivacyWidget"),
        QStringLiteral("LuAutoPivotWidget"),
        QStringLiteral("LuPivotWidget"),
        QStringLiteral("LuDaisyChainWidget"),
        QStringLiteral("LuPartitionWidget"),
        QStringLiteral("LuShortcutsWidget"),
        QStringLiteral("LuHDRWidget"),
        QStringLiteral("LuHiDPIWidget"),
        QStringLiteral("LuColorWeaknessWidget"),
        QStringLiteral("LuPIPPBPWidget"),
        QStringLiteral("LuDualViewPlusWidget"),
        QStringLiteral("LuFlowWidget"),
        QStringLiteral("LuAiContrastWidget"),
        QStringLiteral("LuMultiMonitorSyncWidget"),
        QStringLiteral("LuSmartKvmBasicWidget"),
        QStringLiteral("LuInputSourceWidget"),
        QStringLiteral("LuDirectSearchWidget"),
        QStringLiteral("LuFocusAssistWidget"),
    };
    QStringList expected;
    for (const QString& name : names)
        expected.append(QStringLiteral("qrc:///TKPackage/qml/TKPackage/Widgets/%1.qml").arg(name));
    QCOMPARE(QUrl::toStringList(package()->widgetUrls()), expected);
}

void TestPlugin::missingWidgetFilesAreKnown()
{
    QStringList missing;
    for (const QUrl& url : package()->widgetUrls()) {
        if (!QFile::exists(QLatin1Char(':') + url.path()))
            missing.append(QFileInfo(url.path()).baseName());
    }
    qInfo().noquote() << "Widgets without a file:" << missing.size() << missing.join(QStringLiteral(", "));
    for (const char* built : {"LuAiContrastWidget", "LuAutoPivotWidget", "LuPivotWidget"})
        QVERIFY2(!missing.contains(QLatin1String(built)), built);
}

void TestPlugin::resourcesStandInTheirFolders_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& model : package()->supportedModels()) {
        QTest::newRow(qPrintable(model)) << QStringLiteral(":/schema/model/%1.xml").arg(model);
        QTest::newRow(qPrintable(model + QStringLiteral(" features")))
            << QStringLiteral(":/schema/model/%1_ext.xml").arg(model);
    }
    for (const char* path :
         {":/schema/TK_vcpDelay.xml", ":/schema/osdSetting/TK20_osd.xml", ":/schema/osdSetting/TK30Z_osd.xml",
          ":/TKPackage/schema/TKDefaultShortcuts.xml", ":/TKPackage/schema/ZQDefaultShortcuts.xml",
          ":/TKPackage/schema/FNDefaultShortcuts.xml", ":/TKPackage/schema/YHDefaultShortcuts.xml",
          ":/TKPackage/schema/Resolutions.xml", ":/TKPackage/qml/TKPackage/qmldir",
          ":/TKPackage/images/packages/btn_aicontrast.svg",
          ":/TKPackage/images/packages/btn_aicontrast_active.svg",
          ":/TKPackage/images/packages/+dark/btn_aicontrast.svg",
          ":/lottieAnimation/intro_tk01_glow_a_ok.json", ":/lottieAnimation/intro_tk01_glow_b_loop_ok.json",
          ":/lottieAnimation/intro_tk02_night_v2_ok.json", ":/NanoShape/NanoShader.vert.qsb",
          ":/NanoShape/NanoShader.frag.qsb"})
        QTest::newRow(path) << QString::fromLatin1(path);
    for (const char* language : {"cs", "de", "en", "es", "fr", "hr", "hu", "it", "ja", "ko", "nl", "pl", "pt",
                                 "ro", "ru", "sv", "zh", "zh_TW"})
        QTest::newRow(language)
            << QStringLiteral(":/TKPackage/translations/TKPackage_%1.qm").arg(QLatin1String(language));
}

void TestPlugin::resourcesStandInTheirFolders()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
    QVERIFY(file.size() > 0);
}

void TestPlugin::qmldirNamesTheModule()
{
    QFile file(QStringLiteral(":/TKPackage/qml/TKPackage/qmldir"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QCOMPARE(lines.mid(0, 6),
             (QStringList{QStringLiteral("module TKPackage"), QStringLiteral("linktarget TKPackage_Qml"),
                          QStringLiteral("optional plugin TKPackage_Qml"),
                          QStringLiteral("classname TKPackagePlugin"),
                          QStringLiteral("typeinfo TKPackage_Qml.qmltypes"),
                          QStringLiteral("prefer :/TKPackage/qml/TKPackage/")}));
    for (const QString& line : lines.mid(6)) {
        const QStringList parts = line.split(QLatin1Char(' '));
        QCOMPARE(parts.size(), 3);
        QCOMPARE(parts.at(1), QStringLiteral("1.0"));
        QVERIFY2(QFile::exists(QStringLiteral(":/TKPackage/qml/TKPackage/") + parts.at(2)), qPrintable(line));
    }
}

void TestPlugin::everySubfolderPrefersTheResources()
{
    for (const char* folder : {"Widgets", "Popups", "Settings/Advanced", "Helpers"}) {
        QFile file(QStringLiteral(":/TKPackage/qml/TKPackage/%1/qmldir").arg(QLatin1String(folder)));
        QVERIFY2(file.open(QIODevice::ReadOnly), folder);
        QCOMPARE(file.readAll().trimmed(), QByteArray("prefer :/TKPackage/qml/TKPackage/"));
    }
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"

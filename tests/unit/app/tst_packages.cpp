// SPDX-License-Identifier: Apache-2.0
#include <app/PackageLoader.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestPackages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packageIsLoaded();
    void brokenAndForeignOnesAreRefusedAndTheRestRuns();
    void secondOneOfTheSameNameIsRefused();
    void emptyFolderIsTold();

private:
    static bool refusedBecause(const PackageLoader& loader, const char* file, const char* why);
};

bool TestPackages::refusedBecause(const PackageLoader& loader, const char* file, const char* why)
{
    const QRegularExpression line(QStringLiteral("%1.*: .*%2").arg(QLatin1String(file), QLatin1String(why)));
    return loader.refusals().filter(line).size() == 1;
}

void TestPackages::packageIsLoaded()
{
    PackageLoader loader;
    loader.load({QStringLiteral(PACKAGE_FOLDER)});
    QCOMPARE(loader.packages().size(), 1);
    QCOMPARE(loader.packages().first()->name(), QStringLiteral("TKPackage"));
    QCOMPARE(loader.version(), QStringLiteral("1.11.0.0"));
    QCOMPARE(loader.refusals(), QStringList());
}

void TestPackages::brokenAndForeignOnesAreRefusedAndTheRestRuns()
{
    QTemporaryDir folder;
    const auto write = [&folder](const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QFile package(QStringLiteral(PACKAGE_FOLDER "/libTKPackage-1.11.0.0.so"));
    QVERIFY(package.open(QIODevice::ReadOnly));
    QVERIFY(write("libcut.so", package.read(package.size() / 3)));
    QVERIFY(write("libtext.so", "this is no library"));
    QVERIFY(write("libempty.so", {}));
    // A library that is whole but no plug-in.
    QVERIFY(QFile::copy(QStringLiteral(PLAIN_LIBRARY), folder.filePath(QStringLiteral("libplain.so"))));
    QVERIFY(write("notes.txt", "no library by its name"));
    PackageLoader loader;
    loader.load({folder.path(), QStringLiteral(PLUGIN_FOLDER), QStringLiteral(PACKAGE_FOLDER)});
    QCOMPARE(loader.packages().size(), 1);
    QCOMPARE(loader.refusals().size(), 6);
    QVERIFY(refusedBecause(loader, "libcut.so", "it is damaged, or no library"));
    QVERIFY(refusedBecause(loader, "libtext.so", "it is damaged, or no library"));
    QVERIFY(refusedBecause(loader, "libempty.so", "it is damaged, or no library"));
    QVERIFY(refusedBecause(loader, "libplain.so", "no plug-in of this Qt version"));
    QVERIFY(refusedBecause(loader, "foreign", "made for \"org.example.foreign/1.0\""));
    QVERIFY(refusedBecause(loader, "hollow", "does not offer the interface"));
}

void TestPackages::secondOneOfTheSameNameIsRefused()
{
    QTemporaryDir folder;
    QVERIFY(QFile::copy(QStringLiteral(PACKAGE_FOLDER "/libTKPackage-1.11.0.0.so"),
                        folder.filePath(QStringLiteral("libTKPackage-1.10.0.0.so"))));
    PackageLoader loader;
    loader.load({QStringLiteral(PACKAGE_FOLDER), folder.path()});
    QCOMPARE(loader.packages().size(), 1);
    QVERIFY(refusedBecause(loader, "libTKPackage-1.10.0.0.so", "loaded already"));
}

void TestPackages::emptyFolderIsTold()
{
    QTemporaryDir folder;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no package found")));
    PackageLoader loader;
    loader.load({folder.path()});
    QVERIFY(loader.packages().isEmpty());
    QCOMPARE(loader.version(), QString());
}

QTEST_MAIN(TestPackages)
#include "tst_packages.moc"

// SPDX-License-Identifier: Apache-2.0
#include "PropertyValues.h"
#include "SimulatedBed.h"

#include <LuShared/LuUtils.h>

#include <QSignalSpy>
#include <QTest>

namespace {

/// A model that has the module's feature.
QString monitorFor(const QString& module)
{
    return module == QLatin1String("LuABSetting") ? QStringLiteral("TK40X") : QStringLiteral("TK30Z");
}

/// Brings the module into the state in which the property may be changed.
void prepare(SimulatedBed& bed, const QString& module, const QMetaProperty& property)
{
    if (module == QLatin1String("LuABSetting") &&
        QLatin1String(property.name()) == QLatin1String("lightMeterState")) {
        bed.set("LuABSetting", "currentAB", true);
        QVERIFY(bed.idle());
    }
}

/// Properties that are the state of the panel, not of the feature.
bool isTransient(const QMetaProperty& property)
{
    // The choice of other keys ends with the page.
    static const QStringList names{QStringLiteral("syncEnable"), QStringLiteral("modifyShortcuts"),
                                   QStringLiteral("repeatShortcuts")};
    return names.contains(QLatin1String(property.name()));
}

/// What a restart is to bring back, by module and property; what else is writable is told in the module's own
/// tests.
bool survivesRestart(const QString& module, const QMetaProperty& property)
{
    // The panel decides these two anew; the others belong to no colour mode of the series.
    static const QStringList brightnessExceptions{
        QStringLiteral("hardwareBrightnessEnable"),
        QStringLiteral("backlightControlEnabled"),
        QStringLiteral("displayGamut"),
        QStringLiteral("displayUniformity"),
        QStringLiteral("displayHue"),
        QStringLiteral("displayHueR"),
        QStringLiteral("displayHueY"),
        QStringLiteral("displayHueG"),
        QStringLiteral("displayHueC"),
        QStringLiteral("displayHueB"),
        QStringLiteral("displayHueM"),
        QStringLiteral("displaySaturationR"),
        QStringLiteral("displaySaturationY"),
        QStringLiteral("displaySaturationG"),
        QStringLiteral("displaySaturationC"),
        QStringLiteral("displaySaturationB"),
        QStringLiteral("displaySaturationM"),
    };
    if (module == QLatin1String("LuBrightness") &&
        brightnessExceptions.contains(QLatin1String(property.name())))
        return false;
    // Without a divided picture the pointer feature goes off again.
    if (module == QLatin1String("LuSmartKvmBasic") &&
        QLatin1String(property.name()) == QLatin1String("basicState"))
        return false;
    // At launch the pointer feature, which is off, brings the hub back to its automatic.
    if (module == QLatin1String("LuKvmSwitch") &&
        QLatin1String(property.name()) == QLatin1String("kvmSwitch"))
        return false;
    // What dims without a user is the monitor's own.
    if (module == QLatin1String("LuEcoPrivacy") && QLatin1String(property.name()) == QLatin1String("mode"))
        return false;
    // The monitor holds the state of local contrast: see its own test.
    return !isTransient(property) && module != QLatin1String("LuAiContrast");
}

} // namespace

/// Rules that hold for every property of every module.
class TestProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isReadableAndConstantOrNotifying_data() { rows(); }
    void isReadableAndConstantOrNotifying();
    void notifiesOncePerChangeAndNotWithoutOne_data() { rows(); }
    void notifiesOncePerChangeAndNotWithoutOne();
    void survivesARestart_data() { rows(); }
    void survivesARestart();

private:
    static void rows();
};

void TestProperties::rows()
{
    QTest::addColumn<QString>("module");
    QTest::addColumn<int>("index");
    SimulatedBed bed;
    const QList<LuModelModuleInterface*> modules = bed.launch().modules();
    for (LuModelModuleInterface* module : modules) {
        const QMetaObject* meta = module->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const QString name = LuUtils::className(module);
            QTest::newRow(qPrintable(name + QLatin1Char('.') + QLatin1String(meta->property(i).name())))
                << name << i;
        }
    }
    waitForRest();
}

void TestProperties::isReadableAndConstantOrNotifying()
{
    QFETCH(QString, module);
    QFETCH(int, index);
    SimulatedBed bed;
    bed.launch();
    LuModelModuleInterface* object = bed.module(qPrintable(module));
    const QMetaProperty property = object->metaObject()->property(index);
    QVERIFY(property.isReadable());
    QVERIFY(property.read(object).isValid());
    QVERIFY(property.isConstant() != property.hasNotifySignal());
    QVERIFY(!(property.isConstant() && property.isWritable()));
    QVERIFY(bed.idle());
}

void TestProperties::notifiesOncePerChangeAndNotWithoutOne()
{
    QFETCH(QString, module);
    QFETCH(int, index);
    SimulatedBed bed(monitorFor(module));
    bed.launch();
    QVERIFY(bed.idle());
    LuModelModuleInterface* object = bed.module(qPrintable(module));
    const QMetaProperty property = object->metaObject()->property(index);
    prepare(bed, module, property);
    if (!property.isWritable()) {
        QVERIFY(!property.write(object, property.read(object)));
        return;
    }
    const QVariant before = property.read(object);
    const QVariant other = anotherValue(property, before);
    QVERIFY2(other.isValid(), "teach this test the type of the property");
    QSignalSpy spy(object, property.notifySignal());
    QVERIFY(property.write(object, before));
    QVERIFY(bed.idle());
    QCOMPARE(spy.count(), 0);
    QVERIFY(property.write(object, other));
    QVERIFY(bed.idle());
    QCOMPARE(valueOf(property, object), other);
    QCOMPARE(spy.count(), 1);
    QVERIFY(property.write(object, other));
    QVERIFY(bed.idle());
    QCOMPARE(spy.count(), 1);
}

void TestProperties::survivesARestart()
{
    QFETCH(QString, module);
    QFETCH(int, index);
    SimulatedBed bed(monitorFor(module));
    bed.launch();
    QVERIFY(bed.idle());
    LuModelModuleInterface* object = bed.module(qPrintable(module));
    const QMetaProperty property = object->metaObject()->property(index);
    prepare(bed, module, property);
    const bool kept = property.isWritable() && survivesRestart(module, property);
    const QVariant before = valueOf(property, object);
    const QVariant value = kept ? anotherValue(property, before) : before;
    if (kept)
        property.write(object, value);
    QVERIFY(bed.idle());
    bed.relaunch();
    LuModelModuleInterface* again = bed.module(qPrintable(module));
    // An object is another one after the restart.
    if (!(property.metaType().flags() & QMetaType::PointerToQObject))
        QCOMPARE(valueOf(property, again), value);
    else
        QVERIFY(property.read(again).value<QObject*>());
    QVERIFY(bed.idle());
}

QTEST_MAIN(TestProperties)
#include "tst_properties.moc"

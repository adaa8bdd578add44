// SPDX-License-Identifier: Apache-2.0
#include "PropertyValues.h"
#include "SimulatedBed.h"

#include <LuShared/LuKvm.h>
#include <LuShared/LuUtils.h>
#include <lushared/LuModelHost.h>

#include <QRandomGenerator>
#include <QTest>

namespace {

/// A writable property of a module.
struct Knob
{
    LuModelModuleInterface* module;
    QMetaProperty property;

    QString name() const
    {
        return LuUtils::className(module) + QLatin1Char('.') + QLatin1String(property.name());
    }
};

/// What a person can turn while the feature is off or its layout is another, but whose panel then does not
/// offer it: the monitor answers with more than was asked for.
bool needsAnotherFirst(const QString& name)
{
    static const QStringList names{
        QStringLiteral("LuEcoPrivacy.activeTime"),
        QStringLiteral("LuABPlus.mode"),
        QStringLiteral("LuDualView.currentDualMode"),
        QStringLiteral("LuAutoPivot.currentPivot"),
        QStringLiteral("LuInputSource.currentMainInputSource"),
    };
    return names.contains(name) ||
           (name.startsWith(QLatin1String("LuPipPbp.")) && name.endsWith(QLatin1String("Source")));
}

/// What the monitor tells only while the feature is on, or changes by itself.
bool isMovingByItself(const QString& name)
{
    static const QStringList names{
        QStringLiteral("LuABPlus.sensitivity"),
        QStringLiteral("LuABPlus.lightMeterState"),
        QStringLiteral("LuABSetting.sensitivity"),
        QStringLiteral("LuABSetting.lightMeterState"),
        QStringLiteral("LuNightProtection.level"),
        // Its sensor dims it.
        QStringLiteral("LuBrightness.displayBrightness"),
    };
    return names.contains(name);
}

QList<Knob> knobsOf(SimulatedBed& bed)
{
    QList<Knob> knobs;
    for (LuModelModuleInterface* module : bed.model().modules()) {
        const QMetaObject* meta = module->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const Knob knob = {module, meta->property(i)};
            if (knob.property.isWritable() && knob.property.name() != QByteArray("syncEnable") &&
                !needsAnotherFirst(knob.name()))
                knobs.append(knob);
        }
    }
    return knobs;
}

QStringList stateOf(SimulatedBed& bed)
{
    QStringList state;
    for (LuModelModuleInterface* module : bed.model().modules()) {
        const QMetaObject* meta = module->metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const Knob knob = {module, meta->property(i)};
            const QVariant value = valueOf(knob.property, module);
            if (value.canConvert<QString>() && !isMovingByItself(knob.name()))
                state.append(knob.name() + QLatin1String(" = ") + value.toString());
        }
    }
    return state;
}

} // namespace

/// Whatever is asked for, in any order and while other jobs run: at rest a module tells what its monitor
/// holds.
class TestAgreement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReadBackFindsNothingNew_data();
    void aReadBackFindsNothingNew();
};

void TestAgreement::aReadBackFindsNothingNew_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<int>("seed");
    const int seeds = qEnvironmentVariableIntValue("SEEDS");
    for (const char* model : {"TK30Z", "TK40X"}) {
        for (int seed = 1; seed <= qMax(5, seeds); ++seed)
            QTest::addRow("%s %d", model, seed) << QString::fromLatin1(model) << seed;
    }
}

void TestAgreement::aReadBackFindsNothingNew()
{
    QFETCH(QString, model);
    QFETCH(int, seed);
    SimulatedBed bed(model);
    bed.launch();
    QVERIFY(bed.idle());
    const QList<Knob> knobs = knobsOf(bed);
    QRandomGenerator random(seed);
    QStringList done;
    for (int step = 0; step < 40; ++step) {
        const Knob& knob = knobs.at(random.bounded(int(knobs.size())));
        const QVariant value = anotherValue(knob.property, knob.property.read(knob.module));
        done.append(knob.name() + QLatin1Char(' ') + value.toString());
        knob.property.write(knob.module, value);
        switch (random.bounded(8)) {
        case 0:
            QMetaObject::invokeMethod(bed.module("LuPipPbp"), "swapPipPbp");
            done.append(QStringLiteral("swap"));
            break;
        case 1:
            Q_EMIT LuKvm::instance()->kvmChanged();
            done.append(QStringLiteral("cross"));
            break;
        case 2:
            LuModelHost::sync(&bed.model(), nullptr, [] {});
            done.append(QStringLiteral("sync"));
            break;
        case 3:
            QCoreApplication::processEvents();
            break;
        case 4:
            QVERIFY(bed.idle());
            done.append(QStringLiteral("idle"));
            break;
        default:
            break;
        }
    }
    QVERIFY(bed.idle());
    const QStringList before = stateOf(bed);
    QVERIFY(bed.sync());
    const QStringList after = stateOf(bed);
    QStringList differences;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before.at(i) != after.at(i))
            differences.append(before.at(i) + QLatin1String(" -> ") +
                               after.at(i).section(QLatin1String(" = "), 1));
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(QLatin1Char('\n')) +
                                               QLatin1String("\nafter ") + done.join(QLatin1String(", "))));
}

QTEST_MAIN(TestAgreement)
#include "tst_agreement.moc"

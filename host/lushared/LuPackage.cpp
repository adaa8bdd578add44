// SPDX-License-Identifier: Apache-2.0
#include <LuShared/LuPackage.h>

#include <QLocale>
#include <QTranslator>

struct LuPackage::Private
{
    std::unique_ptr<QTranslator> translator;
};

LuPackage::LuPackage(QObject* parent) : QObject(parent), d(new Private) {}

LuPackage::~LuPackage() = default;

QString LuPackage::name()
{
    return QString::fromLatin1(metaObject()->className());
}

QObject* LuPackage::translator()
{
    if (!d->translator) {
        d->translator = std::make_unique<QTranslator>();
        // A language without a file shows the source texts.
        (void)d->translator->load(QLocale(), name(), QStringLiteral("_"),
                                  QStringLiteral(":/%1/translations").arg(name()));
    }
    return d->translator.get();
}

QString LuPackage::qmlBasePath() const
{
    const QString package = QString::fromLatin1(metaObject()->className());
    return QStringLiteral("%1/qml/%1").arg(package);
}

// SPDX-License-Identifier: Apache-2.0
#include "Translations.h"

#include <LuShared/LuPackagesInterface.h>
#include <qml/LumenQml.h>

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

Translations::~Translations()
{
    // Translators of packages belong to them.
    for (const Texts& texts : std::as_const(m_texts))
        QCoreApplication::removeTranslator(texts.translator);
}

void Translations::load(const Texts& texts)
{
    QCoreApplication::removeTranslator(texts.translator);
    // A language without a file shows the source texts.
    (void)texts.translator->load(QLocale(), texts.name, u"_"_s, texts.folder);
    QCoreApplication::installTranslator(texts.translator);
}

void Translations::setLanguage(const QString& language)
{
    lumenQmlResources();
    QLocale::setDefault(language.isEmpty() ? QLocale::system() : QLocale(language));
    if (m_texts.isEmpty())
        m_texts.append({&m_own, u"lumen-desk"_s, u":/lumendesk/translations"_s});
    for (const Texts& texts : std::as_const(m_texts))
        load(texts);
}

void Translations::addPackage(LuPackagesInterface* package)
{
    auto* translator = qobject_cast<QTranslator*>(package->translator());
    if (!translator)
        return;
    m_texts.append({translator, package->name(), u":/%1/translations"_s.arg(package->name())});
    QCoreApplication::installTranslator(translator);
}

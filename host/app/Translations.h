// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QTranslator>

class LuPackagesInterface;

/// The texts of the program and of its packages in the language that is in use. GUI thread.
class Translations
{
public:
    Translations() = default;
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Makes numbers, dates and texts follow @p language (empty: the desktop's) from now on; what is shown
    /// already has to be translated anew.
    void setLanguage(const QString& language);
    /// Texts of a package, in the language in use.
    void addPackage(LuPackagesInterface* package);

private:
    struct Texts
    {
        QTranslator* translator;
        QString name;
        QString folder;
    };
    static void load(const Texts& texts);

    QTranslator m_own;
    QList<Texts> m_texts;
};

// SPDX-License-Identifier: Apache-2.0
#include <QObject>
#include <QtPlugin>

/// A plug-in of somebody else's interface.
class Foreign : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.example.foreign/1.0")
};

#include "foreign.moc"

// SPDX-License-Identifier: Apache-2.0
#include <QObject>
#include <QtPlugin>

/// A plug-in that names the packages' interface and does not offer it.
class Hollow : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.orvane.lupackagesinterface/1.10")
};

#include "hollow.moc"

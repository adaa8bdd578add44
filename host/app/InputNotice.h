// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

/// Notices a person's input to any window, for ZrAsker. Installed on the application object.
class InputNotice : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

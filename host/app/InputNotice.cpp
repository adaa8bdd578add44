// SPDX-License-Identifier: Apache-2.0
#include "InputNotice.h"

#include <ZrCore/ZrAsker.h>

#include <QMouseEvent>

bool InputNotice::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        // A pointer that passes asks for nothing.
        if (static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
            break;
        [[fallthrough]];
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
        ZrAsker::noteInput();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

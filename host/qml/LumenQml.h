// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;
class QUrl;

/// Makes the QML modules LumenDesk... usable in @p engine: resources, import paths, types, icons.
/// GUI thread, before the first component is loaded.
void lumenQmlInit(QQmlEngine* engine);

/// Address of the main window's QML file.
QUrl lumenMainWindowUrl();

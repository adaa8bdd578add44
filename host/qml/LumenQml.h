// SPDX-License-Identifier: Apache-2.0
#pragma once

class QQmlEngine;
class QUrl;

/// Makes the QML modules LumenDesk... usable in @p engine: resources, import paths, types, icons.
/// GUI thread, before the first component is loaded.
void lumenQmlInit(QQmlEngine* engine);

/// Deletes the pictures that stay cached for a while after the last engine is gone. GUI thread; for a clean
/// end of the program, between the end of the engine and that of the application object.
void lumenQmlRelease();

/// Address of the main window's QML file.
QUrl lumenMainWindowUrl();

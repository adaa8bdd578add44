// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QQmlEngine;
class QUrl;

/// Makes the shell's files, its translations among them, known. lumenQmlInit() does it too.
void lumenQmlResources();

/// Makes the QML modules LumenDesk... usable in @p engine: resources, import paths, types, icons.
/// GUI thread, before the first component is loaded.
/// @param packages names of the loaded packages, whose QML modules and pictures are found below their names.
void lumenQmlInit(QQmlEngine* engine, const QStringList& packages);

/// Deletes the pictures that stay cached for a while after the last engine is gone. GUI thread; for a clean
/// end of the program, between the end of the engine and that of the application object.
void lumenQmlRelease();

/// Address of the main window's QML file.
QUrl lumenMainWindowUrl();

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/qglobal.h>

#if defined(PANELCORE_LIBRARY)
#define PANELCORE_EXPORT Q_DECL_EXPORT
#else
#define PANELCORE_EXPORT Q_DECL_IMPORT
#endif

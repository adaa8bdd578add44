// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtCore/qglobal.h>

#if defined(LUSHARED_LIBRARY)
#define LUSHARED_EXPORT Q_DECL_EXPORT
#else
#define LUSHARED_EXPORT Q_DECL_IMPORT
#endif

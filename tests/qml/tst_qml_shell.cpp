// SPDX-License-Identifier: Apache-2.0
#include <QTest>
#include "Shell.h"
class T : public QObject { Q_OBJECT };
QTEST_MAIN(T)
#include "tst_qml_shell.moc"

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

/// A result for people: a value alone, a list of objects as a table, an object as names and values. Ends with
/// a newline unless it is empty.
QString renderResult(const QJsonValue& result);

/// One notification of a watch, without a newline.
QString renderNotification(const QJsonObject& message);

/// A value on one line.
QString renderInline(const QJsonValue& value);

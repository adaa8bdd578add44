// SPDX-License-Identifier: Apache-2.0
#include "Render.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QList>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Columns that the client knows an order for; others follow as they come.
const QStringList& columnOrder()
{
    static const QStringList order{u"seq"_s, u"run"_s,  u"time"_s,   u"ms"_s,
                                   u"id"_s,  u"name"_s, u"widget"_s, u"level"_s};
    return order;
}

bool isTable(const QJsonArray& list)
{
    return !list.isEmpty() &&
           std::all_of(list.begin(), list.end(), [](const QJsonValue& entry) { return entry.isObject(); });
}

QStringList columnsOf(const QJsonArray& list)
{
    QStringList columns;
    for (const QJsonValue& entry : list) {
        const QStringList names = entry.toObject().keys();
        for (const QString& name : names) {
            if (!columns.contains(name))
                columns.append(name);
        }
    }
    std::stable_sort(columns.begin(), columns.end(), [](const QString& a, const QString& b) {
        const auto rank = [](const QString& name) {
            const qsizetype place = columnOrder().indexOf(name);
            return place < 0 ? columnOrder().size() : place;
        };
        return rank(a) < rank(b);
    });
    return columns;
}

QString renderTable(const QJsonArray& list, const QString& indent)
{
    const QStringList columns = columnsOf(list);
    QList<QStringList> rows{{}};
    for (const QString& column : columns)
        rows.first().append(column.toUpper());
    for (const QJsonValue& entry : list) {
        QStringList row;
        const QJsonObject object = entry.toObject();
        for (const QString& column : columns)
            row.append(object.contains(column) ? renderInline(object.value(column)) : QString());
        rows.append(row);
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype c = 0; c < row.size(); ++c) {
            qsizetype width = 0;
            for (const QStringList& other : rows)
                width = std::max(width, std::min<qsizetype>(other[c].size(), 60));
            line += row[c].leftJustified(c + 1 < row.size() ? width : 0) + u"  "_s;
        }
        text += indent + line.trimmed() + u'\n';
    }
    return text;
}

QString render(const QJsonValue& value, const QString& indent)
{
    QString text;
    if (value.isArray()) {
        const QJsonArray list = value.toArray();
        if (isTable(list))
            return renderTable(list, indent);
        for (const QJsonValue& entry : list)
            text += indent + renderInline(entry) + u'\n';
        return text;
    }
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            const bool nested = (member->isObject() && !member->toObject().isEmpty()) ||
                                (member->isArray() && isTable(member->toArray()));
            text += indent + member.key() + (nested ? u":\n"_s : u": "_s);
            text += nested ? render(*member, indent + u"  "_s) : renderInline(*member) + u'\n';
        }
        return text;
    }
    return indent + renderInline(value) + u'\n';
}

} // namespace

QString renderInline(const QJsonValue& value)
{
    if (value.isString())
        return value.toString();
    if (value.isNull() || value.isUndefined())
        return u"null"_s;
    QString text = QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    return text.mid(1, text.size() - 2);
}

QString renderResult(const QJsonValue& result)
{
    const QJsonObject object = result.toObject();
    if (result.isObject() && object.isEmpty())
        return {};
    if (result.isArray() && result.toArray().isEmpty())
        return {};
    if (object.size() == 1 && object.contains("value"_L1))
        return render(object.value("value"_L1), {});
    return render(result, {});
}

QString renderNotification(const QJsonObject& message)
{
    const QJsonObject parameters = message.value("params"_L1).toObject();
    const QString path = parameters.value("path"_L1).toString();
    if (message.value("method"_L1) == "signal"_L1) {
        QStringList texts;
        const QJsonArray arguments = parameters.value("args"_L1).toArray();
        for (const QJsonValue& argument : arguments)
            texts.append(renderInline(argument));
        return u"%1(%2)"_s.arg(path.section(u'(', 0, 0), texts.join(u", "_s));
    }
    return u"%1 = %2"_s.arg(path, renderInline(parameters.value("value"_L1)));
}

// SPDX-License-Identifier: Apache-2.0
#include "LuLottieItem.h"

#include <QFile>
#include <QPainter>
#include <QtQml>

#include <algorithm>

using namespace Qt::StringLiterals;

LuLottieItem::LuLottieItem(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void LuLottieItem::setSource(const QUrl& source)
{
    if (source == m_source)
        return;
    m_source = source;
    m_file.reset();
    m_frame = 0;
    if (!source.isEmpty()) {
        QFile file(source.scheme() == "qrc"_L1 ? u':' + source.path() : source.toLocalFile());
        QString problem;
        if (file.open(QIODevice::ReadOnly))
            m_file = LuLottieFile::read(file.readAll(), &problem);
        else
            problem = file.errorString();
        if (!m_file)
            qmlWarning(this) << source.toString() << ": " << problem;
    }
    if (m_file) {
        setImplicitSize(m_file->size().width(), m_file->size().height());
        m_frame = m_file->firstFrame();
    }
    Q_EMIT sourceChanged();
    Q_EMIT frameChanged();
    update();
}

int LuLottieItem::duration() const
{
    return m_file ? int((m_file->lastFrame() - m_file->firstFrame()) / m_file->framesPerSecond() * 1000) : 0;
}

void LuLottieItem::setFrame(double frame)
{
    if (qFuzzyCompare(frame + 1, m_frame + 1))
        return;
    m_frame = frame;
    Q_EMIT frameChanged();
    update();
}

void LuLottieItem::paint(QPainter* painter)
{
    if (!m_file)
        return;
    const QSizeF size = m_file->size();
    const double scale = std::min(width() / size.width(), height() / size.height());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate((width() - size.width() * scale) / 2, (height() - size.height() * scale) / 2);
    painter->scale(scale, scale);
    m_file->paint(painter, m_frame);
}

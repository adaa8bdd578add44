// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuLottieFile.h"

#include <QQuickPaintedItem>
#include <QUrl>

#include <optional>

/// Shows one frame of a Lottie animation, as large as the item allows; QML moves the frame.
class LuLottieItem : public QQuickPaintedItem
{
    Q_OBJECT
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(bool ready READ isReady NOTIFY sourceChanged)
    Q_PROPERTY(double firstFrame READ firstFrame NOTIFY sourceChanged)
    Q_PROPERTY(double lastFrame READ lastFrame NOTIFY sourceChanged)
    Q_PROPERTY(int duration READ duration NOTIFY sourceChanged)
    Q_PROPERTY(double frame READ frame WRITE setFrame NOTIFY frameChanged)

public:
    explicit LuLottieItem(QQuickItem* parent = nullptr);

    QUrl source() const { return m_source; }
    /// A file of the resources or the disk. One that cannot be shown is told in a warning and shows nothing.
    void setSource(const QUrl& source);
    bool isReady() const { return m_file.has_value(); }
    double firstFrame() const { return m_file ? m_file->firstFrame() : 0; }
    double lastFrame() const { return m_file ? m_file->lastFrame() : 0; }
    /// Length in ms; 0 without an animation.
    int duration() const;
    double frame() const { return m_frame; }
    void setFrame(double frame);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void sourceChanged();
    void frameChanged();

private:
    QUrl m_source;
    std::optional<LuLottieFile> m_file;
    double m_frame = 0;
};

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QSharedPointer>

#include <memory>

class QClipboard;
class QMimeData;
class ZrDispatch;

/// A second clipboard: copies and pastes in the application in the foreground by its own keys, and puts the
/// system clipboard back as it was. GUI thread.
///
/// What it holds lives in memory only and ends with it.
class LuClipboard : public QObject
{
    Q_OBJECT

public:
    /// @p monitor is the id of the monitor that the queue belongs to; empty: to none.
    explicit LuClipboard(QObject* parent = nullptr, const QString& monitor = {});
    /// Puts the user's content back first, if it is still away.
    ~LuClipboard() override;

    /// Lets the foreground application copy its selection and keeps that; returns at once. Without a
    /// selection the next change of the clipboard by any program is taken instead.
    void independentCopy();

    /// Lets the foreground application paste what independentCopy() kept; returns at once. Does nothing while
    /// nothing is kept, or an earlier paste is under way.
    void independentPaste();

Q_SIGNALS:
    void independentCopyChanged();

private:
    void backUp();
    void restore();
    void put(const QMimeData* content);
    void takeChange();
    bool isAway() const;

    bool m_pasteBusy = false;
    QClipboard* const m_clipboard;
    std::unique_ptr<QMimeData> m_independent;
    std::unique_ptr<QMimeData> m_backup;
    const QSharedPointer<ZrDispatch> m_dispatch;
};

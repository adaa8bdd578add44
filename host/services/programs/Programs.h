// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ApplicationList.h"
#include "services/api/ApplicationWindows.h"
#include "services/api/ProgramService.h"

#include <QFileSystemWatcher>
#include <QObject>

#include <memory>
#include <mutex>
#include <thread>

namespace services {

/// The applications of a Linux desktop: desktop entries for who they are, /proc for what runs.
///
/// An application's identity is the id of its desktop entry, such as "firefox.desktop"; without one it is the
/// path of its program. The list is read on a thread of its own, and again when the folders of applications
/// have changed and been quiet for QuietMs.
class Programs : public QObject, public ProgramService
{
public:
    /// An installation changes its folders many times; on the program's clock.
    static constexpr qint64 QuietMs = 2000;

    /// @p windows may be null: then windows tell nothing and cannot be placed.
    explicit Programs(std::shared_ptr<ApplicationWindows> windows);
    ~Programs() override;

    bool isListReady() const override;
    /// The list is being read, for the first time or again. GUI thread.
    bool isReading() const { return m_reading; }
    QString appId(unsigned long pid) const override;
    QString appId(const QUrl& url) const override;
    QString displayName(const QString& appId) const override;
    QUrl url(const QString& appId) const override;
    QString icon(const QString& appId) const override;
    bool open(const QString& path) override;
    bool placesWindows() const override { return m_windows != nullptr; }
    void setGeometry(unsigned long pid, const QRectF& geometry) override;

protected:
    bool event(QEvent* event) override;

private:
    std::shared_ptr<const ApplicationList> list() const;
    /// Watches the folders that hold applications, or will.
    void watch();
    void readLater();
    void read();

    const std::shared_ptr<ApplicationWindows> m_windows;
    const QStringList m_folders;
    QFileSystemWatcher m_watcher;
    mutable std::mutex m_mutex;
    std::shared_ptr<const ApplicationList> m_list; ///< Null until it has been read.
    bool m_differs = false;                        ///< From the list before. Guarded as the list is.
    bool m_told = false;
    bool m_reading = false;
    bool m_readAgain = false; ///< Something changed while the list was read.
    std::thread m_reader;
};

} // namespace services

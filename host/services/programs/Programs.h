// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ApplicationList.h"
#include "services/api/ApplicationWindows.h"
#include "services/api/ProgramService.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <thread>

namespace services {

/// The applications of a Linux desktop: desktop entries for who they are, /proc for what runs.
///
/// An application's identity is the id of its desktop entry, such as "firefox.desktop"; without one it is the
/// path of its program. The list is read on a thread of its own.
class Programs : public QObject, public ProgramService
{
public:
    /// @p windows may be null: then windows tell nothing and cannot be placed.
    explicit Programs(std::shared_ptr<ApplicationWindows> windows);
    ~Programs() override;

    bool isListReady() const override;
    QString appId(unsigned long pid) const override;
    QString appId(const QUrl& url) const override;
    QString displayName(const QString& appId) const override;
    QUrl url(const QString& appId) const override;
    QString icon(const QString& appId) const override;
    bool open(const QString& path) override;
    void setGeometry(unsigned long pid, const QRectF& geometry) override;

protected:
    bool event(QEvent* event) override;

private:
    std::shared_ptr<const ApplicationList> list() const;

    const std::shared_ptr<ApplicationWindows> m_windows;
    mutable std::mutex m_mutex;
    std::shared_ptr<const ApplicationList> m_list; ///< Null until it has been read.
    bool m_told = false;
    std::thread m_reader;
};

} // namespace services

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuSharedGlobal.h>

#include <QObject>

/// Where the person is, for sunrise and sunset. GUI thread only.
class LUSHARED_EXPORT LuServerLocation : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double latitude READ latitude NOTIFY locationStatusChanged)
    Q_PROPERTY(double longitude READ longitude NOTIFY locationStatusChanged)
    Q_PROPERTY(int status READ status NOTIFY locationStatusChanged)

public:
    /// Values of status(). Any other number is a failure of the location service.
    enum Status {
        Unknown = 0, ///< Not found out yet.
        Known = 1,   ///< latitude() and longitude() hold.
        Failed = 2   ///< No position can be had.
    };
    Q_ENUM(Status)

    static LuServerLocation* instance();

    /// Degrees, north and east positive; they hold while the status is Known.
    double latitude() const;
    double longitude() const;

    /// A number of Status. Unknown where the session has no location service.
    int status() const;

Q_SIGNALS:
    /// The place or the status changed. A session's location service also raises it for those who began to
    /// listen after it had found the place.
    void locationStatusChanged();

protected:
    void connectNotify(const QMetaMethod& signal) override;

private:
    LuServerLocation() = default;
};

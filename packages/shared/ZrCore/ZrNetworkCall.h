// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ZrCore/ZrCoreGlobal.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QNetworkRequest;

/// Base of one JSON web request.
///
/// Options become query items of a "GET" and the JSON body of any other method. The request ends after 30 s,
/// follows at most 5 redirects, none from https to http, and takes a reply of at most 1 MiB. It lives on a
/// thread with an event loop, and all of it happens there: on the thread of its parent, wherever it was
/// made, and on that of its maker without one. With a parent on another thread than the maker's it belongs
/// to the maker.
class ZRCORE_EXPORT ZrNetworkCall : public QObject
{
    Q_OBJECT

public:
    /// Called once with (0, "", reply), or with (code, text, {}) where code is one of Error.
    using Callback = std::function<void(int, QString, QJsonObject)>;
    /// Answers addresses of a scheme inside the process.
    using LocalResponder = std::function<QJsonObject(const QUrl& url, const QJsonObject& options)>;

    enum Error {
        NoError = 0,        ///< The reply is a JSON object, whatever the HTTP status.
        InvalidAddress = 1, ///< No usable address or method.
        ConnectionError = 2,
        TimedOut = 3,
        TooLarge = 4,    ///< The reply is longer than 1 MiB.
        BadRedirect = 5, ///< Too many redirects, or one that leads to a less safe scheme.
        HttpError = 6,   ///< An HTTP error status without a JSON object; the text names the status.
        NotJson = 7,     ///< A successful reply that is no JSON object.
        Busy = 8,        ///< execute() while the request runs.
        Canceled = 9,    ///< onNetworkRequest() refused.
        TlsError = 10,   ///< The server could not prove who it is, or there is no safe connection to it.
    };

    /// Cancels a running request; its callback is not called.
    ~ZrNetworkCall() override;

    /// Sets one option; the order of setting is kept for the query. Setting a key again replaces its value in
    /// place.
    void setOption(const QString& key, const QJsonValue& value);

    /// Sends the request; any thread. The callback is called later, never from within execute(), on the
    /// object's thread, and not after the object is gone; it may destroy the object.
    void execute(Callback callback);

    /// Limits other than the usual ones, for tests. 0 or less keeps the present one.
    void setLimits(int timeoutMs, qint64 maxBytes);

    /// From now on addresses of @p scheme are answered by @p responder, on the thread of the call; an empty
    /// responder takes it off. Thread safe.
    static void setLocalResponder(const QString& scheme, LocalResponder responder);

protected:
    ZrNetworkCall(const QUrl& url, const QString& method, QObject* parent);

    /// May look at, change or refuse the reply before the callback sees it: by changing @p code, @p text and
    /// @p reply.
    virtual void onJsonResponse(int& code, QString& text, QJsonObject& reply);
    /// May change the request (headers) before it is sent; false refuses it with Canceled.
    virtual bool onNetworkRequest(QNetworkRequest& request);

private:
    class Private;
    friend class Private;
    std::unique_ptr<Private> d;
};

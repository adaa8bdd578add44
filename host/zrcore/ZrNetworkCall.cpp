// SPDX-License-Identifier: Apache-2.0
#include "ZrCore/ZrNetworkCall.h"

#include "ZrCore/ZrDispatch.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QList>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QUrlQuery>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

namespace {

constexpr int TimeoutMs = 30'000;
constexpr qint64 MaxBytes = 1024 * 1024;
constexpr int MaxRedirects = 5;

struct Responders
{
    std::mutex mutex;
    std::map<QString, ZrNetworkCall::LocalResponder> byScheme;
};

Responders& responders()
{
    static auto* const instance = new Responders;
    return *instance;
}

ZrNetworkCall::LocalResponder responderFor(const QString& scheme)
{
    const std::lock_guard lock(responders().mutex);
    const auto found = responders().byScheme.find(scheme.toLower());
    return found == responders().byScheme.end() ? ZrNetworkCall::LocalResponder() : found->second;
}

// The query of a URL knows "+" as itself, while servers read it as a space.
QString encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString optionText(const QJsonValue& value)
{
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    return value.toVariant().toString();
}

} // namespace

class ZrNetworkCall::Private
{
public:
    explicit Private(ZrNetworkCall* call) : q(call), timer(call) { timer.setSingleShot(true); }

    QUrl address() const;
    QJsonObject optionsObject() const;
    void send(QNetworkRequest request);
    void followRedirect(const QUrl& target);
    void fail(Error code, const QString& text);
    void conclude(int code, const QString& text, const QJsonObject& reply);
    void readReply();
    void judgeReply();
    void finish(int code, QString text, QJsonObject reply);
    void finishLater(int code, const QString& text, const QJsonObject& reply);
    void stop();

    ZrNetworkCall* const q;
    QUrl url;
    QString method;
    QList<std::pair<QString, QJsonValue>> options;
    Callback callback;
    bool running = false;
    int redirects = 0;
    int timeoutMs = TimeoutMs;
    qint64 maxBytes = MaxBytes;
    QNetworkAccessManager* manager = nullptr;
    QPointer<QNetworkReply> reply;
    QByteArray body;
    QTimer timer;
};

QUrl ZrNetworkCall::Private::address() const
{
    QUrl target = url;
    if (method != QStringLiteral("GET"))
        return target;
    QString query = target.query(QUrl::FullyEncoded);
    for (const auto& [key, value] : options) {
        if (!query.isEmpty())
            query += u'&';
        query += encoded(key) + u'=' + encoded(optionText(value));
    }
    target.setQuery(query, QUrl::StrictMode);
    return target;
}

QJsonObject ZrNetworkCall::Private::optionsObject() const
{
    QJsonObject object;
    for (const auto& [key, value] : options)
        object.insert(key, value);
    return object;
}

void ZrNetworkCall::Private::send(QNetworkRequest request)
{
    if (!manager)
        manager = new QNetworkAccessManager(q);
    // Redirects are followed here, where their number and scheme are judged.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    QByteArray content;
    if (method != QStringLiteral("GET") && !options.isEmpty()) {
        content = QJsonDocument(optionsObject()).toJson(QJsonDocument::Compact);
        request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    }
    body.clear();
    reply = manager->sendCustomRequest(request, method.toLatin1(), content);
    // The server's bytes wait in the kernel beyond this, instead of in memory.
    reply->setReadBufferSize(64 * 1024);
    connect(reply, &QIODevice::readyRead, q, [this] { readReply(); });
    connect(reply, &QNetworkReply::finished, q, [this] { judgeReply(); });
}

void ZrNetworkCall::Private::stop()
{
    timer.stop();
    if (!reply)
        return;
    reply->disconnect(q);
    reply->abort();
    reply->deleteLater();
    reply = nullptr;
}

void ZrNetworkCall::Private::readReply()
{
    body += reply->read(maxBytes + 1 - body.size());
    if (body.size() > maxBytes)
        fail(TooLarge, QStringLiteral("the reply is longer than %1 bytes").arg(maxBytes));
}

void ZrNetworkCall::Private::fail(Error code, const QString& text)
{
    conclude(code, text, QJsonObject());
}

// The callback may destroy the call, and with it the reply: not while a signal of the reply is being told.
void ZrNetworkCall::Private::conclude(int code, const QString& text, const QJsonObject& object)
{
    stop();
    finishLater(code, text, object);
}

void ZrNetworkCall::Private::followRedirect(const QUrl& target)
{
    const bool known =
        target.scheme() == QStringLiteral("https") || target.scheme() == QStringLiteral("http");
    const bool safer =
        reply->url().scheme() != QStringLiteral("https") || target.scheme() == QStringLiteral("https");
    if (!known || !safer || target.host().isEmpty())
        return fail(BadRedirect, QStringLiteral("redirect to a less safe address refused"));
    if (++redirects > MaxRedirects)
        return fail(BadRedirect, QStringLiteral("more than %1 redirects").arg(MaxRedirects));
    const QUrl from = reply->url();
    const bool otherServer = target.host() != from.host() || target.port() != from.port();
    QNetworkRequest request = reply->request();
    reply->disconnect(q);
    reply->deleteLater();
    reply = nullptr;
    if (otherServer) {
        request.setRawHeader("Authorization", QByteArray());
        request.setRawHeader("Cookie", QByteArray());
    }
    request.setUrl(target);
    send(request);
}

void ZrNetworkCall::Private::judgeReply()
{
    const QVariant redirect = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    if (redirect.isValid())
        return followRedirect(reply->url().resolved(redirect.toUrl()));
    readReply();
    if (!reply)
        return; // too large
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // A status of 400 and above is an error to Qt, but its body is the server's answer all the same.
    if (reply->error() != QNetworkReply::NoError && status < 400)
        return fail(reply->error() == QNetworkReply::SslHandshakeFailedError ? TlsError : ConnectionError,
                    reply->errorString());
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(body, &parseError);
    if (document.isObject())
        return conclude(NoError, QString(), document.object());
    if (status >= 400)
        return fail(HttpError, QStringLiteral("HTTP status %1").arg(status));
    fail(NotJson, parseError.error == QJsonParseError::NoError ? QStringLiteral("the reply is no JSON object")
                                                               : parseError.errorString());
}

void ZrNetworkCall::Private::finish(int code, QString text, QJsonObject object)
{
    running = false;
    q->onJsonResponse(code, text, object);
    const Callback done = std::exchange(callback, nullptr);
    if (done)
        done(code, text, object); // may destroy the call: nothing of it is touched from here on
}

void ZrNetworkCall::Private::finishLater(int code, const QString& text, const QJsonObject& object)
{
    QTimer::singleShot(0, q, [this, code, text, object] { finish(code, text, object); });
}

ZrNetworkCall::ZrNetworkCall(const QUrl& url, const QString& method, QObject* parent)
    : QObject(parent && parent->thread() == QThread::currentThread() ? parent : nullptr),
      d(std::make_unique<Private>(this))
{
    // A queue's job has no event loop: the request runs where its parent lives.
    if (parent && parent->thread() != thread())
        moveToThread(parent->thread());
    d->url = url;
    d->method = method.trimmed().toUpper();
    connect(&d->timer, &QTimer::timeout, this,
            [this] { d->fail(TimedOut, QStringLiteral("no reply within %1 ms").arg(d->timeoutMs)); });
}

ZrNetworkCall::~ZrNetworkCall()
{
    d->stop();
}

void ZrNetworkCall::setOption(const QString& key, const QJsonValue& value)
{
    const auto found = std::find_if(d->options.begin(), d->options.end(),
                                    [&](const auto& option) { return option.first == key; });
    if (found == d->options.end())
        d->options.append({key, value});
    else
        found->second = value;
}

void ZrNetworkCall::setLimits(int timeoutMs, qint64 maxBytes)
{
    if (timeoutMs > 0)
        d->timeoutMs = timeoutMs;
    if (maxBytes > 0)
        d->maxBytes = maxBytes;
}

void ZrNetworkCall::setLocalResponder(const QString& scheme, LocalResponder responder)
{
    const std::lock_guard lock(responders().mutex);
    if (responder)
        responders().byScheme[scheme.toLower()] = std::move(responder);
    else
        responders().byScheme.erase(scheme.toLower());
}

void ZrNetworkCall::execute(Callback callback)
{
    if (QThread::currentThread() != thread()) {
        auto later = [this, callback = std::move(callback)] { execute(callback); };
        if (QCoreApplication::instance() && thread() == QCoreApplication::instance()->thread())
            ZrDispatch::main()->post(this, std::move(later));
        else
            QMetaObject::invokeMethod(this, std::move(later), Qt::QueuedConnection);
        return;
    }
    if (d->running) {
        QTimer::singleShot(0, this, [callback = std::move(callback)] {
            if (callback)
                callback(Busy, QStringLiteral("the request runs already"), QJsonObject());
        });
        return;
    }
    d->running = true;
    d->redirects = 0;
    d->callback = std::move(callback);
    if (const LocalResponder responder = responderFor(d->url.scheme()))
        return d->finishLater(NoError, QString(), responder(d->url, d->optionsObject()));
    const bool web = d->url.scheme() == QStringLiteral("http") || d->url.scheme() == QStringLiteral("https");
    if (!d->url.isValid() || !web || d->url.host().isEmpty() || d->method.isEmpty())
        return d->finishLater(
            InvalidAddress, QStringLiteral("no usable address: ") + d->url.toDisplayString(), QJsonObject());
    QNetworkRequest request(d->address());
    request.setRawHeader("Accept", "application/json");
    if (!onNetworkRequest(request))
        return d->finishLater(Canceled, QStringLiteral("the request was refused"), QJsonObject());
    d->timer.start(d->timeoutMs);
    d->send(request);
}

void ZrNetworkCall::onJsonResponse(int&, QString&, QJsonObject&) {}

bool ZrNetworkCall::onNetworkRequest(QNetworkRequest&)
{
    return true;
}

// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariantList>

/// What there is to tell of the connection to a second computer.
struct LuComputersState
{
    enum class Phase {
        Idle,
        Waiting,   ///< For a call of the other computer.
        Calling,   ///< It was not reached yet.
        Comparing, ///< Both show a code.
        Confirmed, ///< Here, and not there yet.
    };
    enum class Failure {
        None,
        NobodyCame,
        NotConfirmed,
        NotReached,
        NotWaiting,
        Refused,
        Broken,
        UnknownName, ///< No computer has the name that was typed.
    };
    struct Nearby
    {
        QString name;
        QString address; ///< As pairWith() takes it.
    };

    bool on = false;
    QString trouble;       ///< Why it could not be switched on, in the system's words; empty if it could.
    QString name;          ///< Of this computer.
    QStringList addresses; ///< Of this computer, as pairWith() of the other one takes them.
    Phase phase = Phase::Idle;
    Failure failure = Failure::None;
    QString code;      ///< Six digits while they are compared.
    QString otherName; ///< Of the computer that is being paired with; may be empty.
    bool paired = false;
    bool connected = false;
    bool forgottenThere = false; ///< The paired computer knows this one no more.
    QString peerName;
    QString peerAddress;
    bool findsOthers = false; ///< The network's list of services answers.
    QList<Nearby> nearby;     ///< Without the paired computer.
};

/// The connection to a second computer, as the page "Two computers" works with it. GUI thread.
class LuComputersBackend : public QObject
{
    Q_OBJECT

public:
    enum class Answer { Taken, NoAddress, NotLocal };

    using QObject::QObject;

    virtual LuComputersState state() const = 0;
    virtual void setOn(bool on) = 0;
    virtual void waitForOther() = 0;
    /// @param address an IP address or the name of a computer, with ":port" where it is not the usual one.
    virtual Answer pairWith(const QString& address) = 0;
    virtual void confirm() = 0;
    virtual void cancel() = 0;
    virtual void forget() = 0;
    /// The paired computer is at another address now.
    virtual Answer movePeer(const QString& address) = 0;

Q_SIGNALS:
    void changed();
};

/// The page "Two computers": the state of the connection in words, and what a person does about it.
///
/// The singleton `LuComputers` of the QML module LumenDesk. GUI thread.
class LuComputers : public QObject
{
    Q_OBJECT
    /// Whether this session can have a second computer at all.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed)
    Q_PROPERTY(bool on READ isOn NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QStringList addresses READ addresses NOTIFY changed)
    /// "idle", "waiting", "calling", "comparing" or "confirmed".
    Q_PROPERTY(QString phase READ phase NOTIFY changed)
    /// "123 456", or empty.
    Q_PROPERTY(QString code READ code NOTIFY changed)
    Q_PROPERTY(QString otherName READ otherName NOTIFY changed)
    Q_PROPERTY(bool paired READ isPaired NOTIFY changed)
    Q_PROPERTY(bool connected READ isConnected NOTIFY changed)
    Q_PROPERTY(bool forgottenThere READ isForgottenThere NOTIFY changed)
    Q_PROPERTY(QString peerName READ peerName NOTIFY changed)
    Q_PROPERTY(QString peerAddress READ peerAddress NOTIFY changed)
    Q_PROPERTY(bool findsOthers READ findsOthers NOTIFY changed)
    /// {"name", "address"} of each.
    Q_PROPERTY(QVariantList nearby READ nearby NOTIFY changed)
    /// What went wrong last, in plain words; empty if nothing did.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    /// The one object; lives as long as the application.
    static LuComputers* instance();
    ~LuComputers() override;

    /// Null where the session has no such service.
    void setBackend(LuComputersBackend* backend);

    bool isAvailable() const { return m_backend != nullptr; }
    bool isOn() const { return m_state.on; }
    QString name() const { return m_state.name; }
    QStringList addresses() const { return m_state.addresses; }
    QString phase() const;
    QString code() const;
    QString otherName() const { return m_state.otherName; }
    bool isPaired() const { return m_state.paired; }
    bool isConnected() const { return m_state.connected; }
    bool isForgottenThere() const { return m_state.forgottenThere; }
    QString peerName() const { return m_state.peerName; }
    QString peerAddress() const { return m_state.peerAddress; }
    bool findsOthers() const { return m_state.findsOthers; }
    QVariantList nearby() const;
    QString problem() const;

    Q_INVOKABLE void setOn(bool on);
    Q_INVOKABLE void waitForOther();
    /// False, with a problem, if the text is no address that can be called.
    Q_INVOKABLE bool pairWith(const QString& address);
    Q_INVOKABLE void confirm();
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void forget();
    Q_INVOKABLE bool movePeer(const QString& address);
    /// The problem has been read.
    Q_INVOKABLE void clearProblem();

Q_SIGNALS:
    void changed();

private:
    explicit LuComputers(QObject* parent);
    void refresh();
    bool take(LuComputersBackend::Answer answer);

    QPointer<LuComputersBackend> m_backend;
    LuComputersState m_state;
    LuComputersBackend::Answer m_answer = LuComputersBackend::Answer::Taken;
    bool m_isFailureRead = false;
};

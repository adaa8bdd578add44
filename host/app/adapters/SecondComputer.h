// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <qml/LuComputers.h>

#include <QHostAddress>

#include <functional>
#include <memory>

namespace services {
class NativeKvm;
}

/// What a person typed as the address of a computer.
struct TypedAddress
{
    QString host; ///< An IP address or a name; empty if the text is neither.
    quint16 port = 0;

    /// @param usualPort where the text names none.
    static TypedAddress read(const QString& text, quint16 usualPort);
};

/// The channel to the second computer, as the window works with it. GUI thread.
class SecondComputer : public LuComputersBackend
{
    Q_OBJECT

public:
    explicit SecondComputer(const std::shared_ptr<services::NativeKvm>& kvm, QObject* parent = nullptr);

    LuComputersState state() const override;
    void setOn(bool on) override;
    void waitForOther() override;
    Answer pairWith(const QString& address) override;
    void confirm() override;
    void cancel() override;
    void forget() override;
    Answer movePeer(const QString& address) override;

private:
    /// Looks a name up if it is one, and calls back with an address of the local network.
    Answer find(const QString& text, std::function<void(const QHostAddress& address, quint16 port)> found);

    std::weak_ptr<services::NativeKvm> m_kvm; // goes with the services
    int m_lookup = -1;                        ///< Of a name; -1 while there is none.
    bool m_isNameUnknown = false;
};

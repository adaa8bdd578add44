// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <exception>

namespace control {

/// Codes of the errors that a request can be answered with: those of JSON-RPC and the program's own.
enum ErrorCode : int {
    ParseError = -32700,
    InvalidRequest = -32600,
    UnknownMethod = -32601,
    InvalidParameters = -32602,
    InternalError = -32603,
    NoSuchMonitor = 1,
    NoSuchPath = 2, ///< A path, module, service, signal or control that is not there.
    NotWritable = 3,
    WrongValue = 4, ///< A value of the wrong type, or an unknown name of an enumeration or colour mode.
    NotSimulated = 5,
    NoWindow = 6,
};

/// Why a request fails. Thrown by methods and caught by the dispatcher, never further.
class RequestError : public std::exception
{
public:
    RequestError(int code, QString message) : m_code(code), m_message(std::move(message)) {}

    int code() const { return m_code; }
    /// Names what was wrong, for a person to read.
    QString message() const { return m_message; }
    const char* what() const noexcept override { return "control::RequestError"; }

private:
    int m_code;
    QString m_message;
};

} // namespace control

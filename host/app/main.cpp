// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "DisplayServer.h"
#include "Options.h"

#include <lushared/LuLog.h>

#include <QGuiApplication>
#include <QIcon>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int WrongUsage = 2;
constexpr int Failed = 1;

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    const ParsedOptions parsed = parseOptions(argumentsOf(argc, argv));
    if (parsed.outcome != ParsedOptions::Outcome::Run) {
        const bool refused = parsed.outcome == ParsedOptions::Outcome::Refuse;
        std::fputs(qPrintable(parsed.text), refused ? stderr : stdout);
        return refused ? WrongUsage : 0;
    }

    // Without a display server the program runs all the same, where nobody sees it.
    const bool hasDisplay = displayServerAnswers();
    if (!hasDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    LuLog::install();
    QGuiApplication::setOrganizationName(QStringLiteral("lumen-desk"));
    QGuiApplication::setApplicationName(QStringLiteral("lumen-desk"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Lumen Desk"));
    QGuiApplication::setApplicationVersion(QStringLiteral(LUMEN_DESK_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("lumen-desk"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QGuiApplication qtApplication(argc, argv);

    Application application(parsed.options, hasDisplay);
    switch (application.start()) {
    case Application::Start::Running: {
        const int code = QGuiApplication::exec();
        if (application.hangs())
            std::_Exit(code);
        return code;
    }
    case Application::Start::OtherInstance:
        return 0;
    case Application::Start::Failed:
        return Failed;
    }
    return Failed;
}

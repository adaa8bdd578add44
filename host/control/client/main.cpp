// SPDX-License-Identifier: Apache-2.0
#include "CommandLine.h"
#include "Commands.h"
#include "DeskClient.h"
#include "Render.h"

#include <control/SocketPath.h>

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>
#include <cstdio>
#include <sys/signalfd.h>

using namespace Qt::StringLiterals;

namespace {

enum ExitCode {
    Done = 0,
    AnsweredWithError = 1,
    WrongUsage = 2,
    NotRunning = 3,
};

void print(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

int fail(ExitCode code, const QString& message)
{
    std::fputs((u"lumen-deskctl: %1\n"_s.arg(message)).toUtf8().constData(), stderr);
    return code;
}

QString helpText()
{
    QString text = u"Usage: lumen-deskctl [OPTION...] COMMAND [ARGUMENT...]\n\n"
                   "Controls a running lumen-desk.\n\nOptions:\n"
                   "  -m, --monitor MONITOR  id or model name of a monitor; otherwise the current one\n"
                   "      --json             print results as JSON\n"
                   "      --control PATH     socket of the running program\n"
                   "      --timeout MS       how long to wait for an answer (30000; 0: without limit)\n"
                   "  -h, --help             show this and end\n"
                   "  -v, --version          show the version and end\n\nCommands:\n"_s;
    for (const Command& command : commands()) {
        const QString usage = usageOf(command);
        const QString gap =
            usage.size() < 44 ? QString(44 - usage.size(), u' ') : u"\n"_s + QString(46, u' ');
        text += u"  %1%2%3\n"_s.arg(usage, gap, QString::fromLatin1(command.help));
    }
    text +=
        u"\nA value is JSON where it is JSON, else a string. An argument may be given as NAME=VALUE.\n"
        "Exit codes: 0 done, 1 the program answered with an error, 2 wrong usage, 3 no running lumen-desk.\n"_s;
    return text;
}

/// A descriptor that can be read once the user or the system interrupts the program.
int interruptDescriptor()
{
    sigset_t signalSet;
    sigemptyset(&signalSet);
    sigaddset(&signalSet, SIGINT);
    sigaddset(&signalSet, SIGTERM);
    sigprocmask(SIG_BLOCK, &signalSet, nullptr);
    return signalfd(-1, &signalSet, SFD_CLOEXEC | SFD_NONBLOCK);
}

QString compact(const QJsonValue& value)
{
    QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2)) + u'\n';
}

int watch(DeskClient& client, int interrupted, bool json)
{
    const bool wasInterrupted = client.listen(interrupted, [json](const QJsonObject& message) {
        print(json ? compact(message) : renderNotification(message) + u'\n');
    });
    return wasInterrupted ? int(Done) : fail(NotRunning, u"the program has ended"_s);
}

int run(const CommandLine& line, const Command& command, const QString& method, const QJsonObject& parameters)
{
    const bool watching = QLatin1String(command.words) == "watch"_L1;
    // Before the first notification can come, so that none is lost to an interruption.
    const int interrupted = watching ? interruptDescriptor() : -1;
    const QString path = line.control.isEmpty() ? control::defaultSocketPath() : line.control;
    DeskClient client;
    if (!client.connectTo(path, line.timeoutMs))
        return fail(NotRunning, u"no running lumen-desk at %1 (%2)"_s.arg(path, client.errorString()));
    QJsonObject answer;
    switch (client.request(method, parameters, line.timeoutMs, &answer)) {
    case DeskClient::Outcome::Answered:
        break;
    case DeskClient::Outcome::TimedOut:
        return fail(AnsweredWithError, u"no answer to \"%1\" within %2 ms"_s.arg(method).arg(line.timeoutMs));
    case DeskClient::Outcome::Lost:
        return fail(NotRunning, u"the program ended before it answered"_s);
    }
    if (answer.contains("error"_L1)) {
        const QJsonObject error = answer.value("error"_L1).toObject();
        return fail(
            AnsweredWithError,
            u"%1 (error %2)"_s.arg(error.value("message"_L1).toString()).arg(error.value("code"_L1).toInt()));
    }
    if (watching)
        return watch(client, interrupted, line.json);
    print(line.json ? compact(answer.value("result"_L1)) : renderResult(answer.value("result"_L1)));
    return Done;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const CommandLine line = CommandLine::parse(QCoreApplication::arguments().mid(1));
    const QString seeHelp = u"; see lumen-deskctl --help"_s;
    if (!line.error.isEmpty())
        return fail(WrongUsage, line.error + seeHelp);
    if (line.help) {
        print(helpText());
        return Done;
    }
    if (line.version) {
        print(u"lumen-deskctl %1\n"_s.arg(QStringLiteral(LUMEN_DESK_VERSION)));
        return Done;
    }

    QStringList arguments = line.arguments;
    if (arguments.isEmpty())
        return fail(WrongUsage, u"a command is missing"_s + seeHelp);
    const Command* const command = takeCommand(&arguments);
    if (!command)
        return fail(WrongUsage, u"unknown command \"%1\""_s.arg(arguments.mid(0, 2).join(u' ')) + seeHelp);
    QJsonObject parameters;
    QString error;
    if (!readArguments(*command, arguments, &parameters, &error))
        return fail(WrongUsage, u"%1\nusage: lumen-deskctl %2"_s.arg(error, usageOf(*command)));

    QString method = QString::fromLatin1(command->method);
    if (method.isEmpty()) { // raw: the parameters are the user's
        method = parameters.value("method"_L1).toString();
        parameters = parameters.value("params"_L1).toObject();
        if (line.monitor)
            parameters.insert(u"monitor"_s, *line.monitor);
    } else if (line.monitor && !command->takesMonitor) {
        return fail(WrongUsage, u"\"%1\" takes no option -m"_s.arg(QLatin1String(command->words)));
    } else if (line.monitor) {
        parameters.insert(u"monitor"_s, *line.monitor);
    }
    return run(line, *command, method, parameters);
}

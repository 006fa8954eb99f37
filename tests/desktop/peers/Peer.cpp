#include "peers/Peer.h"

#include <QProcessEnvironment>

#include <csignal>

#include "peers/EventLoop.h"

namespace larkspan::peers {

Peer::Peer(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment)
{
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(program, arguments);
    process_.waitForStarted();
}

Peer::~Peer()
{
    process_.kill();
    process_.waitForFinished();
}

void Peer::tell(const QByteArray& input)
{
    process_.write(input);
    process_.closeWriteChannel();
}

QString Peer::ask(const QByteArray& line)
{
    process_.write(line + '\n');
    return hear();
}

QString Peer::hear()
{
    turnUntil([this] { return process_.canReadLine() || hasEnded(); });
    return QString::fromUtf8(process_.readLine()).trimmed();
}

QStringList Peer::heardByNow()
{
    turnFor(std::chrono::milliseconds(50));
    QStringList lines;
    while (process_.canReadLine()) lines << QString::fromUtf8(process_.readLine()).trimmed();
    return lines;
}

bool Peer::endsWell()
{
    return turnUntil([this] { return hasEnded(); }) && process_.exitStatus() == QProcess::NormalExit
        && process_.exitCode() == 0;
}

void Peer::signal(int number)
{
    ::kill(static_cast<pid_t>(process_.processId()), number);
}

}  // namespace larkspan::peers

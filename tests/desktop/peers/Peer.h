#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace larkspan::peers {

/// A program that a test runs against, and what it says on its output. Ends with the object.
class Peer {
public:
    Peer(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment);
    ~Peer();

    /// Hands it all of its input.
    void tell(const QByteArray& input);

    /// Hands it one line, and hears its answer.
    QString ask(const QByteArray& line);

    /// The next line of its output; empty if none comes in time.
    QString hear();

    /// What it has said by now and has not been heard yet.
    QStringList heardByNow();

    bool hasEnded() const { return process_.state() == QProcess::NotRunning; }
    bool endsWell();
    void signal(int number);

private:
    QProcess process_;
};

}  // namespace larkspan::peers

#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace larkspan::peers {

/// A program that a test needs, and its output. Ends with the object.
class Peer {
public:
    Peer(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment);
    ~Peer();

    /// Writes `input` to its standard input.
    void tell(const QByteArray& input);

    /// Writes one line to its standard input, and returns its next line of output.
    QString ask(const QByteArray& line);

    /// The next line of its output; empty if none comes in time.
    QString hear();

    /// The lines of output so far that have not been read yet.
    QStringList heardByNow();

    bool hasEnded() const { return process_.state() == QProcess::NotRunning; }
    bool endsWell();
    void signal(int number);

private:
    QProcess process_;
};

}  // namespace larkspan::peers

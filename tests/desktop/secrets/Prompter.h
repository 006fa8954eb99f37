#pragma once

#include <QProcessEnvironment>

#include "SessionBus.h"
#include "peers/Keyring.h"
#include "peers/Peer.h"

namespace larkspan::adapters {

/// The desktop's password dialog and its user. Prints "prompt" when the dialog opens and "closed" when it has closed.
class Prompter : public peers::Peer {
public:
    explicit Prompter(const QStringList& answer)
        : Peer("/usr/bin/python3", QStringList{LARKSPAN_SECRET_PEERS "/prompter.py"} + answer,
              QProcessEnvironment::systemEnvironment())
    {
        hear();
    }

    static QStringList answeringRightly() { return {"answer", peers::Keyring::password}; }
    static QStringList dismissing() { return {"dismiss"}; }
    static QStringList waiting() { return {"wait"}; }

    qsizetype promptsByNow() { return heardByNow().count("prompt"); }
};

}  // namespace larkspan::adapters

#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "FaultServer.h"
#include "server/ServerCertificates.h"
#include "service/Fault.h"
#include "stage/Operation.h"

namespace larkspan::campaign {

/// The sentence that an operation has to end with; empty for success.
using Ending = std::function<std::string(const Operation&)>;

/// A request that a fault is about.
struct Turn {
    adapters::Conversation& peer;
    const adapters::ReceivedRequest& received;
    /// The service's answer: it has read the request and carried it out.
    std::function<simulator::Reply()> answer;
    /// The origins that are not the service's, as "https://127.0.0.1:PORT" and "http://127.0.0.1:PORT".
    const std::string& elsewhere;
    const std::string& elsewhereInPlain;
    /// The service's own origin.
    const std::string& here;

    std::string target() const;
    /// Whether this request follows a redirect to `movedTo(…)`.
    bool isMoved() const;
    bool isWrite() const { return !received.line.starts_with("GET "); }
};

/// The place in the service's origin to which `target` has moved.
std::string movedTo(const std::string& target);

/// The text of a complete answer.
std::string written(const simulator::Reply& reply, const std::string& moreHeaders = {});

/// The answer's body, or that of an order that was carried out where it has none.
std::string bodyOf(const simulator::Reply& reply);

/// A fault of the road between the client and the service.
struct Fault {
    std::string name;
    Ending ending;

    // One of these three is set.
    /// Answers a request in the service's place.
    std::function<void(Turn&)> answer = {};
    /// Changes the server before anything is sent; `end` sets it right.
    std::function<void(adapters::FaultServer&)> begin = {};
    std::function<void(adapters::FaultServer&)> end = {};
    /// A fault of the simulator, or the certificate that it shows.
    std::optional<simulator::Fault> simulated = {};
    std::optional<simulator::CertificateKind> certificate = {};

    /// Whether an answer has come over the same connection before.
    bool isOnKeptConnection = false;
    /// Whether only one request meets it.
    bool isOnce = false;
    /// How long after the operation the fault may still do something.
    std::chrono::milliseconds afterwards{0};
};

/// Every fault, one kind after the other.
const std::vector<Fault>& faults();

// For `faults`, by what they spoil.
std::vector<Fault> connectionFaults();
std::vector<Fault> lengthFaults();
std::vector<Fault> headFaults();
std::vector<Fault> statusFaults();
std::vector<Fault> redirectFaults();
std::vector<Fault> pointingFaults();
std::vector<Fault> bodyFaults();
std::vector<Fault> certificateFaults();
std::vector<Fault> simulatedFaults();

}  // namespace larkspan::campaign

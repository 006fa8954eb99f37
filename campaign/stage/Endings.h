#pragma once

#include <string>

#include "stage/Fault.h"

namespace larkspan::campaign {

// The client's table of failures, in its own words: written here once more, so that a change of the program's words is
// seen.

inline const std::string connectionLost = "The network connection was lost.";
inline const std::string timedOut = "The request timed out.";
inline const std::string notReached = "Could not connect to the server.";
inline const std::string untrusted = "The server’s certificate is not trusted.";
inline const std::string insecure = "A secure connection to the server could not be made.";
inline const std::string notUnderstood = "The server’s answer could not be understood.";
inline const std::string tooLarge = "The server’s answer is too large.";
inline const std::string invalidResponse = "Received an invalid response from the server.";
inline const std::string noJSON = "The server’s answer: Not valid JSON";

std::string statusSentence(int code);

/// The operation succeeds.
std::string succeeds(const Operation& operation);

/// Every operation ends with `sentence`.
Ending endsWith(std::string sentence);

/// Every operation that reads the body ends with `sentence`.
Ending cannotRead(std::string sentence);

/// Reads succeed, and writes end with `sentence`.
Ending onlyWritesEndWith(std::string sentence);

/// What the operations end with by the way in which they take their answers; empty for success.
struct ByAnswer {
    std::string nothing, record, list, namedList, bareObject;

    std::string operator()(const Operation& operation) const;
};

/// The status of an answer with an empty body: one without content, or a failure.
Ending endsAsStatus(int code, bool hasBody);

}  // namespace larkspan::campaign

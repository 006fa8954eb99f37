#pragma once

#include <memory>
#include <string>
#include <vector>

#include "service/Service.h"
#include "stage/Fault.h"

namespace larkspan::campaign {

/// Origins that are not the service's; nothing may ever reach them.
class OtherOrigins {
public:
    OtherOrigins();
    ~OtherOrigins();
    OtherOrigins(const OtherOrigins&) = delete;
    OtherOrigins& operator=(const OtherOrigins&) = delete;

    const std::string& secure() const { return secureURL_; }
    const std::string& plain() const { return plainURL_; }

    /// The number of connections to either.
    int visits() const;

private:
    adapters::FaultServer server_;
    const int plainListener_;
    const std::string secureURL_;
    const std::string plainURL_;
};

/// The requests that meet a fault; a read to which a redirect of a write has led counts as part of the write.
enum class Met { reads, writes };

/// The server of one cell, with its fault.
class Origin {
public:
    virtual ~Origin() = default;

    virtual int port() const = 0;
    virtual void arm(Met met) = 0;
    virtual void mend() = 0;

    /// The first lines and bodies of all requests, and their headers other than the two that carry the key.
    virtual std::vector<std::string> textsWithoutKey() const = 0;
    /// The number of times that a write has arrived at one place, at most.
    virtual int mostArrivals() const = 0;
};

/// Answers with raw bytes.
std::unique_ptr<Origin> rawOrigin(simulator::Service& service, const OtherOrigins& others, const Fault& fault);

/// The simulator's own server.
std::unique_ptr<Origin> simulatedOrigin(simulator::Service& service, const Fault& fault);

}  // namespace larkspan::campaign

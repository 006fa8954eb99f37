#pragma once

namespace larkspan::adapters {

/// Replaces the system's resolver and list of interfaces for the whole test program, including libcurl, so that the
/// tests' names mean the same on every machine: "service.test" and "other.test" are 127.0.0.1, the resolver of
/// "hangs.invalid" does not answer while a `SilentResolver` exists, and no other name below ".invalid" exists.
struct SilentResolver {
    SilentResolver();
    /// Releases the lookups that still hang.
    ~SilentResolver();
};

/// While it exists, the computer has no interface but its loopback.
struct NoInterfaces {
    NoInterfaces();
    ~NoInterfaces();
};

}  // namespace larkspan::adapters

#pragma once

namespace larkspan::adapters {

/// Stands before the system's resolver and list of interfaces for the whole test program, libcurl included, so that
/// names of tests mean the same on every machine: "service.test" and "other.test" are 127.0.0.1, "hangs.invalid" has a
/// resolver that says nothing while a `SilentResolver` lives, and no other name below ".invalid" exists.
struct SilentResolver {
    SilentResolver();
    /// Lets the questions go that still hang.
    ~SilentResolver();
};

/// While it lives the computer has no interface but its loopback.
struct NoInterfaces {
    NoInterfaces();
    ~NoInterfaces();
};

}  // namespace larkspan::adapters

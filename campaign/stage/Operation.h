#pragma once

#include <functional>
#include <string>
#include <vector>

#include "account/Account.h"
#include "api/KestruneAPI.h"

namespace larkspan::campaign {

/// How the client takes the answer of an operation.
enum class Answer {
    /// Any object, or no body at all.
    nothing,
    /// A record, bare or under "data".
    record,
    /// A list, bare or under "data", which may be null.
    list,
    /// A list, bare, under "data" or under a name of its own.
    namedList,
    /// An object with a list under its own name, and in no other shape.
    bareObject,
    /// The status only.
    unread,
};

/// Records of an account that operations are about.
struct Subjects {
    std::string page;
    std::string incident;
    std::string maintenance;
    std::string component;
    std::string group;
    std::string monitor;
    std::string pausedMonitor;
    std::string schedule;

    static Subjects of(const simulator::Account& account);
};

/// One operation of the client.
struct Operation {
    std::string name;
    /// The method of the request that the faults are about.
    std::string method;
    Answer answer = Answer::record;
    /// The record in the answer, or in its list; empty for none.
    std::string record = {};
    std::function<support::Task<void>(api::KestruneAPI&, const Subjects&)> run = {};

    bool isWrite() const { return method != "GET"; }
};

/// Every operation that the client has.
const std::vector<Operation>& operations();

// For `operations`, by what they do.
std::vector<Operation> reads();
std::vector<Operation> writes();

/// `operation` without its result.
template <typename Result>
support::Task<void> withoutResult(support::Task<Result> operation)
{
    const auto result = co_await std::move(operation);
    static_cast<void>(result);
}

}  // namespace larkspan::campaign

#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

#include "server/ServerCertificates.h"
#include "service/Service.h"

namespace larkspan::simulator {

/// The options of `larkspan-simulator`.
struct Options {
    int port = 0;
    std::string host = "localhost";
    std::string seed = "small";
    std::string key = "simulator";
    ResultShape shape = ResultShape::underData;
    CertificateKind certificate = CertificateKind::valid;
    std::filesystem::path directory;
    bool isLiving = false;
};

/// The text to print instead of starting.
struct Explanation {
    std::string text;
    bool isError;
};

std::variant<Options, Explanation> readOptions(const std::vector<std::string>& arguments);

}  // namespace larkspan::simulator

#include "model/json/DecodingError.h"

namespace larkspan::model {

namespace {

std::string describe(const std::string& path, std::string_view problem)
{
    return (path.empty() ? "The server’s answer" : path) + ": " + std::string(problem);
}

}  // namespace

DecodingError::DecodingError(Kind kind, std::string path, std::string_view problem)
    : LocalizedError(describe(path, problem))
    , kind_(kind)
    , path_(std::move(path))
{
}

}  // namespace larkspan::model

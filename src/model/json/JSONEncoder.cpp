#include "model/json/JSONEncoder.h"

#include <tuple>

#include "model/bodies/ComponentRequests.h"
#include "model/bodies/IncidentRequests.h"
#include "model/bodies/MaintenanceRequests.h"
#include "model/bodies/UpdateStatusPageRequest.h"
#include "model/json/Encoding.h"

namespace larkspan::model {

template <typename Body>
std::string detail::encodeBody(const Body& body)
{
    return encodeRecord(body);
}

namespace {

template <typename... Types>
constexpr auto encodingsOf(TypeList<Types...>)
{
    return std::tuple{&detail::encodeBody<Types>...};
}

// The templates are only declared in the header; taking their addresses here instantiates them.
[[gnu::used]] constexpr auto encodings = encodingsOf(RequestBodies{});

}  // namespace

}  // namespace larkspan::model

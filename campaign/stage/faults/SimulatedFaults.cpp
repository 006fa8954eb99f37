#include "stage/Client.h"
#include "stage/Endings.h"

namespace larkspan::campaign {

using namespace std::chrono_literals;
namespace fault = simulator::fault;

namespace {

Fault simulated(const std::string& name, Ending ending, simulator::Fault made)
{
    Fault one{"simulated " + name, std::move(ending)};
    one.simulated = std::move(made);
    return one;
}

Fault shown(const std::string& name, simulator::CertificateKind kind)
{
    Fault one{"simulated " + name, endsWith(untrusted)};
    one.certificate = kind;
    return one;
}

/// The simulator spoils the body under the answer's own status, of which these have none.
Ending unlessWithoutContent(Ending ending)
{
    return [ending = std::move(ending)](const Operation& operation) {
        const bool isWithoutContent = operation.method == "DELETE" || operation.name == "takeOnCallShift";
        return isWithoutContent ? std::string() : ending(operation);
    };
}

}  // namespace

std::vector<Fault> simulatedFaults()
{
    constexpr std::uint64_t giant = 4 * Client::largestBody;
    return {
        simulated("failure of the service", endsWith(statusSentence(500)), fault::Status{500}),
        simulated("overload", endsWith(statusSentence(503)), fault::Status{503}),
        simulated("answer without content", endsAsStatus(204, false), fault::Status{204}),
        simulated("short delay", succeeds, fault::Delay{100ms}),
        simulated("delay past all patience", endsWith(timedOut), fault::Delay{30s}),
        simulated("hanging", endsWith(timedOut), fault::Hang{}),
        simulated("end before the first byte", endsWith(connectionLost), fault::ClosedBeforeFirstByte{}),
        simulated("answer that is not HTTP", endsWith(notUnderstood), fault::NotHttp{}),
        simulated(
            "garbage", unlessWithoutContent(cannotRead("The server’s answer: Not valid UTF-8")), fault::Garbage{}),
        simulated("empty body", endsAsStatus(200, false), fault::Body{}),
        simulated(
            "word", unlessWithoutContent(cannotRead(noJSON)), fault::Body{.text = "OK", .contentType = "text/plain"}),
        simulated("deep nesting", unlessWithoutContent(cannotRead("The server’s answer: Nested too deeply")),
            fault::DeepNesting{}),
        simulated("giant body", unlessWithoutContent(endsWith(tooLarge)), fault::HugeBody{.bytes = giant}),
        simulated("packed giant", unlessWithoutContent(endsWith(tooLarge)),
            fault::HugeBody{.bytes = giant, .isPacked = true}),
        simulated("redirect to another origin", endsWith(statusSentence(302)),
            fault::Redirect{.location = "https://localhost:1/"}),
        simulated("redirect in circles", endsWith(statusSentence(302)), fault::Redirect{.location = "/user/api/x"}),
        shown("expired certificate", simulator::CertificateKind::expired),
        shown("certificate for another name", simulator::CertificateKind::wrongName),
        shown("certificate of a stranger", simulator::CertificateKind::untrusted),
    };
}

}  // namespace larkspan::campaign

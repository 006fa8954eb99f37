#include <algorithm>
#include <map>

#include "server/HttpsServer.h"
#include "stage/Authorities.h"
#include "stage/Client.h"
#include "stage/Origin.h"

namespace larkspan::campaign {

namespace {

class SimulatedOrigin final : public Origin {
public:
    SimulatedOrigin(simulator::Service& service, const Fault& fault)
        : service_(service)
        , fault_(fault)
        , certificates_(simulatorsAuthority(), simulator::CertificateKind::valid)
        , server_(service, certificates_, 0)
    {
    }

    int port() const override { return server_.port(); }

    void arm(Met met) override
    {
        if (fault_.certificate) certificates_.use(*fault_.certificate);
        if (!fault_.simulated) return;
        if (met == Met::reads) return inject("GET");
        for (const auto* method : {"POST", "PUT", "PATCH", "DELETE"}) inject(method);
    }

    void mend() override
    {
        certificates_.use(simulator::CertificateKind::valid);
        service_.clearFaults();
    }

    std::vector<std::string> textsWithoutKey() const override
    {
        std::vector<std::string> texts;
        for (const auto& request : service_.received()) {
            texts.insert(texts.end(), {request.target, request.body});
            for (const auto& [name, value] : request.headers) {
                const bool carriesKey
                    = (name == "Authorization" && value == "Bearer " + key) || (name == "X-API-Key" && value == key);
                if (!carriesKey) texts.push_back(name + ": " + value);
            }
        }
        return texts;
    }

    int mostArrivals() const override
    {
        std::map<std::string, int> arrivals;
        for (const auto& request : service_.received()) {
            if (request.method != "GET") ++arrivals[request.method + ' ' + request.target];
        }
        int most = 0;
        for (const auto& [line, times] : arrivals) most = std::max(most, times);
        return most;
    }

private:
    void inject(const std::string& method) { service_.inject({*fault_.simulated, {}, method}); }

    simulator::Service& service_;
    const Fault& fault_;
    simulator::ServerCertificates certificates_;
    simulator::HttpsServer server_;
};

}  // namespace

std::unique_ptr<Origin> simulatedOrigin(simulator::Service& service, const Fault& fault)
{
    return std::make_unique<SimulatedOrigin>(service, fault);
}

}  // namespace larkspan::campaign

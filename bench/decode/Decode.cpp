// Measures the decoding of a list of incidents, compared with merely parsing the same body, and with Qt's JSON reader.
//
// usage: larkspan-bench-decode INCIDENTS ROUNDS     prints three medians in milliseconds

#include <QJsonArray>
#include <QJsonDocument>

#include <simdjson.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "Arguments.h"
#include "Median.h"
#include "account/Account.h"
#include "fakes/ManualClock.h"
#include "model/json/JSONDecoder.h"
#include "model/records/Incident.h"
#include "service/Service.h"

namespace {

using namespace larkspan;

/// The service's answer for an account with this number of incidents.
std::string answerWith(std::size_t incidents)
{
    simulator::Account account;
    account.keys.insert_or_assign("bench", simulator::KeyRights::full);
    for (std::size_t count = 0; count < incidents; ++count) {
        simulator::Incident incident;
        incident.id = "incident-" + std::to_string(count);
        incident.title = "Login errors for the customers of region " + std::to_string(count);
        incident.message = "We see **elevated errors** on sign-in.\n\n- EU region only\n- Retrying helps";
        incident.severityName = "minor";
        incident.statusPageId = "page-1";
        account.incidents.push_back(std::move(incident));
    }
    simulator::Service service(std::move(account));
    simulator::Request request;
    request.method = "GET";
    request.target = "/user/api/v1/incidents";
    request.headers = {{"Authorization", "Bearer bench"}, {"X-API-Key", "bench"}};
    auto reply = service.answer(request);
    if (reply.status != 200) throw std::runtime_error("the service answers " + std::to_string(reply.status));
    return reply.body;
}

double medianOf(std::size_t rounds, const std::function<void()>& work)
{
    std::vector<double> taken;
    for (std::size_t round = 0; round < rounds; ++round) {
        const auto begin = std::chrono::steady_clock::now();
        work();
        taken.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    return bench::median(std::move(taken));
}

void measure(std::size_t incidents, std::size_t rounds)
{
    const auto body = answerWith(incidents);
    const fakes::ManualClock clock;
    const model::JSONDecoder decoder(clock);
    const auto expect = [incidents](std::size_t read) {
        if (read != incidents) throw std::runtime_error("not all incidents were read");
    };
    const double decoded
        = medianOf(rounds, [&] { expect(decoder.decodeResult<std::vector<model::Incident>>(body).size()); });
    const double parsed = medianOf(rounds, [&] {
        simdjson::dom::parser parser;
        expect(parser.parse(body)["data"].get_array().size());
    });
    const auto bytes = QByteArray::fromStdString(body);
    const double byQt = medianOf(rounds, [&] {
        const auto document = QJsonDocument::fromJson(bytes);
        expect(static_cast<std::size_t>(document[QLatin1String("data")].toArray().size()));
    });
    std::printf("%.4f %.4f %.4f\n", decoded, parsed, byQt);
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("usage: larkspan-bench-decode INCIDENTS ROUNDS\n", stderr);
        return 2;
    }
    try {
        measure(larkspan::bench::number(argv[1]), std::max<std::size_t>(larkspan::bench::number(argv[2]), 1));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "larkspan-bench-decode: %s\n", error.what());
        return 1;
    }
    return 0;
}

// Measures how long the largest list that the client accepts blocks the main thread: the longest single turn of its
// event loop while as many pages as an answer may contain, of as many bytes, arrive for the first time, arrive in
// another order, and are all down at once; also the part of the panel's menu in it.
//
// usage: larkspan-bench-largest     prints milliseconds

#include <cstdio>
#include <stdexcept>
#include <string>

#include "Window.h"
#include "adapters/http/TransportSettings.h"
#include "adapters/tray/DBusMenuModel.h"
#include "model/json/JSONValue.h"

namespace {

using namespace larkspan;

constexpr auto most = model::JSONReading::mostRecords;

std::string page(std::size_t number)
{
    static const std::string name(adapters::largestAcceptedBody / most - 100, 'x');
    return R"({"id":")" + std::to_string(number) + R"(","name":")" + name + "\"},";
}

/// Every `step`-th page is first.
std::string pages(std::size_t step)
{
    std::string body = "[";
    body.reserve(adapters::largestAcceptedBody);
    for (std::size_t first = 0; first < step; ++first) {
        for (auto number = first; number < most; number += step) body += page(number);
    }
    body.back() = ']';
    return body;
}

/// Gives each page this state.
std::string overview(const std::string& code)
{
    std::string body = R"({"status_pages":[)";
    for (std::size_t number = 0; number < most; ++number) {
        body += R"({"id":")" + std::to_string(number) + R"(","name":"n","status":{"code":")" + code
            + R"(","label":"l"}},)";
    }
    body.back() = ']';
    return body + '}';
}

double longestTurn()
{
    bench::Window window({});
    auto& client = window.client();
    auto& main = window.main();
    adapters::DBusMenuModel panel;

    main.restart();
    const auto refresh = [&](std::size_t step, const char* code) {
        client.prepare("v1/status-pages", pages(step));
        client.prepare("status-pages/status", overview(code));
        window.refresh();
        if (client.state().statusPages->size() != most) throw std::runtime_error("a cycle did not bring the pages");
        main.post([&] { panel.setRows(client.menu()); });
        main.turn();
    };
    refresh(1, "operational");
    refresh(2, "operational");
    refresh(2, "major-outage");
    return main.longest();
}

}  // namespace

int main()
{
    try {
        std::printf("%.4f\n", longestTurn());
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "larkspan-bench-largest: %s\n", error.what());
        return 1;
    }
    return 0;
}

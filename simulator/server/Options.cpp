#include "server/Options.h"

#include <charconv>
#include <functional>
#include <map>

#include "account/Seed.h"
#include "server/AuthorityStore.h"

namespace larkspan::simulator {

namespace {

constexpr const char* usage = R"(Usage: larkspan-simulator [OPTION VALUE]...

Stands in for the service over HTTPS on 127.0.0.1 and prints its address. The server's certificate is
signed by an authority of its own, made on first use; the path of its certificate is printed, too.

  --port NUMBER        the port; 0, the default, means any that is free
  --host NAME          a further name that its certificate is for, where this machine stands in under it
  --seed NAME          the account: empty, tiny (3 pages), small (12, the default), large (1000) or a number
  --key TEXT           the API key that it takes; "simulator" unless told
  --shape NAME         how results are wrapped: data (the default), bare, or own (lists that have one come in an
                       envelope of their own)
  --certificate NAME   what it shows: valid (the default), expired, wrong-name or untrusted
  --directory PATH     where the authority is kept; $XDG_DATA_HOME/larkspan-simulator unless told
  --live               incidents and maintenances come and go as time passes
  --help               this text
)";

bool readPort(Options& options, const std::string& value)
{
    const auto* const end = value.data() + value.size();
    const auto [stop, error] = std::from_chars(value.data(), end, options.port);
    return error == std::errc{} && stop == end && options.port >= 0 && options.port <= 65'535;
}

bool readHost(Options& options, const std::string& value)
{
    // Other characters have a meaning in the notation of the certificate's names.
    constexpr const char* ofNames = "abcdefghijklmnopqrstuvwxyz0123456789.-";
    options.host = value;
    return !value.empty() && value.find_first_not_of(ofNames) == std::string::npos;
}

bool readSeed(Options& options, const std::string& value)
{
    options.seed = value;
    return seedSize(value).has_value();
}

bool readKey(Options& options, const std::string& value)
{
    options.key = value;
    return !value.empty();
}

bool readShape(Options& options, const std::string& value)
{
    const auto shape = resultShape(value);
    options.shape = shape.value_or(options.shape);
    return shape.has_value();
}

bool readCertificate(Options& options, const std::string& value)
{
    const auto kind = certificateKind(value);
    options.certificate = kind.value_or(options.certificate);
    return kind.has_value();
}

bool readDirectory(Options& options, const std::string& value)
{
    options.directory = value;
    return !value.empty();
}

const std::map<std::string, std::function<bool(Options&, const std::string&)>>& optionReaders()
{
    static const std::map<std::string, std::function<bool(Options&, const std::string&)>> readers{{"--port", readPort},
        {"--host", readHost}, {"--seed", readSeed}, {"--key", readKey}, {"--shape", readShape},
        {"--certificate", readCertificate}, {"--directory", readDirectory}};
    return readers;
}

Explanation misunderstood(const std::string& what)
{
    return {what + " Try larkspan-simulator --help.\n", true};
}

}  // namespace

std::variant<Options, Explanation> readOptions(const std::vector<std::string>& arguments)
{
    Options options;
    options.directory = defaultAuthorityDirectory();
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--help") return Explanation{usage, false};
        if (*argument == "--live") {
            options.isLiving = true;
            continue;
        }
        const auto reader = optionReaders().find(*argument);
        if (reader == optionReaders().end()) return misunderstood("There is no option " + *argument + ".");
        const auto& name = *argument;
        if (++argument == arguments.end()) return misunderstood(name + " needs a value.");
        if (!reader->second(options, *argument)) return misunderstood(name + " cannot be \"" + *argument + "\".");
    }
    return options;
}

}  // namespace larkspan::simulator

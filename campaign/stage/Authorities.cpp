#include "stage/Authorities.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace larkspan::campaign {

namespace {

/// The simulator's authority, and a bundle of both, in a directory that goes with the process.
class Trust {
public:
    Trust()
        : store_(directory_.path)
        , bundle_(directory_.path / "bundle.pem")
    {
        std::ofstream both(bundle_);
        both << std::ifstream(authority().bundle()).rdbuf() << std::ifstream(store_.certificateFile()).rdbuf();
    }

    const simulator::Identity& simulators() const { return store_.authority(); }
    const std::string& bundle() const { return bundle_; }

private:
    struct Directory {
        Directory()
        {
            auto name = (std::filesystem::temp_directory_path() / "larkspan-campaign-XXXXXX").string();
            path = ::mkdtemp(name.data());
        }
        ~Directory() { std::filesystem::remove_all(path); }
        Directory(const Directory&) = delete;
        Directory& operator=(const Directory&) = delete;

        std::filesystem::path path;
    };

    Directory directory_;
    simulator::AuthorityStore store_;
    std::string bundle_;
};

const Trust& trust()
{
    static const Trust made;
    return made;
}

}  // namespace

const adapters::Authority& authority()
{
    static const adapters::Authority made;
    return made;
}

const simulator::Identity& simulatorsAuthority()
{
    return trust().simulators();
}

const std::string& bundle()
{
    return trust().bundle();
}

const adapters::Identity& identity()
{
    static const auto made = authority().issue();
    return made;
}

}  // namespace larkspan::campaign

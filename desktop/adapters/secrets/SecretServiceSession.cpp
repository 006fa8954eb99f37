#include "adapters/secrets/SecretServiceSession.h"

#include "adapters/secrets/SecretPrompt.h"

namespace larkspan::adapters {

namespace {

constexpr auto servicePath = "/org/freedesktop/secrets";
constexpr auto serviceInterface = "org.freedesktop.Secret.Service";
constexpr auto collectionInterface = "org.freedesktop.Secret.Collection";
constexpr auto itemInterface = "org.freedesktop.Secret.Item";
constexpr auto defaultAlias = "default";

/// How the service writes "none", for a prompt as well as for a collection.
constexpr auto noPath = "/";

struct ValueUnref {
    void operator()(SecretValue* value) const { secret_value_unref(value); }
};
using ValuePointer = std::unique_ptr<SecretValue, ValueUnref>;

GVariant* attributes(const platform::CredentialItem& item)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a{ss}"));
    g_variant_builder_add(&builder, "{ss}", "service", std::string(item.service).c_str());
    g_variant_builder_add(&builder, "{ss}", "account", std::string(item.account).c_str());
    return g_variant_builder_end(&builder);
}

GVariant* itemProperties(const platform::CredentialItem& item)
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a{sv}"));
    // Shown to users who look through the keyring; not used otherwise.
    g_variant_builder_add(
        &builder, "{sv}", "org.freedesktop.Secret.Item.Label", g_variant_new_string(std::string(item.service).c_str()));
    g_variant_builder_add(&builder, "{sv}", "org.freedesktop.Secret.Item.Attributes", attributes(item));
    return g_variant_builder_end(&builder);
}

GVariant* collectionProperties()
{
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE("a{sv}"));
    g_variant_builder_add(
        &builder, "{sv}", "org.freedesktop.Secret.Collection.Label", g_variant_new_string("Default keyring"));
    return g_variant_builder_end(&builder);
}

VariantPointer child(const VariantPointer& tuple, gsize index)
{
    return VariantPointer(g_variant_get_child_value(tuple.get(), index));
}

std::string text(const VariantPointer& value)
{
    return g_variant_get_string(value.get(), nullptr);
}

std::vector<std::string> texts(const VariantPointer& array)
{
    std::vector<std::string> texts;
    for (gsize index = 0; index < g_variant_n_children(array.get()); ++index)
        texts.push_back(text(child(array, index)));
    return texts;
}

}  // namespace

SecretServiceSession::Conversation::Conversation(SecretServiceSession& session)
    : Conversation(session, session.bus_.patience())
{
}

SecretServiceSession::Conversation::Conversation(SecretServiceSession& session, std::chrono::milliseconds patience)
    : entry_(session.bus_.loop())
{
    session.bus_.restartDeadline(patience);
    session.open();
}

SecretServiceSession::SecretServiceSession(const GLibStop& stop, std::chrono::milliseconds patience)
    : bus_(stop, patience)
{
}

void SecretServiceSession::open()
{
    if (isCurrent()) return;
    service_.reset();
    changes_.reset();
    if (!bus_.connect()) return;
    changes_.emplace(bus_.connection());
    const auto result
        = bus_.loop().await(bus_.deadline(), [](GCancellable* cancellable, GAsyncReadyCallback ready, gpointer data) {
              secret_service_open(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, cancellable, ready, data);
          });
    service_.reset(secret_service_open_finish(result.get(), nullptr));
    owner_ = service_ ? bus_.owner() : std::string();
}

bool SecretServiceSession::isCurrent()
{
    if (!service_) return false;
    // The bus reports a new owner before anything that the owner sends, so it need not be asked.
    bus_.loop().catchUp();
    const std::unique_ptr<char, decltype(&g_free)> owner(
        g_dbus_proxy_get_name_owner(G_DBUS_PROXY(service_.get())), &g_free);
    return owner && owner_ == owner.get();
}

SecretServiceSession::Found SecretServiceSession::search(const platform::CredentialItem& item)
{
    const auto reply = bus_.call(
        servicePath, serviceInterface, "SearchItems", g_variant_new("(@a{ss})", attributes(item)), "(aoao)");
    if (!reply) return {};
    return {.unlocked = texts(child(reply, 0)), .locked = texts(child(reply, 1))};
}

bool SecretServiceSession::unlock(const Path& path, const MayPrompt& mayPrompt)
{
    const char* const paths[] = {path.c_str()};
    const auto reply = bus_.call(
        servicePath, serviceInterface, "Unlock", g_variant_new("(@ao)", g_variant_new_objv(paths, 1)), "(aoo)");
    if (!reply) return false;
    const auto prompt = text(child(reply, 1));
    return prompt == noPath || runPrompt(prompt, mayPrompt).has_value();
}

std::optional<std::string> SecretServiceSession::secret(const Path& item)
{
    const auto* const session = secret_service_get_session_dbus_path(service_.get());
    const auto reply = bus_.call(item, itemInterface, "GetSecret", g_variant_new("(o)", session), "((oayays))");
    if (!reply) return std::nullopt;
    const ValuePointer value(secret_service_decode_dbus_secret(service_.get(), child(reply, 0).get()));
    if (!value) return std::nullopt;
    gsize length = 0;
    const auto* const bytes = secret_value_get(value.get(), &length);
    return std::string(bytes, length);
}

guint64 SecretServiceSession::modificationTime(const Path& item)
{
    const auto reply = bus_.call(
        item, "org.freedesktop.DBus.Properties", "Get", g_variant_new("(ss)", itemInterface, "Modified"), "(v)");
    if (!reply) return 0;
    const VariantPointer time(g_variant_get_variant(child(reply, 0).get()));
    return g_variant_is_of_type(time.get(), G_VARIANT_TYPE_UINT64) != FALSE ? g_variant_get_uint64(time.get()) : 0;
}

void SecretServiceSession::remove(const Path& item)
{
    const auto reply = bus_.call(item, itemInterface, "Delete", nullptr, "(o)");
    if (!reply) return;
    // Some services ask to confirm every removal, which is part of the removal that the user asked for.
    if (const auto prompt = text(child(reply, 0)); prompt != noPath) SecretPrompt(bus_, prompt).run();
}

std::optional<SecretServiceSession::Path> SecretServiceSession::defaultCollection(const MayPrompt& mayPrompt)
{
    const auto alias = bus_.call(servicePath, serviceInterface, "ReadAlias", g_variant_new("(s)", defaultAlias), "(o)");
    if (!alias) return std::nullopt;
    if (auto path = text(child(alias, 0)); path != noPath) return path;

    const auto made = bus_.call(servicePath, serviceInterface, "CreateCollection",
        g_variant_new("(@a{sv}s)", collectionProperties(), defaultAlias), "(oo)");
    if (!made) return std::nullopt;
    if (auto path = text(child(made, 0)); path != noPath) return path;
    const auto answer = runPrompt(text(child(made, 1)), mayPrompt);
    if (!answer || g_variant_is_of_type(answer->get(), G_VARIANT_TYPE_OBJECT_PATH) == FALSE) return std::nullopt;
    return text(*answer);
}

bool SecretServiceSession::create(
    const Path& collection, const platform::CredentialItem& item, const std::string& secret)
{
    const ValuePointer value(secret_value_new(secret.data(), static_cast<gssize>(secret.size()), "text/plain"));
    auto* const encoded = secret_service_encode_dbus_secret(service_.get(), value.get());
    constexpr gboolean replacing = TRUE;
    const auto reply = bus_.call(collection, collectionInterface, "CreateItem",
        g_variant_new("(@a{sv}@(oayays)b)", itemProperties(item), encoded, replacing), "(oo)");
    if (!reply) return false;
    const auto prompt = text(child(reply, 1));
    return prompt == noPath || SecretPrompt(bus_, prompt).run().has_value();
}

std::optional<VariantPointer> SecretServiceSession::runPrompt(const Path& path, const MayPrompt& mayPrompt)
{
    SecretPrompt prompt(bus_, path);
    if (mayPrompt()) return prompt.run();
    prompt.dismiss();
    return std::nullopt;
}

}  // namespace larkspan::adapters

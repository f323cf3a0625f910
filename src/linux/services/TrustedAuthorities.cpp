#include "linux/services/TrustedAuthorities.h"

#include "linux/services/StandardConsole.h"

namespace orken::desktop {

namespace {

/// Passes every question on to the backend's database, which answers with all of its strictness.
struct Authorities {
    GTlsDatabase parent;
    GTlsDatabase* known;
};

struct AuthoritiesClass {
    GTlsDatabaseClass parent;
};

G_DEFINE_TYPE(Authorities, authorities, G_TYPE_TLS_DATABASE)

Authorities* asAuthorities(gpointer object)
{
    return G_TYPE_CHECK_INSTANCE_CAST(object, authorities_get_type(), Authorities);
}

GTlsCertificateFlags verifyChain(GTlsDatabase* self, GTlsCertificate* chain, const char* purpose,
                                 GSocketConnectable* identity, GTlsInteraction* interaction,
                                 GTlsDatabaseVerifyFlags flags, GCancellable* cancellable, GError** error)
{
    return g_tls_database_verify_chain(asAuthorities(self)->known, chain, purpose, identity, interaction, flags,
                                       cancellable, error);
}

void authorities_init(Authorities*) {}

void finalize(GObject* object)
{
    g_object_unref(asAuthorities(object)->known);
    G_OBJECT_CLASS(authorities_parent_class)->finalize(object);
}

void authorities_class_init(AuthoritiesClass* type)
{
    type->parent.verify_chain = verifyChain;
    G_OBJECT_CLASS(type)->finalize = finalize;
}

GObjectPtr<GTlsDatabase> readOnce(const GObjectPtr<GTlsDatabase>& known)
{
    auto* authorities = asAuthorities(g_object_new(authorities_get_type(), nullptr));
    authorities->known = G_TLS_DATABASE(g_object_ref(known.get()));
    return GObjectPtr<GTlsDatabase>::adopt(&authorities->parent);
}

const GObjectPtr<GTlsDatabase>& systemAuthorities()
{
    static const auto kAuthorities = [] {
        GTlsBackend* backend = g_tls_backend_get_default();
        const auto known = GObjectPtr<GTlsDatabase>::adopt(g_tls_backend_get_default_database(backend));
        auto made = readOnce(known);
        g_tls_backend_set_default_database(backend, made.get());
        return made;
    }();
    return kAuthorities;
}

} // namespace

GObjectPtr<GTlsDatabase> trustedAuthorities(const std::optional<std::string>& file)
{
    // Also with a file: a connection looks at the default before it is told of another.
    const auto& system = systemAuthorities();
    if (!file) {
        return system;
    }
    GError* error = nullptr;
    const auto known = GObjectPtr<GTlsDatabase>::adopt(g_tls_file_database_new(file->c_str(), &error));
    if (!known) {
        reportDiagnostic(GErrorPtr(error)->message);
        return system;
    }
    return readOnce(known);
}

} // namespace orken::desktop

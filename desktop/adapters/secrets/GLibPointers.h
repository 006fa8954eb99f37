#pragma once

#include <gio/gio.h>

#include <memory>

namespace larkspan::adapters {

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

struct VariantUnref {
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
};

/// Owns one reference of a GObject.
template <typename Object>
using ObjectPointer = std::unique_ptr<Object, ObjectUnref>;

/// Owns one reference of a variant, which is not a floating one.
using VariantPointer = std::unique_ptr<GVariant, VariantUnref>;

}  // namespace larkspan::adapters

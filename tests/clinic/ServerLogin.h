#pragma once

#include "support/ScratchSchema.h"

#include <korvane/ado/Connection.h>

#include <memory>
#include <string>

namespace Korvane::Testing {

/// Somebody of its own who may log in to an empty schema on the server, and has no other right yet.
struct ServerLogin {
    ScratchSchema schema;
    std::string name = schema.name() + "_login";
    std::shared_ptr<ado::Connection> owner = ado::open(schema.address());

    ServerLogin() {
        owner->Execute("Create Role " + name + " Login Password 'hush'");
        owner->Execute("Grant Usage On Schema " + schema.name() + " To " + name);
    }
    ~ServerLogin() {
        owner->Execute("Drop Owned By " + name);
        owner->Execute("Drop Role " + name);
    }
    ServerLogin(const ServerLogin&) = delete;
    ServerLogin& operator=(const ServerLogin&) = delete;

    std::string address() const { return schema.address("user=" + name + "&password=hush"); }
    /// ("Create", "Schema"), ("Select, Insert", "All Tables In Schema").
    void grant(const std::string& rights, const std::string& on) {
        owner->Execute("Grant " + rights + " On " + on + " " + schema.name() + " To " + name);
    }
};

} // namespace Korvane::Testing

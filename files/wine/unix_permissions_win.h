// Access control on Wine, which keeps it as the permission bits of the Unix file.
#pragma once

#include <windows.h>

#include <string>

namespace files::wine {

/// Gives the file `to` the access control list of `descriptor`, and never more than that to the
/// file's Unix group.
bool setAccessControl(const std::string& to, PSECURITY_DESCRIPTOR descriptor);

}  // namespace files::wine

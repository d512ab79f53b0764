#include "files/wine/unix_permissions_win.h"

namespace files::wine {

// Wine gives the Unix group whatever the list gives to the owner, if the owner is the user: 0600
// would become 0770. So the descriptor names another owner, and the file gets 0700, whoever owns
// it.
bool setAccessControl(const std::string& to, PSECURITY_DESCRIPTOR descriptor) {
  PACL list = nullptr;
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  GetSecurityDescriptorDacl(descriptor, &present, &list, &defaulted);
  char system[SECURITY_MAX_SID_SIZE] = {};
  DWORD size = sizeof system;
  SECURITY_DESCRIPTOR strict{};
  return CreateWellKnownSid(WinLocalSystemSid, nullptr, system, &size) &&
         InitializeSecurityDescriptor(&strict, SECURITY_DESCRIPTOR_REVISION) &&
         SetSecurityDescriptorDacl(&strict, present, list, FALSE) &&
         SetSecurityDescriptorOwner(&strict, system, FALSE) &&
         SetFileSecurityA(to.c_str(), OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                          &strict);
}

}  // namespace files::wine

#include "files/wine/unix_permissions_win.h"

namespace files::wine {

// What an owner may do who is the user Wine gives to the Unix group as well: 0600 would become
// 0770. With an owner who is not, it is 0700, whoever really owns the file.
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

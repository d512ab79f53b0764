// The maker's web site.
#pragma once

namespace library {

/// Address that Help > Zandor Online and the logo of the about box open. Its domain is one of those
/// reserved for examples.
constexpr char makerSite[] = "http://www.zandor.example/";

}  // namespace library

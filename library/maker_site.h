// Where the maker is found on the web.
#pragma once

namespace library {

/// Address that Help > Zandor Online and the logo of the about box open. The domain is one
/// reserved for examples.
constexpr char makerSite[] = "http://www.zandor.example/";

}  // namespace library

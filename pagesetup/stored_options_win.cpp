#include "pagesetup/stored_options_win.h"

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/path_utilities.h"
#include "library/settings_text.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"

namespace pagesetup {

std::string keyOf(const StoredOption& stored) {
  return library::productKey(windowing::companyName(), windowing::productName(), stored.section);
}

DefaultTexts defaultTexts() {
  const std::string& path = library::modLibrary().documentPath;
  const std::size_t slash = library::lastBackslash(path, values::isLeadByte);
  return {windowing::productName(), library::LIBRARY().GETCOMPANYNAME(),
          slash == std::string::npos ? path : path.substr(slash + 1)};
}

HeaderFooterOptions readOptions() {
  const DefaultTexts texts = defaultTexts();
  HeaderFooterOptions options;
  for (const StoredOption& stored : storedOptions)
    options[stored.option] =
        library::LIBRARY().REGSTRREAD(library::currentUserRoot, keyOf(stored), stored.valueName,
                                      defaultText(stored.otherwise, texts));
  return options;
}

}  // namespace pagesetup

#include "pagesetup/stored_options_win.h"

#include "library/clsLibrary_win.h"
#include "library/modLibrary_win.h"
#include "library/path_utilities.h"
#include "library/stored_settings_win.h"
#include "values/user_locale_win.h"
#include "windowing/application_win.h"

namespace pagesetup {

DefaultTexts defaultTexts() {
  return {windowing::productName(), library::LIBRARY().GETCOMPANYNAME(),
          library::fileNameOf(library::modLibrary().documentPath, values::isLeadByte)};
}

HeaderFooterOptions readOptions() {
  const DefaultTexts texts = defaultTexts();
  HeaderFooterOptions options;
  for (const library::SettingRow& row : optionRows())
    options[row.setting] = library::readText(row.setting, defaultText(row.setting, texts));
  return options;
}

}  // namespace pagesetup

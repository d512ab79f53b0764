// Every value that the program keeps in the settings store or reads from it, one row each. The
// registration of the document type alone stands elsewhere, in app/modAssociate.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace library {

enum class Setting : int {
  // Places of windows, of every form that stores its own.
  windowState,
  windowLeft,
  windowTop,
  windowWidth,
  windowHeight,
  // Main window.
  standardToolbar,
  statusBar,
  openFolder,
  saveFolder,
  toolbarButtons,
  // Documents' folder.
  filesLocation,
  missingFilesLocation,
  // Print preview.
  previewZoom,
  previewToolbar,
  previewStatusBar,
  // Margins of the printed page.
  leftMargin,
  rightMargin,
  topMargin,
  bottomMargin,
  propertiesLeftMargin,
  // Header and footer.
  header,
  headerTitle,
  headerRule,
  headerDate,
  headerTime,
  headerTitleText,
  footer,
  footerField1,
  footerField2,
  footerRule,
  footerPageNumber,
  footerField1Text,
  footerField2Text,
  // Who Windows is registered to.
  registeredOwner,
  registeredOrganization,
};
constexpr std::size_t settingCount = 35;

/// Whose setting it is.
enum class Scope {
  product,  ///< this product's own
  family,   ///< shared by all of the maker's products
  literal,  ///< the product's own, below the maker's name as written here and not as the
            ///< program's version information has it; deliberate
  machine,  ///< of Windows, for everyone
  user,     ///< of Windows, for the user
};

/// What the stored text is to be, and what counts where it is not that.
enum class SettingKind {
  text,    ///< any text
  length,  ///< a number of twips, with one decimal sign of any user; type mismatch otherwise
  inches,  ///< likewise
  truth,   ///< "True", "False" or a number; true otherwise
  tick,    ///< "1" is on, "2" a greyed box, anything else off
  folder,  ///< a folder that exists; the documents' folder otherwise
  zoom,    ///< a zoom of the preview's list; "50 %" otherwise
  bytes,   ///< written only
};

/// `otherwise` of a setting whose default is found when it is read.
constexpr const char* computed = nullptr;
/// Stands in `section` for the name of the form.
constexpr char formMark = '*';
/// The name under which the preview and the properties keep one place together.
constexpr char sharedPlace[] = "GLOBAL";

struct SettingRow {
  Setting setting;
  Scope scope;
  const char* section;    ///< begins with a backslash
  const char* name;       ///< of the value
  const char* otherwise;  ///< text that a missing value counts as
  SettingKind kind;
};

// clang-format off
constexpr std::array<SettingRow, settingCount> settings{{
  {Setting::windowState,   Scope::product, "\\*\\Window", "Window State", computed, SettingKind::length},
  {Setting::windowLeft,    Scope::product, "\\*\\Window", "Left",         computed, SettingKind::length},
  {Setting::windowTop,     Scope::product, "\\*\\Window", "Top",          computed, SettingKind::length},
  {Setting::windowWidth,   Scope::product, "\\*\\Window", "Width",        computed, SettingKind::length},
  {Setting::windowHeight,  Scope::product, "\\*\\Window", "Height",       computed, SettingKind::length},

  {Setting::standardToolbar, Scope::product, "\\frmMain\\View",  "Standard Toolbar", "True",   SettingKind::truth},
  {Setting::statusBar,       Scope::product, "\\frmMain\\View",  "Status Bar",       "True",   SettingKind::truth},
  {Setting::openFolder,      Scope::product, "\\frmMain\\Items", "CMD Open Folder",  computed, SettingKind::folder},
  {Setting::saveFolder,      Scope::product, "\\frmMain\\Items", "CMD Save Folder",  computed, SettingKind::folder},
  {Setting::toolbarButtons,  Scope::literal, "\\frmMain\\Toolbar\\Standard", "Buttons", computed, SettingKind::bytes},

  {Setting::filesLocation,        Scope::product, "\\frmPrefs\\Items",         "Files Location", computed, SettingKind::folder},
  // Another key than the one above, deliberately: a note to the other products.
  {Setting::missingFilesLocation, Scope::family,  "\\GLOBAL\\frmPPrev\\Items", "Files Location", computed, SettingKind::text},

  {Setting::previewZoom,      Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Zoom",       "50 %", SettingKind::zoom},
  {Setting::previewToolbar,   Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Toolbar",    "True", SettingKind::truth},
  {Setting::previewStatusBar, Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Status Bar", "True", SettingKind::truth},

  {Setting::leftMargin,   Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 0", "1", SettingKind::inches},
  {Setting::rightMargin,  Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 1", "1", SettingKind::inches},
  {Setting::topMargin,    Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 2", "1", SettingKind::inches},
  {Setting::bottomMargin, Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 3", "1", SettingKind::inches},
  // The properties look for the left margin where nothing ever writes it: the section lacks
  // letters, deliberately, so that for them it is always an inch wide.
  {Setting::propertiesLeftMargin, Scope::family, "\\GLOBAL\\tems", "Page Margin 0", "1", SettingKind::inches},

  {Setting::header,           Scope::product, "\\frmPPrev\\Items\\Header", "Checked",   "1",      SettingKind::tick},
  {Setting::headerTitle,      Scope::product, "\\frmPPrev\\Items\\Header", "chkTitle",  "1",      SettingKind::tick},
  {Setting::headerRule,       Scope::product, "\\frmPPrev\\Items\\Header", "chkHLine",  "1",      SettingKind::tick},
  {Setting::headerDate,       Scope::product, "\\frmPPrev\\Items\\Header", "chkDate",   "1",      SettingKind::tick},
  {Setting::headerTime,       Scope::product, "\\frmPPrev\\Items\\Header", "chkTime",   "1",      SettingKind::tick},
  {Setting::headerTitleText,  Scope::product, "\\frmPPrev\\Items\\Header", "txtTitle",  computed, SettingKind::text},
  {Setting::footer,           Scope::product, "\\frmPPrev\\Items\\Footer", "Checked",   "1",      SettingKind::tick},
  {Setting::footerField1,     Scope::product, "\\frmPPrev\\Items\\Footer", "chkField1", "1",      SettingKind::tick},
  {Setting::footerField2,     Scope::product, "\\frmPPrev\\Items\\Footer", "chkField2", "1",      SettingKind::tick},
  {Setting::footerRule,       Scope::product, "\\frmPPrev\\Items\\Footer", "chkFLine",  "1",      SettingKind::tick},
  {Setting::footerPageNumber, Scope::product, "\\frmPPrev\\Items\\Footer", "chkPgNo",   "1",      SettingKind::tick},
  {Setting::footerField1Text, Scope::product, "\\frmPPrev\\Items\\Footer", "txtField1", computed, SettingKind::text},
  {Setting::footerField2Text, Scope::product, "\\frmPPrev\\Items\\Footer", "txtField2", computed, SettingKind::text},

  // The organization is looked for under the user, unlike the owner. Deliberate.
  {Setting::registeredOwner,        Scope::machine, "SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION", "RegisteredOwner",        "", SettingKind::text},
  {Setting::registeredOrganization, Scope::user,    "SOFTWARE\\MICROSOFT\\WINDOWS\\CURRENTVERSION", "RegisteredOrganization", "", SettingKind::text},
}};
// clang-format on

[[nodiscard]] constexpr const SettingRow& settingRow(Setting setting) {
  return settings[static_cast<std::size_t>(setting)];
}

namespace detail {
constexpr bool settingsAreInOrder() {
  for (std::size_t i = 0; i < settings.size(); ++i)
    if (static_cast<std::size_t>(settings[i].setting) != i || settings[i].name == nullptr)
      return false;
  return true;
}
// No value has two rows.
constexpr bool settingsAreUnique() {
  for (const SettingRow& a : settings)
    for (const SettingRow& b : settings)
      if (a.setting != b.setting && a.scope == b.scope &&
          std::string_view(a.section) == b.section && std::string_view(a.name) == b.name)
        return false;
  return true;
}
}  // namespace detail
static_assert(detail::settingsAreInOrder() && detail::settingsAreUnique());

/// Key of a setting below its root. Company and product come from the running program's version
/// information; `form` is the name that a form's place is stored under.
[[nodiscard]] std::string settingKey(const SettingRow& row, std::string_view company,
                                     std::string_view product, std::string_view form);

}  // namespace library

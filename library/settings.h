// Every value that the program reads from or writes to the settings store, one row each. Only the
// registration of the document type is elsewhere, in app/modAssociate.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace library {

enum class Setting : int {
  // Place of a window; each form stores its own.
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
  // Registered owner of Windows.
  registeredOwner,
  registeredOrganization,
  count  ///< not a setting; how many there are
};
constexpr auto settingCount = static_cast<std::size_t>(Setting::count);

/// Where a setting is stored, and for whom.
enum class Scope {
  product,  ///< this product's own
  family,   ///< shared by all of the maker's products
  literal,  ///< the product's own, but deliberately with maker and product spelled out in
            ///< `section`, and not taken from the program's version information
  machine,  ///< of Windows, for all users
  user,     ///< of Windows, for this user
};

/// What the stored text must be, and what is done with any other text.
enum class SettingKind {
  text,    ///< any text
  length,  ///< a number of twips, with any decimal sign; any other text raises type mismatch
  inches,  ///< the same for a number of inches
  truth,   ///< "True", "False" or a number; any other text counts as true
  tick,    ///< "1" is ticked, "2" greyed; any other text is not ticked
  folder,  ///< a folder that exists; for any other text, the documents' folder is used
  zoom,    ///< a zoom of the preview's list; any other text counts as "50 %"
  bytes,   ///< written, never read
};

/// `otherwise` of a setting whose default depends on more than its row.
constexpr const char* computed = nullptr;
/// In `section`, this is replaced by the name of a form.
constexpr char formMark = '*';
/// The form's name under which the preview and the properties store their place, which they share.
constexpr char sharedPlace[] = "GLOBAL";

struct SettingRow {
  Setting setting;
  Scope scope;
  const char* section;    ///< begins with a backslash
  const char* name;       ///< of the value
  const char* otherwise;  ///< the text to use where the value is missing
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
  // Deliberately another key than the one above: it tells the other products.
  {Setting::missingFilesLocation, Scope::family,  "\\GLOBAL\\frmPPrev\\Items", "Files Location", computed, SettingKind::text},

  {Setting::previewZoom,      Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Zoom",       "50 %", SettingKind::zoom},
  {Setting::previewToolbar,   Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Toolbar",    "True", SettingKind::truth},
  {Setting::previewStatusBar, Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Status Bar", "True", SettingKind::truth},

  {Setting::leftMargin,   Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 0", "1", SettingKind::inches},
  {Setting::rightMargin,  Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 1", "1", SettingKind::inches},
  {Setting::topMargin,    Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 2", "1", SettingKind::inches},
  {Setting::bottomMargin, Scope::family, "\\GLOBAL\\frmPPrev\\Items", "Page Margin 3", "1", SettingKind::inches},
  // Deliberate: letters are missing in this section. No program writes it, so the properties always
  // count with a left margin of one inch.
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

  // Deliberate: the owner is read for the machine, the organization for the user.
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
static_assert(detail::settingsAreInOrder(),
              "one row for each enumerator, in their order; settingCount is their number");
static_assert(detail::settingsAreUnique(), "two rows name one value");

/// Key of a setting below its root. Company and product come from the running program's version
/// information; `form` is the name that a form's place is stored under.
[[nodiscard]] std::string settingKey(const SettingRow& row, std::string_view company,
                                     std::string_view product, std::string_view form);

}  // namespace library

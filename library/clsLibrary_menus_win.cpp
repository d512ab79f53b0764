// Menus of a form and the descriptions of its commands.
#include "library/clsLibrary_win.h"
#include "library/command_descriptions.h"
#include "library/command_form_win.h"
#include "values/runtime_error.h"
#include "windowing/application_win.h"

namespace library {
namespace {

using values::ErrorNumber;
using values::RuntimeError;

int imageOfKey(const std::string& key) {
  const int index = imageIndex(key);
  if (index < 0) throw RuntimeError(ErrorNumber::outOfRange, "There is no picture \"" + key + "\"");
  return index;
}

// For the shared pop-up menu and the preview, the item is looked for in the menus of the form whose
// status bar shows the text.
bool itemIsOfStatusForm(const windowing::Form& form) {
  const std::string_view name = form.name();
  return name == "frmPopup" || name == "frmPPrev";
}

void describe(clsLibrary& shared, CommandForm& form, std::string_view caption,
              const std::string& noun) {
  const std::string product = windowing::productName();
  const DescriptionContext context{noun, product, std::string_view(form.name()) == "frmPPrev"};
  const auto description = commandDescription(caption, context);
  // For a caption without description, the status bar stays as it is.
  if (description) shared.STATUSBARCAPTION(form, *description, false);
}

}  // namespace

void clsLibrary::MENUCREATE(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM,
                            const std::string& CAPTION, const std::string& ICONKEY, int PARENT,
                            bool ENABLED, bool CHECKED, int MENUNUMBER) {
  // An item sends its own number as its command. A separator has no caption. Items on the menu bar
  // open menus.
  const bool separator = CAPTION.empty();
  const bool title = PARENT == 0;
  ICOMNUFORM.iconMenus().AddItem(MENUNUMBER, PARENT, CAPTION, ENABLED, CHECKED, MENUNUMBER,
                                 separator, title);
  ICOMNUSETUP(ICOMNUFORM, IMGLSTFORM, MENUNUMBER, ICONKEY);
}

void clsLibrary::ICOMNUSETUP(CommandForm& ICOMNUFORM, CommandForm& IMGLSTFORM, int MENUNUMBER,
                             const std::string& IMAGEKEY) {
  if (IMAGEKEY.empty()) return;
  const int image = imageOfKey(IMAGEKEY);
  controls::ICOMNU& menus = ICOMNUFORM.iconMenus();
  menus.setImages(IMGLSTFORM.imageList());
  menus.ItemIcon(MENUNUMBER, image);
}

void clsLibrary::STATUSTEXTDESC(CommandForm& ICOMNUFORM, CommandForm& SBFORM, int MENUNUMBER,
                                bool SHOWVAL, const std::string& NOUN) {
  CommandForm& owner = itemIsOfStatusForm(ICOMNUFORM) ? SBFORM : ICOMNUFORM;
  const controls::ICOMNU& menus = owner.iconMenus();
  // Deliberate: the flag that is called "show" clears the text. It is set when a menu ends, and no
  // item is given then.
  if (SHOWVAL) {
    STATUSBARCAPTION(SBFORM, "", false);
  } else {
    describe(*this, SBFORM, menus.CAPTION(MENUNUMBER), NOUN);
  }
}

void clsLibrary::GETTBARDESCRIPTIONS(CommandForm& FORM, const std::string& BUTTONKEY,
                                     const std::string& NOUN) {
  for (const Command& command : FORM.commands())
    if (command.picture == BUTTONKEY && !BUTTONKEY.empty())
      return describe(*this, FORM, command.caption, NOUN);
}

}  // namespace library

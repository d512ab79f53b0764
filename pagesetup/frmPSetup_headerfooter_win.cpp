// The second page: header and footer of every printed page. The user types title and fields in the
// samples.
#include <windows.h>

#include <algorithm>

#include "library/clsLibrary_win.h"
#include "library/settings_text.h"
#include "library/stored_settings_win.h"
#include "pagesetup/frmPSetup_design_win.h"
#include "pagesetup/frmPSetup_win.h"
#include "pagesetup/stored_options_win.h"
#include "values/number_text.h"
#include "windowing/container_win.h"

namespace pagesetup {

namespace {

/// The check box of a setting, the check box of its group, and the item of the sample that it shows
/// and hides. For the check box of a group, there is no item.
struct OptionBox {
  Setting option;
  int box;
  int master;
  int sample;
};
// In the order of loading and of setting the defaults. The check box of a group comes after those
// of its items, because it enables them by their state.
// clang-format off
constexpr OptionBox optionBoxes[] = {
  {Setting::footerField1,     id::CHKFOOTFIELD1, id::CHKFOOTER, id::TXTFOOTFIELD1},
  {Setting::footerField2,     id::CHKFOOTFIELD2, id::CHKFOOTER, id::TXTFOOTFIELD2},
  {Setting::footerRule, id::CHKFOOTLINE,   id::CHKFOOTER, id::LNFOOTLINE},
  {Setting::footerPageNumber, id::CHKFOOTPGNO,   id::CHKFOOTER, id::TXTFOOTPGNO},
  {Setting::footer,     id::CHKFOOTER,     id::CHKFOOTER, 0},
  {Setting::headerTitle,      id::CHKHEADTITLE,  id::CHKHEADER, id::TXTHEADTITLE},
  {Setting::headerRule, id::CHKHEADLINE,   id::CHKHEADER, id::LNHEADLINE},
  {Setting::headerDate,       id::CHKHEADDATE,   id::CHKHEADER, id::TXTHEADDATE},
  {Setting::headerTime,       id::CHKHEADTIME,   id::CHKHEADER, id::TXTHEADTIME},
  {Setting::header,     id::CHKHEADER,     id::CHKHEADER, 0},
};

struct OptionText {
  Setting option;
  int box;
  int master;
};
constexpr OptionText optionTexts[] = {
  {Setting::headerTitleText,  id::TXTHEADTITLE,  id::CHKHEADER},
  {Setting::footerField1Text, id::TXTFOOTFIELD1, id::CHKFOOTER},
  {Setting::footerField2Text, id::TXTFOOTFIELD2, id::CHKFOOTER},
};

struct Sample {
  int master;
  int picture;
  int texts[3];
};
constexpr Sample samples[] = {
  {id::CHKHEADER, id::PICHEAD, {id::TXTHEADTITLE, id::TXTHEADDATE, id::TXTHEADTIME}},
  {id::CHKFOOTER, id::PICFOOT, {id::TXTFOOTPGNO, id::TXTFOOTFIELD1, id::TXTFOOTFIELD2}},
};
// clang-format on

constexpr Setting saveOrder[] = {
    Setting::footerRule,       Setting::footerPageNumber, Setting::footerField2,
    Setting::footerField1,     Setting::footer,           Setting::headerTitle,
    Setting::headerRule,       Setting::headerDate,       Setting::headerTime,
    Setting::header,           Setting::headerTitleText,  Setting::footerField1Text,
    Setting::footerField2Text,
};

constexpr bool everyOptionHasItsControl() {
  return std::ranges::all_of(optionRows(), [](const library::SettingRow& row) {
    const bool tick = row.kind == library::SettingKind::tick;
    return std::ranges::count(optionBoxes, row.setting, &OptionBox::option) == (tick ? 1 : 0) &&
           std::ranges::count(optionTexts, row.setting, &OptionText::option) == (tick ? 0 : 1) &&
           std::ranges::count(saveOrder, row.setting) == 1;
  });
}
constexpr bool everyControlIsInTheDesign() {
  const auto designed = [](int control) {
    return std::ranges::count(psetup_design::controls, control, &windowing::ControlDesign::id) == 1;
  };
  return std::ranges::all_of(optionTexts, designed, &OptionText::box) &&
         std::ranges::all_of(optionBoxes, [&](const OptionBox& known) {
           return designed(known.box) && designed(known.master) &&
                  (known.sample == 0 || designed(known.sample));
         });
}
constexpr bool everyCheckBoxHasItsOption() {
  return std::ranges::all_of(psetup_design::controls, [](const windowing::ControlDesign& design) {
    return design.kind.style != windowing::kind::checkBox.style ||
           std::ranges::count(optionBoxes, design.id, &OptionBox::box) == 1;
  });
}
static_assert(everyOptionHasItsControl());
static_assert(everyControlIsInTheDesign());
static_assert(everyCheckBoxHasItsOption());

// The longest text that can be read back from the settings store.
constexpr int longestText = static_cast<int>(library::settingBufferSize) - 1;

const OptionBox* findBox(int box) {
  for (const OptionBox& known : optionBoxes)
    if (known.box == box) return &known;
  return nullptr;
}

int boxOf(Setting option) {
  for (const OptionBox& known : optionBoxes)
    if (known.option == option) return known.box;
  for (const OptionText& known : optionTexts)
    if (known.option == option) return known.box;
  return 0;
}

// State of a check box for its stored text: "1" ticked, "2" greyed, any other text not ticked.
int stateOf(const std::string& text) {
  const std::optional<double> number = values::parseStoredNumber(text, '.');
  for (const int state : {BST_CHECKED, BST_INDETERMINATE})
    if (number == state) return state;
  return BST_UNCHECKED;
}

}  // namespace

void frmPSetup::loadHeaderFooter() {
  for (const OptionText& text : optionTexts) textBox(text.box).setLimit(longestText);
  const HeaderFooterOptions options = readOptions();
  for (const OptionBox& box : optionBoxes) {
    showState(box.box, stateOf(options[box.option]));
    clickBox(box.box);
  }
  for (const OptionText& text : optionTexts) textBox(text.box).setText(options[text.option]);
}

void frmPSetup::saveHeaderFooter() const {
  for (const Setting option : saveOrder) {
    const int box = boxOf(option);
    const bool isSwitch = findBox(box) != nullptr;
    library::writeText(option,
                       isSwitch ? values::integerText(checkBox(box).state()) : control(box).text());
  }
}

void frmPSetup::setDefaultHeaderFooter() {
  const auto tick = [this](int box) {
    if (checkBox(box).state() == BST_CHECKED) return;
    showState(box, BST_CHECKED);
    if (clickBox(box)) enableOK(true);
  };
  tick(id::CHKHEADER);
  tick(id::CHKFOOTER);
  const DefaultTexts texts = defaultTexts();
  for (const OptionText& text : optionTexts) {
    const std::string usual = defaultText(text.option, texts);
    if (control(text.box).text() != usual) control(text.box).setText(usual);
  }
  for (const OptionBox& box : optionBoxes) tick(box.box);
}

// Shows a state. A greyed check box is one only until the first click, which makes it an ordinary
// one.
void frmPSetup::showState(int box, int state) const {
  const WPARAM style = state == BST_INDETERMINATE ? BS_AUTO3STATE : BS_AUTOCHECKBOX;
  checkBox(box).send(BM_SETSTYLE, style, TRUE);
  checkBox(box).setState(state);
}

// Handles a click on a check box of the page. False for any other control.
bool frmPSetup::clickBox(int clicked) {
  const OptionBox* known = findBox(clicked);
  if (known == nullptr) return false;
  if (checkBox(clicked).state() != BST_INDETERMINATE)
    checkBox(clicked).send(BM_SETSTYLE, BS_AUTOCHECKBOX, TRUE);
  if (known->sample == 0) {
    followMaster(clicked);
  } else {
    followItem(clicked);
  }
  return true;
}

void frmPSetup::followMaster(int box) {
  const bool on = checkBox(box).state() == BST_CHECKED;
  for (const OptionBox& item : optionBoxes)
    if (item.master == box && item.sample != 0) control(item.box).setEnabled(on);
  for (const OptionText& text : optionTexts)
    if (text.master == box) textBox(text.box).setReadOnly(!on);
  for (const Sample& sample : samples) {
    if (sample.master != box) continue;
    windowing::setSurface(control(sample.picture).handle(),
                          on ? windowing::Surface::window : windowing::Surface::face);
    for (const int text : sample.texts) control(text).repaint();
  }
}

// Shows the item of a ticked check box in the sample and hides it otherwise. Its text is kept.
void frmPSetup::followItem(int box) const {
  control(findBox(box)->sample).setVisible(checkBox(box).state() == BST_CHECKED);
}

// The texts in the samples have the colour of the sample. The system would paint the read-only ones
// grey.
HBRUSH frmPSetup::onColour(HDC dc, int coloured) {
  for (const Sample& sample : samples)
    for (const int text : sample.texts) {
      if (text != coloured) continue;
      const bool on = checkBox(sample.master).state() == BST_CHECKED;
      SetBkColor(dc, GetSysColor(on ? COLOR_WINDOW : COLOR_BTNFACE));
      SetTextColor(dc, GetSysColor(on ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
      return GetSysColorBrush(on ? COLOR_WINDOW : COLOR_BTNFACE);
    }
  return nullptr;
}

}  // namespace pagesetup

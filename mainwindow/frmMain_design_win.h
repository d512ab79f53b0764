// The design of the main window. Places are twips, 15 to the pixel at 96 dots per inch. The order
// of the rows is the tab order.
#pragma once

#include <array>
#include <cstddef>

#include "controls/TXTBTN_win.h"
#include "document/fields.h"
#include "mainwindow/frmMain_ids.h"
#include "windowing/form_win.h"

namespace mainwindow::design {

using document::Slot;
using windowing::ControlDesign;
using windowing::ControlKind;
namespace kind = windowing::kind;

// Strips and the body.
constexpr int formWidth = 8790;
constexpr int toolbarHeight = 480;
constexpr int headerHeight = 480;
constexpr int statusHeight = 330;
constexpr int tabHeight = 4740;  ///< frames, row of tabs, and room that captions may take
constexpr int bodyMargin = 75;   ///< between the body's edge and the tab strip
constexpr int framesTop = 390;   ///< below the top of the tab strip
constexpr int framesHeight = 4110;
constexpr int framesInset = 30;  ///< from the tab strip's sides
constexpr int framesWidth = formWidth - 2 * bodyMargin - 2 * framesInset;

// Fields: a label above its box.
constexpr int labelHeight = 195;
constexpr int boxHeight = 315;
constexpr int labelPitch = 210;  ///< from a label's top to its box's
constexpr int fieldPitch = 615;  ///< from one label to the next
constexpr int boxPitch = 375;    ///< from a box to one below it that has no label
constexpr int groupTop = 285;    ///< room for a group's caption
constexpr int groupSide = 150;
constexpr int margin = 120;  ///< round and between the groups
constexpr int columnWidth = (framesWidth - 3 * margin) / 2;
constexpr int column2 = 2 * margin + columnWidth;

/// A group box and the fields in it, top to bottom.
struct Group {
  const char* name;
  int id;
  int frame;
  const char* caption;
  int left, top, width, height;
  std::array<int, 6> slots;  ///< -1 ends the list
};

constexpr int slotOf(Slot slot) {
  return static_cast<int>(slot);
}
constexpr int none = -1;
constexpr int threeFields = groupTop + 3 * fieldPitch + 30;
constexpr int extrasTop = 2 * margin + threeFields - 45;

constexpr int sideHeight = framesHeight - 75 - margin;  ///< of the groups of an address

// clang-format off
constexpr std::array<Group, 7> groups{{
  {"FRAMPERSONAL", id::FRAMPERSONAL, id::FRAMGENERAL, "Personal", margin, 75, columnWidth, threeFields,
   {slotOf(Slot::FirstNames), slotOf(Slot::Surname), slotOf(Slot::DateOfBirth), none, none, none}},
  {"FRAMJOB", id::FRAMJOB, id::FRAMGENERAL, "General", column2, 75, columnWidth, threeFields,
   {slotOf(Slot::JobTitle), slotOf(Slot::MobilePhone), slotOf(Slot::Pager), none, none, none}},
  {"FRAMEXTRAS", id::FRAMEXTRAS, id::FRAMGENERAL, "Extras", margin, extrasTop, framesWidth - 2 * margin, framesHeight - margin - extrasTop,
   {slotOf(Slot::Other1), slotOf(Slot::Other2), none, none, none, none}},
  {"FRAMHOMEADDRESS", id::FRAMHOMEADDRESS, id::FRAMADDRESS, "Address", margin, 75, columnWidth, sideHeight,
   {slotOf(Slot::HomeAddress1), slotOf(Slot::HomeAddress2), slotOf(Slot::HomeCity), slotOf(Slot::HomeCountry), slotOf(Slot::HomePostcode), none}},
  {"FRAMHOMECONTACT", id::FRAMHOMECONTACT, id::FRAMADDRESS, "Contact by", column2, 75, columnWidth, sideHeight,
   {slotOf(Slot::HomePhone), slotOf(Slot::HomeFax), slotOf(Slot::HomeEmail), slotOf(Slot::HomeWebsite), none, none}},
  {"FRAMWORKADDRESS", id::FRAMWORKADDRESS, id::FRAMADDRESSWORK, "Address", margin, 75, columnWidth, sideHeight,
   {slotOf(Slot::Company), slotOf(Slot::WorkAddress1), slotOf(Slot::WorkAddress2), slotOf(Slot::WorkCity), slotOf(Slot::WorkCountry), slotOf(Slot::WorkPostcode)}},
  {"FRAMWORKCONTACT", id::FRAMWORKCONTACT, id::FRAMADDRESSWORK, "Contact by", column2, 75, columnWidth, sideHeight,
   {slotOf(Slot::WorkPhone), slotOf(Slot::WorkFax), slotOf(Slot::WorkEmail), slotOf(Slot::WorkWebsite), none, none}},
}};
// clang-format on

// The comments box takes the right of the Extras group.
constexpr int commentsLeft = column2 + groupSide;
constexpr int commentsWidth = columnWidth - 2 * groupSide;

constexpr const char* boxName(document::Box box) {
  constexpr std::array<const char*, 5> names{"TXTITEMS", "CBOPEMAIL", "CBOPWORKEMAIL",
                                             "CBOPWEBSITE", "CBOPWORKWEBSITE"};
  return names[static_cast<std::size_t>(box)];
}

/// Identifier of the control that shows a field.
constexpr int boxId(const document::Field& field) {
  switch (field.box) {
    case document::Box::CBOPEMAIL:
      return id::CBOPEMAIL;
    case document::Box::CBOPWORKEMAIL:
      return id::CBOPWORKEMAIL;
    case document::Box::CBOPWEBSITE:
      return id::CBOPWEBSITE;
    case document::Box::CBOPWORKWEBSITE:
      return id::CBOPWORKWEBSITE;
    case document::Box::TXTITEMS:
      break;
  }
  return id::TXTITEMS + field.item;
}

constexpr ControlKind boxKind(const document::Field& field) {
  if (field.box != document::Box::TXTITEMS) return controls::linkBoxKind;
  return field.slot == Slot::Comments ? kind::multilineBox : kind::textBox;
}

constexpr int frameLeft = bodyMargin + framesInset;
constexpr int frameTop = bodyMargin + framesTop;
constexpr ControlDesign frame(const char* name, int frameId) {
  return {name,        frameId,      kind::page,    "", frameLeft, frameTop,
          framesWidth, framesHeight, id::PICMAINBOX};
}

/// The pages in the order of their tabs.
inline constexpr std::array pages{id::FRAMGENERAL, id::FRAMADDRESS, id::FRAMADDRESSWORK};

// clang-format off
constexpr ControlDesign strips[] = {
  {"PICMAINTBAR", id::PICMAINTBAR, kind::container,    "", 0, 0, formWidth, toolbarHeight},
  {"TBARMAIN",    id::TBARMAIN,    kind::toolBar,      "", 60, 45, 5400, 390, id::PICMAINTBAR},
  {"CBOTBARBOX",  id::CBOTBARBOX,  kind::dropDownList, "", 5820, 75, 2850, 315, id::PICMAINTBAR},
  {"PICHEADER",   id::PICHEADER,   kind::container,    "", 0, toolbarHeight, formWidth, headerHeight},
  {"LBLDESC",     id::LBLDESC,     kind::plainLabel,   "", 150, 105, formWidth - 300, 270, id::PICHEADER, SS_PATHELLIPSIS},
  {"PICMAINBOX",  id::PICMAINBOX,  kind::container,    "", 0, toolbarHeight + headerHeight, formWidth, tabHeight + 90},
  {"TABMAIN",     id::TABMAIN,     kind::tabStrip,     "", bodyMargin, bodyMargin, formWidth - 2 * bodyMargin, tabHeight, id::PICMAINBOX},
  frame("FRAMGENERAL",     id::FRAMGENERAL),
  frame("FRAMADDRESS",     id::FRAMADDRESS),
  frame("FRAMADDRESSWORK", id::FRAMADDRESSWORK),
};
// clang-format on

constexpr std::size_t labelled = [] {
  std::size_t count = 0;
  for (const document::Field& field : document::fields) count += field.caption.empty() ? 0 : 1;
  return count;
}();
constexpr std::size_t controlCount =
    std::size(strips) + groups.size() + document::fieldCount + labelled + 1;

/// All controls: the strips, then each group with its labels and boxes, then the status bar.
constexpr std::array<ControlDesign, controlCount> controls = [] {
  std::array<ControlDesign, controlCount> made{};
  std::size_t at = 0;
  const auto field = [&](int slot, int container, int left, int& top, int width, int height) {
    const document::Field& shown = document::fields[static_cast<std::size_t>(slot)];
    if (!shown.caption.empty()) {
      made[at++] = {"LBLITEMS",  boxId(shown) + id::labelOffset,
                    kind::label, shown.caption.data(),
                    left,        top,
                    width,       labelHeight,
                    container};
      top += labelPitch;
    } else {
      top += boxPitch + labelPitch - fieldPitch;
    }
    made[at++] = {boxName(shown.box), boxId(shown), boxKind(shown), "", left, top, width, height,
                  container};
    top += fieldPitch - labelPitch;
  };
  for (const ControlDesign& strip : strips) made[at++] = strip;
  for (const Group& group : groups) {
    made[at++] = {group.name, group.id,    kind::group,  group.caption, group.left,
                  group.top,  group.width, group.height, group.frame};
    int top = group.top + groupTop;
    const bool extras = group.id == id::FRAMEXTRAS;
    const int width = (extras ? columnWidth : group.width) - 2 * groupSide;
    for (int slot : group.slots)
      if (slot != none) field(slot, group.frame, group.left + groupSide, top, width, boxHeight);
    if (extras) {
      int commentsTop = group.top + groupTop;
      field(slotOf(Slot::Comments), group.frame, commentsLeft, commentsTop, commentsWidth,
            group.height - groupTop - labelPitch - groupSide);
    }
  }
  made[at++] = {"SBMAIN", id::SBMAIN, kind::statusBar, "", 0, 0, formWidth, statusHeight};
  return made;
}();
static_assert(controls.back().id == id::SBMAIN, "every row is filled");

constexpr windowing::FormDesign form{"frmMain",
                                     "",  // the product's name, set when the form loads
                                     WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX,
                                     0,
                                     formWidth,
                                     toolbarHeight + headerHeight + tabHeight + 90 + statusHeight,
                                     controls};

}  // namespace mainwindow::design

// The about box: what the program is, whose copy it is and who wrote it.
#pragma once

#include "windowing/form_win.h"

namespace dialogs {

/// Shown modally, always in the middle of the screen; its place is not stored.
class frmAbout : public windowing::Form {
 public:
  frmAbout();

 protected:
  void onLoad() override;
  void onClick(int id) override;
  void onEnter() override { unload(); }
  void onEscape() override { unload(); }
  HBRUSH onColour(HDC dc, int id) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void drawLogo(HDC dc, const RECT& area) const;

  HCURSOR logoPointer_ = nullptr;
};

}  // namespace dialogs

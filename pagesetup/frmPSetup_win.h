// The page setup: printer, paper, orientation and margins on one page, header and footer on the
// other.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/SPIN_win.h"
#include "pagesetup/header_footer.h"
#include "pagesetup/sample_page.h"
#include "windowing/form_win.h"

namespace pagesetup {

/// Printer, paper and orientation change the current printer when they are chosen, and stay changed
/// after Cancel. OK stores them for the next time that the form loads, and writes margins, header
/// and footer. Show it modally.
class frmPSetup : public windowing::Form {
 public:
  frmPSetup();
  ~frmPSetup() override { unload(); }

  /// Shows the page with this key, "PAGE" or "HEADERFOOTER", of the loaded form. Does nothing for
  /// any other key.
  void selectTab(std::string_view key);

  /// The sample as it was drawn last; no value while the printer has not reported a paper.
  [[nodiscard]] const std::optional<SamplePage>& sample() const { return sample_; }

  bool handleKey(const MSG& message) override;

 protected:
  void onLoad() override;
  void onUnload() override;
  void onClick(int id) override;
  void onChange(int id) override;
  void onSelect(int id) override;
  void onNotice(int id, int notice) override;
  void onTab(int id) override;
  void onEnter() override;
  void onEscape() override { unload(); }
  HBRUSH onColour(HDC dc, int id) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  // frmPSetup_win.cpp
  void showPage(std::string_view key);
  void enableOK(bool on) const { control("BTNOK").setEnabled(on); }
  void acceptAll();
  bool goToNextOf(WPARAM letter);

  // Printer, paper, orientation and margins (frmPSetup_page_win.cpp).
  void loadPage();
  void fillPrinters();
  void showPrinter() const;
  void fillPapers() const;
  void showPaper() const;
  void showOrientation() const;
  void loadMargins() const;
  void saveMargins() const;
  void choosePrinter();
  void choosePaper();
  void chooseOrientation(int option);
  void setDefaultMargins() const;
  void copyRemembered();
  void remember() const;
  void applyChoices() const;
  void readPaper();
  void drawSample();
  void paintSample(const DRAWITEMSTRUCT& item) const;

  // Header and footer (frmPSetup_headerfooter_win.cpp).
  void loadHeaderFooter();
  void saveHeaderFooter() const;
  void setDefaultHeaderFooter();
  bool clickBox(int id);
  void showState(int box, int state) const;
  void followMaster(int box);
  void followItem(int box) const;

  [[nodiscard]] windowing::TabStrip TABSTRIP1() const;
  [[nodiscard]] windowing::ComboBox CBOPRINTERS() const;
  [[nodiscard]] windowing::ComboBox CBOPAPER() const;
  [[nodiscard]] windowing::CheckBox checkBox(int id) const;
  [[nodiscard]] windowing::TextBox textBox(int id) const;
  [[nodiscard]] controls::SPIN margin(int id) const;

  bool committed_ = false;
  std::string paperCode_;            ///< decimal; empty until a paper is chosen or read from before
  std::string orientation_;          ///< "1" portrait, "2" landscape
  std::optional<PaperFacts> paper_;  ///< as the printer reported it last
  std::optional<SamplePage> sample_;
};

}  // namespace pagesetup

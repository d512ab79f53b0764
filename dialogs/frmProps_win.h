// The properties of the open document: facts about its file, figures of its text and, in those of
// the maker's products that show pictures, facts about the picture.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialogs/file_facts_win.h"
#include "dialogs/report_paper_win.h"
#include "windowing/form_win.h"

namespace dialogs {

/// The document and its kind are the program-wide ones of `library::modLibrary`; the caller sets
/// them and shows the form modally.
class frmProps : public windowing::Form {
 public:
  frmProps();
  ~frmProps() override { unload(); }

  /// Sets the function that gives the text to count. Without it, or where it raises an error, the
  /// figures stay empty.
  void setDocumentText(std::function<std::string()> text) { documentText_ = std::move(text); }
  /// Sets a function that gives the paper, in place of the current printer.
  void setPaper(std::function<ReportPaper()> paper) { paper_ = std::move(paper); }

  /// Fills the loaded form anew, for the current document and its kind.
  void UPDATEINFO();
  /// Whether the document's file is marked read-only.
  [[nodiscard]] bool ATTRREADONLY() const;
  /// `path` spelled as on the disk; see library/proper_case_win.h.
  [[nodiscard]] static std::string PROPERCASEPATH(const std::string& path);
  /// `text` up to its first NUL.
  [[nodiscard]] static std::string TRIMNULL(const std::string& text);

 protected:
  void onLoad() override;
  void onUnload() override;
  void onClick(int id) override;
  void onTab(int id) override;
  void onEnter() override { unload(); }
  void onEscape() override { unload(); }
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void fillGeneral();
  void fillDocument();
  void fillPicture();
  void showTabs(const std::vector<int>& frames);
  void showPage(int index);
  void showAttributes();
  void showIcon(HICON icon) const;
  void changeReadOnly();
  void drawTickLabel(const DRAWITEMSTRUCT& item) const;
  [[nodiscard]] int documentLines(const std::string& text) const;
  [[nodiscard]] int documentPages(int lines) const;

  [[nodiscard]] windowing::TabStrip TABPROPS() const;
  [[nodiscard]] windowing::CheckBox CHKATTR(int index) const;

  std::function<std::string()> documentText_;
  std::function<ReportPaper()> paper_ = [] { return reportPaper(paper::printer()); };
  std::vector<int> frames_;  ///< the pages, in the order of their tabs
  std::string path_;         ///< the file whose facts are shown; empty where there is none
  FileFacts facts_;
};

}  // namespace dialogs

// The main window: one contact at a time on three pages, the document it belongs to, and all
// commands.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/ContactList.h"
#include "files/file_calls_win.h"
#include "library/command_form_win.h"
#include "library/settings.h"
#include "mainwindow/document_file_win.h"
#include "paper/richtextbox_win.h"
#include "values/runtime_error.h"

namespace mainwindow {

class frmMain : public library::CommandForm {
 public:
  frmMain();

  /// Replaces the list with a file's contacts. Raises when the file cannot be read to its end; the
  /// complete contacts up to that place are then in the list and on screen. Changes neither the
  /// title nor the stored folder.
  void FILELOAD(const std::string& path);
  /// Writes the whole list to a file, with the edits on screen. Raises when the file cannot be
  /// written; the file is then unchanged and the document still modified.
  void FILESAVEAS(const std::string& path);
  /// Sets the modified state, which is stored only as the enabled state of the Save command. `flag`
  /// is "True" or "False" in any case. Also updates field colours and status text.
  void SETSAVE(const std::string& flag);
  /// Shows the document's path in the header band; "Untitled" where it has none.
  void SETTITLE(const std::string& path);

  /// Opens the document that the command line names: stores its path and folder, reads it and shows
  /// its title. An error of reading is not reported.
  void openNamedAtStart(const std::string& path);

  [[nodiscard]] const document::ContactList& contacts() const { return list_; }
  [[nodiscard]] const std::string& documentPath() const { return CMD1.fileName; }
  [[nodiscard]] bool modified() const;

  /// Sets the calls through which documents are read and written; a test gives some that fail.
  void setFileCalls(files::FileCalls& calls) { fileCalls_ = &calls; }

 protected:
  void onLoad() override;
  bool onQueryUnload() override;
  void onUnload() override;
  void carryOut(int command, bool byButton) override;
  void arrange() override;
  void viewChanged() override;
  void onChange(int id) override;
  void onSelect(int id) override;
  void onNotice(int id, int notice) override;
  void onTab(int id) override;
  LRESULT handleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  /// The file dialog that Open and Save As share: its file name is the document's path.
  struct FileDialogState {
    std::string fileName;
  };

  struct BoxOnPage {
    const document::Field* field;
    windowing::TextBox box;
  };

  // Contacts on screen (frmMain_contacts_win.cpp).
  void ShowCurrent();
  void StoreCurrent();
  void AddContact();
  void RemoveContact();
  void move(void (frmMain::*step)());
  void GoFirst();
  void GoPrevious();
  void GoNext();
  void GoLast();
  void goTo(int index);
  void emptyFields();
  void showTexts(const document::ContactList::Texts& texts);
  bool showField(const BoxOnPage& box, std::string_view text);
  void setShownWhole(bool whole);
  void tellUnshown();
  void rewriteNameEntry();
  void refreshFieldState();
  void refreshStatusText();
  [[nodiscard]] std::vector<BoxOnPage> boxesOn(std::span<const int> pages) const;
  void makePage(int page);
  void showPage(int index);
  void focusFirstField();

  // Links (frmMain_links_win.cpp).
  void setLinkButton(int box);
  void checkWebAddress(int id);
  void openLink(int id);
  void openMakerSite();

  // Printing (frmMain_print_win.cpp).
  void ComposeContactReport();
  [[nodiscard]] paper::RichTextBox& RTF1();
  void printAtOnce();
  void printLastReport();
  void previewLastReport();

  // The document (frmMain_document_win.cpp).
  void newDocument();
  void openDocument();
  void startNewDocument();
  bool SaveDocument();
  bool saveAs();
  bool mayDiscard(int question);
  bool saveTo(const std::string& path);
  void openPath(const std::string& path);
  void setDocumentPath(const std::string& path);
  void tellUnread(const std::string& path, const values::RuntimeError& error);
  [[nodiscard]] std::string rememberedFolder(library::Setting setting) const;
  void rememberFolder(library::Setting setting, const std::string& file);

  // Dialogs (frmMain_dialogs_win.cpp).
  /// The 28 texts of the contact on screen. They are those of the boxes, with edits. A text whose
  /// box is not made yet or could not take it comes from the list.
  [[nodiscard]] document::ContactRecord valuesOnScreen() const;
  void showProperties();

  // Commands and layout (frmMain_commands_win.cpp, frmMain_layout_win.cpp).
  void RefreshCommands();
  void addByUser();
  void layOut();

  [[nodiscard]] windowing::ComboBox CBOTBARBOX() const;
  [[nodiscard]] windowing::TabStrip TABMAIN() const;
  [[nodiscard]] windowing::TextBox TXTITEMS(int index) const;

  /// The window posts this to itself where it could not show a contact whole.
  static constexpr UINT unshownMessage = WM_APP + 1;

  document::ContactList list_;
  std::vector<int> madePages_;  ///< pages whose boxes are made and filled
  /// By slot: the text that each box gave back after it was filled. Only a box with another text
  /// was edited. So bytes that a box cannot hold are not lost when a contact is shown.
  std::array<std::string, document::fieldCount> shown_;
  FileDialogState CMD1;
  paper::RichTextBox RTF1_{"RTF1"};
  files::FileCalls realFileCalls_;
  files::FileCalls* fileCalls_ = &realFileCalls_;
  bool filling_ = false;      ///< the program itself is changing the boxes
  bool asking_ = false;       ///< the question of `mayDiscard` is on screen
  bool shownWhole_ = true;    ///< the boxes hold the whole contact; otherwise they are locked
  bool unshownTold_ = false;  ///< the user was told that this document has a contact like that
  bool readWhole_ = true;     ///< the file was read to its end, so that Save may write over it
  /// Size and time of the document's file when this program last read or wrote it; no value where
  /// there was no file.
  std::optional<FileStamp> onDisk_;
};

}  // namespace mainwindow

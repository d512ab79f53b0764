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

  /// Replaces the list with a file's contacts. Raises what keeps the file from being read to
  /// its end; the complete contacts before that place are in the list and on screen then.
  /// Changes neither the title nor a remembered folder.
  void FILELOAD(const std::string& path);
  /// Writes the whole list to a file, the edits on screen included. Raises what keeps the file
  /// from being written; it is as it was then, and the document still modified.
  void FILESAVEAS(const std::string& path);
  /// Sets the modified state, which is the enabled state of the Save command and nothing else.
  /// `flag` is a truth value as text, in any case. Refreshes field colours and status text.
  void SETSAVE(const std::string& flag);
  /// Shows the document's path, or that it has none, in the header band.
  void SETTITLE(const std::string& path);

  /// Opens a document named at start: remembers its path and folder, reads it, shows its title.
  /// Nothing is told when it cannot be read.
  void openNamedAtStart(const std::string& path);

  [[nodiscard]] const document::ContactList& contacts() const { return list_; }
  [[nodiscard]] const std::string& documentPath() const { return CMD1.fileName; }
  [[nodiscard]] bool modified() const;

  /// The calls through which documents are written; a test lets them fail.
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
  /// The 28 texts as they stand in the boxes, edits included; where there is no box yet, or it
  /// could not take its text, as they are in the list.
  [[nodiscard]] document::ContactRecord valuesOnScreen() const;
  void showProperties();

  // Commands and layout (frmMain_commands_win.cpp, frmMain_layout_win.cpp).
  void RefreshCommands();
  void addByUser();
  void layOut();

  [[nodiscard]] windowing::ComboBox CBOTBARBOX() const;
  [[nodiscard]] windowing::TabStrip TABMAIN() const;
  [[nodiscard]] windowing::TextBox TXTITEMS(int index) const;

  /// Posted to itself where a contact could not be shown whole.
  static constexpr UINT unshownMessage = WM_APP + 1;

  document::ContactList list_;
  std::vector<int> madePages_;  ///< a text of another page, which has no boxes yet, is in the list
  /// Text of each box, by slot, as the box gave it back after it was filled: only what differs
  /// from it was edited, and bytes that a box cannot carry survive a visit.
  std::array<std::string, document::fieldCount> shown_;
  FileDialogState CMD1;
  paper::RichTextBox RTF1_{"RTF1"};
  files::FileCalls realFileCalls_;
  files::FileCalls* fileCalls_ = &realFileCalls_;
  bool filling_ = false;    ///< the program itself changes the boxes
  bool asking_ = false;     ///< the user is asked whether the document may be given up
  bool shownWhole_ = true;  ///< the boxes have taken the contact on screen; if not, they are locked
  bool unshownTold_ = false;  ///< the user knows that this document has such a contact
  bool readWhole_ = true;     ///< the document's file holds nothing that the list does not
  /// The document's file as this program read or wrote it last; nothing where it was not there.
  std::optional<FileStamp> onDisk_;
};

}  // namespace mainwindow

// Starting, with and without a document.
#include "tests/app/support/fixture_win.h"

namespace {

using drive::Contact;
using drive::place;
using drive::Program;
namespace id = mainwindow::id;

class Start : public drive::AppTest {};

TEST_F(Start, WithoutArgumentsShowsAnEmptyUntitledDocument) {
  const Program& program = start();
  EXPECT_EQ(program.focus(), id::textItem(1)) << "ready to type";
  expectUntitled();
  // Save is not available: it does nothing.
  program.command(id::SAVE);
  EXPECT_FALSE(program.hasDialog());
  EXPECT_EQ(setting("frmMain\\Items", "CMD Open Folder"), "(none)");
  close();
}

TEST_F(Start, OpensASampleInAWindowOfItsOwnEachTime) {
  const Program& program = start(sample());
  EXPECT_EQ(program.title(), titleOf(sample()));
  EXPECT_EQ(program.text(id::textItem(1)), "Zo\xEB Harriet");
  EXPECT_EQ(program.text(id::textItem(22)),
            "Ring the bell twice, the first ring is never heard.\r\n\r\nBrings her own tea.\r\n"
            "Lends out the dinghy; ask a week ahead.");
  EXPECT_FALSE(program.modified());
  const Program second(sample());
  EXPECT_NE(program.processId(), second.processId());
  EXPECT_EQ(second.title(), program.title());
}

// The whole tail is one path; the title has the letters of the disk.
TEST_F(Start, TakesARelativePathWithBlanksAndAccentsInCapitals) {
  const std::string folder = path("Zo\xEB's caf\xE9");
  ASSERT_TRUE(CreateDirectoryA(folder.c_str(), nullptr));
  std::vector<Contact> contacts = drive::fullContacts(2);
  const std::string file = write("Zo\xEB's caf\xE9\\Mes Amis -x.tly", drive::bytesOf(contacts));
  SetCurrentDirectoryA(this->folder().c_str());
  const Program& program = start("ZO\xCB'S CAF\xC9\\MES AMIS -X.TLY");
  SetCurrentDirectoryA("C:\\");

  EXPECT_EQ(program.title(), titleOf(file));
  EXPECT_EQ(setting("frmMain\\Items", "CMD Open Folder"), folder);
  EXPECT_FALSE(program.modified());
  expectShown(contacts[0]);
  // Saving writes to this very file, without a dialog.
  program.enter(id::textItem(0), "M\xFCller");
  contacts[0][drive::surname] = "M\xFCller";
  program.command(id::SAVE);
  EXPECT_FALSE(program.hasDialog());
  EXPECT_EQ(read(file), drive::bytesOf(contacts));
}

std::string copies(int count) {
  std::string bytes;
  for (int i = 0; i < 28 * count; ++i) bytes.append("\"x\"\r\n");
  return bytes;
}

// The program runs, tells nothing, shows what it read, and leaves the file alone.
TEST_F(Start, WithWhatIsNoDocumentShowsSilentlyWhatCouldBeRead) {
  const std::string two = drive::bytesOf(drive::fullContacts(2));
  const std::string bystander = write("bystander.tly", two);
  std::string oneLine;
  oneLine.resize(200'000'000, 'x');
  const struct {
    std::string file;   // path, or name in the scratch folder
    std::string bytes;  // what is written there; nothing for none
    int contacts;       // how many are shown
  } inputs[] = {{path("nobody.tly"), "", 0},
                {"C:\\windows", "", 0},
                {"NUL", "", 0},
                {"C:\\" + std::string(400, 'n') + ".tly", "", 0},
                {path("*.tly"), "", 0},
                {"cut.tly", two.substr(0, two.size() - 20), 1},
                {"quote.tly", two + "\"never closed\r\n\r\nx\r\n", 2},
                {"zero.tly", std::string("\"a\0b\"\r\n", 7) + copies(2).substr(5), 2},
                {"full.tly", copies(32768), 32767},
                {"huge.tly", oneLine, 0}};
  for (const auto& input : inputs) {
    SCOPED_TRACE(input.file);
    const std::string file = input.bytes.empty() ? input.file : write(input.file, input.bytes);
    const Program& program = start(file);
    EXPECT_FALSE(program.hasDialog());
    const std::string name = file.substr(file.rfind('\\') + 1);
    EXPECT_TRUE(program.title().ends_with(name + ")")) << program.title();
    EXPECT_EQ(program.status(), input.contacts == 0 ? "" : place(1, input.contacts));
    EXPECT_EQ(program.send(program.control(id::CBOTBARBOX), CB_GETCOUNT), input.contacts);
    EXPECT_FALSE(program.modified());
    EXPECT_EQ(program.enabled(id::textItem(0)), input.contacts > 0);
    EXPECT_EQ(program.buttonEnabled(id::REMOVE), input.contacts > 0);
    EXPECT_EQ(program.buttonEnabled(id::LAST), input.contacts > 1);
    close();
    EXPECT_TRUE(input.bytes.empty() || read(file) == input.bytes);
  }
  EXPECT_EQ(read(bystander), two);
}

}  // namespace

// Writes a document of invented contacts, the same for the same count and seed:
//   generate_contacts COUNT [SEED [FILE]]
// Without FILE it goes to standard output. The companies are invented, the telephone numbers are
// reserved for fiction and the domains of mail and web addresses for examples. Texts are bytes of
// the Western code page.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "document/ContactList.h"
#include "document/writer.h"

namespace {

using document::ContactList;
using document::Slot;

/// A small random generator, because those of the C++ library differ between compilers.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  /// 0 to `sides` - 1.
  std::size_t roll(std::size_t sides) {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = (state_ ^ (state_ >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return static_cast<std::size_t>((mixed ^ (mixed >> 31)) % sides);
  }
  bool chance(std::size_t percent) { return roll(100) < percent; }
  template <typename T>
  const T& pick(const std::vector<T>& from) {
    return from[roll(from.size())];
  }
  /// `pattern` with each # replaced by a digit and each @ by a capital letter.
  std::string fill(std::string_view pattern) {
    std::string text(pattern);
    for (char& c : text) {
      if (c == '#') c = static_cast<char>('0' + roll(10));
      if (c == '@') c = "ABDEFGHJLNPQRSTUWXYZ"[roll(20)];
    }
    return text;
  }

 private:
  std::uint64_t state_;
};

/// A name as it is written, and as it is in a mail address.
struct Name {
  std::string_view text;
  std::string_view plain;
};

struct Country {
  std::string_view name;
  std::string_view postcode;
  std::string_view phone;
  std::string_view mobile;
  bool numberFirst;  ///< "12 Long Lane" or "Lange Gasse 12"
  std::vector<std::string_view> cities;
  std::vector<std::string_view> streets;
  std::vector<Name> firstNames;
  std::vector<Name> surnames;
};

// clang-format off
const std::vector<Country> countries{
    {"United Kingdom", "@@# #@@", "+44 1632 960###", "+44 7700 900###", true,
     {"Lower Wickham", "Ashcombe", "Thornby Market", "Saltmarsh", "Kelderfield"},
     {"Orchard Lane", "Mill Rise", "Old Chapel Road", "Quarry Close", "The Green"},
     {{"Harriet", "harriet"}, {"Callum", "callum"}, {"Zo\xEB", "zoe"}, {"Imogen", "imogen"}, {"Rhys", "rhys"}, {"Chlo\xE9", "chloe"}},
     {{"Wexcombe", "wexcombe"}, {"Thistlebrook", "thistlebrook"}, {"O'Dunmarrow", "odunmarrow"}, {"Pennyfold", "pennyfold"}, {"Garrowby-Lisle", "garrowby"}}},
    {"United States", "#####", "+1 ### 555-01##", "+1 ### 555-01##", true,
     {"Cedar Hollow, OR", "Marlin Bay, ME", "Prairie Gate, KS", "Dos Lomas, NM"},
     {"Juniper Street", "Second Avenue", "Lakeview Drive", "Depot Road, Suite 4"},
     {{"Dwight", "dwight"}, {"Marisol", "marisol"}, {"Tamika", "tamika"}, {"Ren\xE9" "e", "renee"}, {"Jos\xE9", "jose"}},
     {{"Halvorquist", "halvorquist"}, {"Pe\xF1" "aluz", "penaluz"}, {"Brandywell", "brandywell"}, {"Okonjade", "okonjade"}}},
    {"France", "#####", "+33 1 99 00 ## ##", "+33 6 39 98 ## ##", true,
     {"Saint-Aubr\xE9", "Ch\xE2teau-Lierre", "Mont\xE9" "clair-sur-Oise", "Vielleroche"},
     {"rue des Tilleuls", "all\xE9" "e du Ch\xEAne", "place de la Fontaine", "impasse Cl\xE9" "mence"},
     {{"Aur\xE9lie", "aurelie"}, {"Beno\xEEt", "benoit"}, {"Ma\xEBlle", "maelle"}, {"Fran\xE7ois", "francois"}, {"Th\xE9o", "theo"}},
     {{"Lef\xE8" "vrigny", "lefevrigny"}, {"Dubosquet", "dubosquet"}, {"C\x9Curdelys", "coeurdelys"}, {"Garan\xE7on", "garancon"}}},
    {"Deutschland", "#####", "+49 30 23125 ###", "+49 171 39200##", false,
     {"Obernwies", "Gr\xFCnh\xFCtte", "K\xF6stritzberg", "Altenm\xFChl"},
     {"Lindenstra\xDF" "e", "Am M\xFChlbach", "Schulgasse", "Gro\xDF" "er Ring"},
     {{"J\xFCrgen", "juergen"}, {"K\xE4the", "kaethe"}, {"S\xF6nke", "soenke"}, {"Anneliese", "anneliese"}, {"Matthias", "matthias"}},
     {{"M\xFCllerbach", "muellerbach"}, {"Gro\xDFkreuter", "grosskreuter"}, {"Wei\xDF" "dorn", "weissdorn"}, {"Schr\xF6terling", "schroeterling"}}},
    {"Sverige", "### ##", "+46 8 465 004 ##", "+46 70 174 06 5#", false,
     {"\xC5vikstorp", "\xD6sterhamra", "Bj\xF6rkn\xE4sby", "Sm\xE5lund"},
     {"Storgatan", "Bj\xF6rkv\xE4gen", "Kyrkog\xE5rden", "\xC4ngsstigen"},
     {{"\xC5sa", "asa"}, {"Bj\xF6rn", "bjorn"}, {"G\xF6ran", "goran"}, {"Linn\xE9" "a", "linnea"}},
     {{"\xC5kerlind", "akerlind"}, {"Sj\xF6torp", "sjotorp"}, {"Lindqvarn", "lindqvarn"}, {"\xD6stermark", "ostermark"}}},
    {"Australia", "####", "+61 2 5550 ####", "+61 491 570 156", true,
     {"Wattle Flat, NSW", "Port Carrow, VIC", "Dingle Creek, QLD"},
     {"Banksia Street", "Station Road", "Esplanade, Unit 7"},
     {{"Bronwyn", "bronwyn"}, {"Lachlan", "lachlan"}, {"Matilda", "matilda"}, {"Jarrah", "jarrah"}},
     {{"Carrowdale", "carrowdale"}, {"Nguyen-Platt", "nguyenplatt"}, {"Wollaroi", "wollaroi"}, {"Farthingay", "farthingay"}}},
};

const std::vector<std::string_view> jobs{
    "Bookbinder", "Marine surveyor", "Ma\xEEtre d'h\xF4tel", "Teacher", "Nurse", "Electrician", "Piano tuner",
    "Attach\xE9 de presse", "Baker", "Translator", "Gesch\344ftsf\374hrer", "Archivist", "Bus driver"};
const std::vector<std::string_view> companyWords{
    "Quorvane", "Lindrath", "Pellomar", "Zarvent", "Ondrille", "Brastow", "Fj\xE4llmera", "Ch\xEAnoir", "M\xFChlrad"};
const std::vector<std::string_view> companyTrades{
    " & Daughters", " Ltd", " Bindery", " GmbH", " AB", " Fr\xE8res", " Pty", " Gardens", " Instruments", " Tea Rooms"};
const std::vector<std::string_view> others{
    "Shoe size 41", "Allergic to nuts", "Spouse: Robin", "Customer since 1998", "Key is with the neighbour",
    "Prefers letters", "Cat: Mi\xF1o", "Birthday card sent"};
const std::vector<std::string_view> remarks{
    "Met at the caf\xE9 by the harbour.", "Call after six, never on Sundays.", "Owes us one jar of honey \x96 raspberry.",
    "Ring the bell twice.", "Na\xEFve about prices, but honest.", "Lends out the ladder.", "Knows the best walk round the lake.",
    "Dinner cost \x80 42, our turn next.", "Children: Ida, No\xE9 and Pim.", "Send the photographs of the f\xEAte.",
    "Speaks Portuguese, Frisian and some Welsh.", "Moved in spring; the old address is void."};
// clang-format on

std::string address(Dice& dice, const Country& country) {
  const std::string number = std::to_string(1 + dice.roll(240));
  const std::string street(dice.pick(country.streets));
  return country.numberFirst ? number + " " + street : street + " " + number;
}

std::string comments(Dice& dice) {
  std::string text;
  for (std::size_t lines = 1 + dice.roll(4); lines > 0; --lines) {
    if (!text.empty()) text += "\r\n";
    text += dice.pick(remarks);
  }
  return text;
}

std::string birthday(Dice& dice) {
  return std::to_string(10 + dice.roll(18)) + ".0" + std::to_string(1 + dice.roll(9)) + ".19" +
         std::to_string(40 + dice.roll(60));
}

class Author {
 public:
  Author(Dice& dice, ContactList& list) : dice_(dice), list_(list) {}

  void addContact() {
    if (!list_.append()) return;
    const Country& country = dice_.pick(countries);
    const Name& first = dice_.pick(country.firstNames);
    const Name& last = dice_.pick(country.surnames);
    put(Slot::Surname, last.text, 99);
    put(Slot::FirstNames, first.text, 97);
    put(Slot::DateOfBirth, birthday(dice_), 55);
    put(Slot::JobTitle, dice_.pick(jobs), 60);
    put(Slot::MobilePhone, dice_.fill(country.mobile), 75);
    put(Slot::Pager, dice_.fill(country.mobile), 4);
    put(Slot::Other1, dice_.pick(others), 15);
    put(Slot::Other2, dice_.pick(others), 8);
    if (dice_.chance(45)) put(Slot::Comments, comments(dice_), 100);
    const std::string mail = std::string(first.plain) + "." + std::string(last.plain);
    if (dice_.chance(90)) addHome(country, mail);
    if (dice_.chance(50)) addWork(country, mail);
  }

 private:
  /// Fills a field in the given share of cases.
  void put(Slot slot, std::string_view text, std::size_t percent) {
    if (dice_.chance(percent)) list_.store(list_.count() - 1, slot, text);
  }

  void addHome(const Country& country, const std::string& mail) {
    put(Slot::HomeAddress1, address(dice_, country), 95);
    put(Slot::HomeAddress2, dice_.fill("Flat #"), 12);
    put(Slot::HomeCity, dice_.pick(country.cities), 95);
    put(Slot::HomeCountry, country.name, 70);
    put(Slot::HomePostcode, dice_.fill(country.postcode), 90);
    put(Slot::HomePhone, dice_.fill(country.phone), 70);
    put(Slot::HomeFax, dice_.fill(country.phone), 6);
    put(Slot::HomeEmail, mail + (dice_.chance(50) ? "@example.com" : "@example.org"), 85);
    put(Slot::HomeWebsite, "http://www.example.net/" + mail, 12);
  }

  void addWork(const Country& country, const std::string& mail) {
    put(Slot::Company,
        std::string(dice_.pick(companyWords)) + std::string(dice_.pick(companyTrades)), 95);
    put(Slot::WorkAddress1, address(dice_, country), 85);
    put(Slot::WorkAddress2, dice_.fill("Building @"), 20);
    put(Slot::WorkCity, dice_.pick(country.cities), 90);
    put(Slot::WorkCountry, country.name, 60);
    put(Slot::WorkPostcode, dice_.fill(country.postcode), 85);
    put(Slot::WorkPhone, dice_.fill(country.phone), 85);
    put(Slot::WorkFax, dice_.fill(country.phone), 30);
    put(Slot::WorkEmail, mail + "@office.example", 80);
    put(Slot::WorkWebsite, "http://office.example/", 50);
  }

  Dice& dice_;
  ContactList& list_;
};

}  // namespace

int main(int argc, char** argv) {
  const long count = argc > 1 ? std::strtol(argv[1], nullptr, 10) : -1;
  if (count < 0 || count > ContactList::maxCount || argc > 4) {
    (void)std::fputs("usage: generate_contacts COUNT [SEED [FILE]], COUNT 0 to 32767\n", stderr);
    return 2;
  }
  Dice dice(argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1);
  ContactList list;
  Author author(dice, list);
  for (long i = 0; i < count; ++i) author.addContact();

  std::FILE* const file = argc > 3 ? std::fopen(argv[3], "wb") : stdout;
  if (file == nullptr) {
    std::perror(argv[3]);
    return 1;
  }
  bool written = true;
  document::write(list, [&](std::string_view piece) {
    written = written && std::fwrite(piece.data(), 1, piece.size(), file) == piece.size();
  });
  written = std::fclose(file) == 0 && written;
  if (!written) std::perror("generate_contacts");
  return written ? 0 : 1;
}

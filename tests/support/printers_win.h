// Two PostScript printers of the tests' own, unlike in paper and unprintable strips, that print
// into files.
#pragma once

#include <string>

namespace test_support {

/// Installs the printers for the length of a scope.
class TestPrinters {
 public:
  TestPrinters();
  TestPrinters(const TestPrinters&) = delete;
  TestPrinters& operator=(const TestPrinters&) = delete;
  ~TestPrinters();

  /// Letter paper at 600 dots per inch; strips of 18, 24, 36 and 30 points at the left, right,
  /// top and bottom. The Windows default. Its name does not fit into a DEVMODE.
  static constexpr const char* letter = "Tellary test printer with Letter paper";
  /// A4 paper at 300 dots per inch; strips of 10, 14, 12 and 20 points.
  static constexpr const char* a4 = "Tellary A4";

  /// Has a driver that cannot be loaded, once it is added.
  static constexpr const char* broken = "Tellary broken";

  /// Adds the printer that cannot be asked for anything, as the Windows default.
  static void addBroken();
  /// Takes the Letter printer away; the other one stays.
  static void removeLetter();

  /// What was printed last, as PostScript; empty when nothing was.
  [[nodiscard]] static std::string letterJob();
  [[nodiscard]] static std::string a4Job();
  /// Forgets the jobs printed so far, and opens a blocked output again.
  static void clearJobs();
  /// Lets jobs of the Letter printer fail: their file cannot be written.
  static void blockLetterOutput();
};

}  // namespace test_support

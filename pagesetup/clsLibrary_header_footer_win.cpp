// Header and footer of a page, on the printer and in the preview.
#include "library/clsLibrary_win.h"
#include "pagesetup/header_footer.h"
#include "pagesetup/stored_options_win.h"
#include "paper/page_drawing_win.h"
#include "paper/page_picture_win.h"
#include "paper/printer_win.h"
#include "values/checked.h"
#include "values/user_locale_win.h"
#include "windowing/seams_win.h"

namespace library {
namespace {

using values::roundTo;

constexpr int headerFooterPoints = 10;

// Draws header and footer of `page`, after filling in its date and time.
void draw(HDC dc, const paper::TextFormat& font, pagesetup::Page page) {
  const SYSTEMTIME now = windowing::seams().localTime();
  page.date = pagesetup::dateText(now.wYear, now.wMonth, now.wDay);
  page.time = pagesetup::timeText(now.wHour, now.wMinute, now.wSecond);
  for (const pagesetup::DrawCommand& command :
       pagesetup::headerAndFooter(pagesetup::readOptions(), page, values::isLeadByte)) {
    if (command.kind == pagesetup::DrawCommand::Kind::line)
      paper::drawPageRule(dc, command.x, command.y, command.toX);
    else
      paper::drawPageText(dc, font, command.x, command.y, command.text);
  }
}

// Sets the size of the target's font; its typeface stays.
template <typename Target>
const paper::TextFormat& sizedFont(Target& target) {
  paper::TextFormat font = target.font();
  font.points = headerFooterPoints;
  target.setFont(font);
  return target.font();
}

}  // namespace

void clsLibrary::PAGEHEADERFOOTERINFO(const std::string& PGNO, std::int16_t Left, std::int16_t Top,
                                      std::int16_t Bottom, std::int16_t Right) {
  paper::Printer& printer = paper::printer();
  printer.setScaleMode(paper::PrinterScale::twips);
  draw(printer.dc(), sizedFont(printer),
       {pagesetup::Surface::printer,
        roundTo<std::int32_t>(printer.scaleWidth()),
        roundTo<std::int32_t>(printer.scaleHeight()),
        {Left, Top, Bottom, Right},
        PGNO,
        {},
        {}});
}

void clsLibrary::PAGEHEADERFOOTERINFOPREVIEW(paper::PagePicture& TARGET, const std::string& PGNO,
                                             std::int16_t Left, std::int16_t Top,
                                             std::int16_t Bottom, std::int16_t Right) {
  draw(TARGET.dc(), sizedFont(TARGET),
       {pagesetup::Surface::preview,
        roundTo<std::int32_t>(TARGET.width()),
        roundTo<std::int32_t>(TARGET.height()),
        {Left, Top, Bottom, Right},
        PGNO,
        {},
        {}});
}

}  // namespace library

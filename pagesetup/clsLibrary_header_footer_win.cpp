// Header and footer of a page, on the printer and in the preview.
#include "library/clsLibrary_win.h"
#include "pagesetup/header_footer.h"
#include "pagesetup/stored_options_win.h"
#include "windowing/checked.h"
#include "windowing/page_drawing_win.h"
#include "windowing/page_picture_win.h"
#include "windowing/printer_win.h"
#include "windowing/seams_win.h"
#include "windowing/user_locale_win.h"

namespace library {
namespace {

using windowing::roundTo;

constexpr int headerFooterPoints = 10;

// `page` lacks nothing but the moment it is printed at.
void draw(HDC dc, const windowing::TextFormat& font, pagesetup::Page page) {
  const SYSTEMTIME now = windowing::seams().localTime();
  page.date = pagesetup::dateText(now.wYear, now.wMonth, now.wDay);
  page.time = pagesetup::timeText(now.wHour, now.wMinute, now.wSecond);
  for (const pagesetup::DrawCommand& command :
       pagesetup::headerAndFooter(pagesetup::readOptions(), page, windowing::isLeadByte)) {
    if (command.kind == pagesetup::DrawCommand::Kind::line)
      windowing::drawPageRule(dc, command.x, command.y, command.toX);
    else
      windowing::drawPageText(dc, font, command.x, command.y, command.text);
  }
}

// The size is set, the typeface stays as the target has it.
template <typename Target>
const windowing::TextFormat& sizedFont(Target& target) {
  windowing::TextFormat font = target.font();
  font.points = headerFooterPoints;
  target.setFont(font);
  return target.font();
}

}  // namespace

void clsLibrary::PAGEHEADERFOOTERINFO(const std::string& PGNO, std::int16_t Left, std::int16_t Top,
                                      std::int16_t Bottom, std::int16_t Right) {
  windowing::Printer& printer = windowing::printer();
  printer.setScaleMode(windowing::PrinterScale::twips);
  draw(printer.dc(), sizedFont(printer),
       {pagesetup::Surface::printer,
        roundTo<std::int32_t>(printer.scaleWidth()),
        roundTo<std::int32_t>(printer.scaleHeight()),
        {Left, Top, Bottom, Right},
        PGNO,
        {},
        {}});
}

void clsLibrary::PAGEHEADERFOOTERINFOPREVIEW(windowing::PagePicture& TARGET,
                                             const std::string& PGNO, std::int16_t Left,
                                             std::int16_t Top, std::int16_t Bottom,
                                             std::int16_t Right) {
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

#include "pagesetup/header_footer.h"

#include "values/checked.h"

namespace pagesetup {
namespace {

using values::checkedAdd;
using values::checkedCast;
using values::checkedMultiply;
using values::checkedSubtract;

// Distances in twips. Deliberate: texts are placed by an estimate of their width and by fixed
// distances, and rules begin left of the margin, as on the pages of the maker's other products.
constexpr std::int16_t ruleOutdent = 200;
constexpr std::int16_t headerRuleRise = 300;
constexpr std::int16_t headerTextRise = 700;
constexpr std::int16_t dateIndent = 200;
constexpr std::int32_t timeFromRight = 2500;
constexpr std::int16_t footerRuleDrop = 200;
constexpr std::int16_t footerTextDrop = 360;
constexpr std::int16_t field1Indent = 300;
constexpr std::int32_t characterWidth = 170;

// Distances that are deliberately different in the preview and on the printer.
struct Offsets {
  double title;
  std::int32_t field2FromRight;
};
constexpr Offsets onPrinter{400, 4000};
constexpr Offsets inPreview{700, 5000};

constexpr const Offsets& offsetsOf(Surface surface) {
  return surface == Surface::preview ? inPreview : onPrinter;
}

std::int64_t characterCount(const std::string& text, library::LeadByteTest isLead) {
  std::int64_t count = 0;
  for (std::size_t i = 0; i < text.size(); ++i, ++count)
    if (isLead(static_cast<unsigned char>(text[i]))) ++i;
  return count;
}

class Drawing {
 public:
  Drawing(const Page& page, library::LeadByteTest isLead) : page_(page), isLead_(isLead) {}

  void rule(std::int16_t y) {
    const double left = checkedSubtract(page_.margins.left, ruleOutdent);
    const double right = checkedSubtract(page_.width, std::int32_t{page_.margins.right});
    commands.push_back({DrawCommand::Kind::line, left, static_cast<double>(y), right, {}});
  }
  void text(double x, std::int16_t y, const std::string& text) {
    commands.push_back({DrawCommand::Kind::text, x, static_cast<double>(y), 0, text});
  }

  /// The text in the middle of the page, `shift` to the right of it.
  void centred(double shift, std::int16_t y, const std::string& text) {
    const std::int32_t estimated =
        checkedMultiply(checkedCast<std::int32_t>(characterCount(text, isLead_)), characterWidth);
    this->text(checkedSubtract(page_.width, estimated) / 2.0 + shift, y, text);
  }

  std::vector<DrawCommand> commands;

 private:
  const Page& page_;
  library::LeadByteTest isLead_;
};

void drawHeader(Drawing& drawing, const HeaderFooterOptions& options, const Page& page) {
  const Margins& margins = page.margins;
  const auto line = [&] { return checkedSubtract(margins.top, headerTextRise); };
  if (options.on(Setting::headerRule)) drawing.rule(checkedSubtract(margins.top, headerRuleRise));
  if (options.on(Setting::headerDate))
    drawing.text(checkedAdd(margins.left, dateIndent), line(), page.date);
  if (options.on(Setting::headerTime))
    drawing.text(checkedSubtract(page.width, timeFromRight), line(), page.time);
  if (options.on(Setting::headerTitle))
    drawing.centred(offsetsOf(page.surface).title, line(), options[Setting::headerTitleText]);
}

void drawFooter(Drawing& drawing, const HeaderFooterOptions& options, const Page& page) {
  const Margins& margins = page.margins;
  const auto base =
      checkedCast<std::int16_t>(checkedSubtract(page.height, std::int32_t{margins.bottom}));
  const auto line = [&] { return checkedAdd(base, footerTextDrop); };
  if (options.on(Setting::footerRule)) drawing.rule(checkedAdd(base, footerRuleDrop));
  if (options.on(Setting::footerField1))
    drawing.text(checkedAdd(margins.left, field1Indent), line(),
                 options[Setting::footerField1Text]);
  if (options.on(Setting::footerField2))
    drawing.text(checkedSubtract(page.width, offsetsOf(page.surface).field2FromRight), line(),
                 options[Setting::footerField2Text]);
  if (options.on(Setting::footerPageNumber)) drawing.centred(0, line(), page.number);
}

std::string digits(int value, std::size_t count) {
  std::string text = std::to_string(value);
  if (text.size() < count) text.insert(0, count - text.size(), '0');
  return text;
}

}  // namespace

std::string defaultText(Setting option, const DefaultTexts& texts) {
  switch (option) {
    case Setting::headerTitleText:
      return texts.product + " Report.";
    case Setting::footerField1Text:
      return texts.owner;
    case Setting::footerField2Text:
      return texts.documentName.empty() ? "Untitled" : texts.documentName;
    default:
      return library::settingRow(option).otherwise;
  }
}

std::vector<DrawCommand> headerAndFooter(const HeaderFooterOptions& options, const Page& page,
                                         library::LeadByteTest isLead) {
  Drawing drawing(page, isLead);
  if (options.on(Setting::header)) drawHeader(drawing, options, page);
  if (options.on(Setting::footer)) drawFooter(drawing, options, page);
  return drawing.commands;
}

std::string dateText(int year, int month, int day) {
  return digits(day, 2) + '/' + digits(month, 2) + '/' + digits(year, 4);
}

std::string timeText(int hour, int minute, int second) {
  return std::to_string(hour) + ':' + digits(minute, 2) + ':' + digits(second, 2);
}

}  // namespace pagesetup

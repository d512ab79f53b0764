#include "tests/support/recording_win.h"

#include <map>

namespace test_support {
namespace {

struct Reader {
  Drawing drawing;
  std::map<DWORD, int> weights;  // of the fonts by their number in the metafile
  int weight = FW_NORMAL;
  COLORREF colour = 0;
  POINT position{};
};

template <typename Record>
const Record& as(const ENHMETARECORD* record) {
  return *reinterpret_cast<const Record*>(record);
}

int CALLBACK readRecord(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM data) {
  Reader& reader = *reinterpret_cast<Reader*>(data);
  switch (record->iType) {
    case EMR_EXTCREATEFONTINDIRECTW: {
      const auto& font = as<EMREXTCREATEFONTINDIRECTW>(record);
      reader.weights[font.ihFont] = static_cast<int>(font.elfw.elfLogFont.lfWeight);
      break;
    }
    case EMR_SELECTOBJECT: {
      const auto found = reader.weights.find(as<EMRSELECTOBJECT>(record).ihObject);
      if (found != reader.weights.end()) reader.weight = found->second;
      break;
    }
    case EMR_SETTEXTCOLOR:
      reader.colour = as<EMRSETTEXTCOLOR>(record).crColor;
      break;
    case EMR_EXTTEXTOUTW: {
      const EMRTEXT& text = as<EMREXTTEXTOUTW>(record).emrtext;
      const auto* base = reinterpret_cast<const char*>(record);
      const auto* wide = reinterpret_cast<const wchar_t*>(base + text.offString);
      const auto* advances = reinterpret_cast<const INT*>(base + text.offDx);
      DrawnText drawn{{}, text.ptlReference.x, text.ptlReference.y, reader.weight,
                      0,  reader.colour};
      for (DWORD i = 0; i < text.nChars; ++i) {
        drawn.text += static_cast<char>(wide[i]);
        if (text.offDx != 0) drawn.width += advances[i];
      }
      reader.drawing.texts.push_back(drawn);
      break;
    }
    case EMR_MOVETOEX:
      reader.position = {as<EMRMOVETOEX>(record).ptl.x, as<EMRMOVETOEX>(record).ptl.y};
      break;
    case EMR_LINETO: {
      const POINTL to = as<EMRLINETO>(record).ptl;
      reader.drawing.lines.push_back({reader.position, {to.x, to.y}});
      reader.position = {to.x, to.y};
      break;
    }
    default:
      break;
  }
  return TRUE;
}

}  // namespace

std::string Drawing::joined() const {
  std::string all;
  for (const DrawnText& text : texts) all += text.text + '|';
  return all;
}

Recording::Recording(HDC reference)
    : dc_(CreateEnhMetaFileA(reference, nullptr, nullptr, nullptr)) {}

Recording::~Recording() {
  if (dc_ != nullptr) DeleteEnhMetaFile(CloseEnhMetaFile(dc_));
}

Drawing drawingOf(HENHMETAFILE recording) {
  Reader reader;
  EnumEnhMetaFile(nullptr, recording, readRecord, &reader, nullptr);
  return reader.drawing;
}

Drawing Recording::drawing() {
  const HENHMETAFILE file = CloseEnhMetaFile(dc_);
  dc_ = nullptr;
  Drawing drawn = drawingOf(file);
  DeleteEnhMetaFile(file);
  return drawn;
}

}  // namespace test_support

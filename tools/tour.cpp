// Goes through the windows of the program and takes a picture of each. It needs no display. The clock stands
// still, the memory figures and the font are fixed, and all files are in a temporary directory, so that the
// same build gives the same pictures.

#include <QDir>
#include <QImage>
#include <algorithm>
#include <cstdio>
#include <unordered_map>

#include "Walker.h"

using namespace qismora::tour;

namespace {

const char* const wife = "Text1(1)";
const char* const son = "Text1(2)";
const char* const daughter = "Text1(3)";
const char* const mother = "Text1(16)";
const char* const grandfather = "Text1(14)";
const char* const consanguineBrother = "Text1(31)";
const char* const fullSister = "Text1(23)";
const char* const name = "Text1(24)";
const char* const gross = "Text1(25)";
const char* const wills = "Text1(28)";

/// The pictures in order. For each: its name, the steps in the active window, and what the picture shows.
const std::vector<Stop> stops = {
    {"main-menu", {}},
    {"main-menu-hover", {{Do::Hover, "Option1(6)"}}},
    {"disclaimer", {{Do::Choose, "Disclaimer"}}},
    {"quranic-laws", {{Do::Choose, "Disclaimer"}, {Do::Click, "Option1(0)"}}},
    {"indian-acts", {{Do::Choose, "Close"}, {Do::Click, "Option1(3)"}}},
    {"exclusion", {{Do::Choose, "Close"}, {Do::Click, "Option1(5)"}}},
    {"aul-and-radd-page", {{Do::Choose, "Close"}, {Do::Click, "Option1(8)"}}},
    {"documents", {{Do::Choose, "Close"}, {Do::DoubleClick, "Frame2"}}},
    {"sessions", {{Do::Choose, "Back"}, {Do::Click, "Label22"}}},
    {"about", {{Do::Close}, {Do::Choose, "About"}}},

    {"case-urdu", {{Do::Close}, {Do::Click, "Option1(6)"}}},
    {"case-urdu-husband", {{Do::Pick, "Combo1", "Female"}}},
    {"case-arabic", {{Do::Click, "Label4(2)"}}},
    {"case-arabic-husband", {{Do::Pick, "Combo1", "Female"}}},
    {"case-english", {{Do::Click, "Label4(1)"}}},
    {"case-english-husband", {{Do::Pick, "Combo1", "Female"}}},

    // A wife, a son and a daughter share 24000.
    {"case-typed",
     {{Do::Pick, "Combo1", "Male"},
      {Do::Type, wife, "1"},
      {Do::Type, son, "1"},
      {Do::Type, daughter, "1"},
      {Do::Type, name, "Abdullah"},
      {Do::Type, gross, "24000"},
      {Do::Type, "Text1(26)", "0"},
      {Do::Type, "Text1(27)", "0"},
      {Do::Type, wills, "0"}}},
    {"residuaries", {{Do::Choose, "Resid"}}},
    {"residuaries-urdu", {{Do::Click, "Label4(0)"}}},
    {"residuaries-arabic", {{Do::Click, "Label4(2)"}}},
    {"class-two", {{Do::DoubleClick, "Image37(3)"}}, Shown::MessageBox},
    {"message-box", {{Do::Click, "Label4(1)"}, {Do::DoubleClick, "Label1(1)"}}, Shown::MessageBox},
    {"narrative", {}},
    {"all-individual", {{Do::Choose, "FullReport"}}},
    {"summary", {{Do::Choose, "Exec"}, {Do::Bottom, "Text3"}}},
    {"wills-question", {{Do::Type, wills, "12000"}, {Do::Choose, "Resid"}}, Shown::MessageBox},

    // A husband and two full sisters: more shares than estate. A mother and a daughter: less.
    {"aul-message",
     {{Do::Click, "Image2"},
      {Do::Pick, "Combo1", "Female"},
      {Do::Type, wife, "1"},
      {Do::Type, fullSister, "2"},
      {Do::Type, name, "Aminah"},
      {Do::Type, gross, "4200"},
      {Do::Type, wills, "0"},
      {Do::Choose, "Resid"}},
     Shown::MessageBox},
    {"aul", {{Do::Click, "AulRadd"}}},
    {"radd",
     {{Do::Click, "Image2"},
      {Do::Type, mother, "1"},
      {Do::Type, daughter, "1"},
      {Do::Choose, "Resid"},
      {Do::Click, "AulRadd"}}},
    {"report-saved", {{Do::Choose, "CreateSaveFullReport"}}, Shown::MessageBox},
    {"full-report", {}},
    {"save-question", {{Do::Choose, "CreateSaveFullReport"}}, Shown::MessageBox},

    // The division of a wife, two daughters, a grandfather, the mother and a consanguine brother.
    {"division",
     {{Do::Choose, "Back"},
      {Do::Click, "Option1(6)"},
      {Do::Click, "Label4(1)"},
      {Do::Click, "Image2"},
      {Do::Pick, "Combo1", "Male"},
      {Do::Type, wife, "1"},
      {Do::Type, daughter, "2"},
      {Do::Type, grandfather, "1"},
      {Do::Type, mother, "1"},
      {Do::Type, consanguineBrother, "1"},
      {Do::Type, name, "Abdullah"},
      {Do::Type, gross, "24000"},
      {Do::Choose, "Division"}},
     Shown::BesideCaseStudy},
    {"division-schools", {{Do::Choose, "FourSchools"}}},
    {"division-urdu", {{Do::Choose, "FourSchools"}, {Do::SetLanguage, "اردو"}}},
    {"division-arabic", {{Do::SetLanguage, "العربية"}}},
};

/// The largest difference of two colours in any channel.
int Difference(QRgb a, QRgb b) {
  return std::max({qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))});
}

/// The colour with each channel rounded to one of a number of levels.
QRgb Quantized(QRgb colour, int levels) {
  const auto part = [levels](int c) { return qRound(c * levels / 255.0) * 255 / levels; };
  return qRgb(part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour)));
}

/// The picture with a palette of at most 256 colours. The file is a third as large, and the eye sees no
/// difference.
QImage WithPalette(const QImage& picture) {
  constexpr std::size_t most = 256;
  std::unordered_map<QRgb, int> places;
  QImage indexed(picture.size(), QImage::Format_Indexed8);
  for (const int levels : {255, 51, 17, 15, 5}) {
    places.clear();
    for (int y = 0; y < indexed.height() && places.size() <= most; ++y) {
      for (int x = 0; x < indexed.width(); ++x) {
        const QRgb colour = Quantized(picture.pixel(x, y), levels);
        const auto place = places.try_emplace(colour, static_cast<int>(places.size())).first;
        indexed.scanLine(y)[x] = static_cast<uchar>(place->second);
      }
    }
    if (places.size() <= most) break;
  }
  indexed.setColorCount(static_cast<int>(places.size()));
  for (const auto& [colour, place] : places) indexed.setColor(place, colour);
  return indexed;
}

bool Save(const Album& album, const QDir& folder) {
  folder.mkpath(QStringLiteral("."));
  for (const auto& [title, picture] : album) {
    const QString file = folder.filePath(title + QStringLiteral(".png"));
    if (!WithPalette(picture).save(file, "PNG", 0)) {  // 0 is Qt's best compression
      std::fprintf(stderr, "qismora_tour: cannot write %s\n", qPrintable(file));
      return false;
    }
    std::printf("%s\n", qPrintable(file));
  }
  return true;
}

/// Text drawn by another version of the libraries may differ slightly in a few pixels.
bool AreSimilar(const QImage& kept, const QImage& taken) {
  constexpr int mostDifference = 64;
  constexpr int mostPixels = 20;
  if (kept.size() != taken.size()) return false;
  int different = 0;
  for (int y = 0; y < kept.height(); ++y) {
    for (int x = 0; x < kept.width(); ++x)
      different += Difference(kept.pixel(x, y), taken.pixel(x, y)) > mostDifference ? 1 : 0;
  }
  return different <= mostPixels;
}

/// Compares the pictures kept in a directory with those just taken.
bool Compare(const Album& album, const QDir& folder) {
  const QStringList files = folder.entryList({QStringLiteral("*.png")}, QDir::Files);
  bool same = !files.isEmpty();
  for (const QString& file : files) {
    const auto taken = album.find(QString(file).remove(QStringLiteral(".png")));
    if (taken != album.end() && AreSimilar(QImage(folder.filePath(file)), taken->second)) continue;
    std::fprintf(stderr, "%s is out of date\n", qPrintable(folder.filePath(file)));
    same = false;
  }
  if (!same) std::fputs("Retake the pictures with tools/tour and look at them.\n", stderr);
  return same;
}

}  // namespace

int main(int argc, char** argv) {
  const bool compare = argc == 3 && qstrcmp(argv[1], "--compare") == 0;
  if (argc != 2 && !compare) {
    std::fputs("usage: qismora_tour DIRECTORY, or qismora_tour --compare DIRECTORY\n", stderr);
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[argc - 1]));
  const Album album = Walk(stops, argc, argv);
  return (compare ? Compare(album, folder) : Save(album, folder)) ? 0 : 1;
}

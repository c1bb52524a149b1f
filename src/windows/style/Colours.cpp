#include "windows/style/Colours.h"

#include <algorithm>
#include <cmath>

#include "case/Controls.h"

namespace qismora {

namespace {

constexpr double blackAndWhite = 20;
constexpr float step = 0.02F;

double Linear(float channel) {
  return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) + 0.0722 * Linear(colour.blueF());
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

bool IsBlackAndWhite(const QPalette& palette) {
  const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
  return Contrast(text, palette.color(QPalette::Active, QPalette::Window)) > blackAndWhite;
}

double WantedContrast(const QPalette& palette) {
  return IsBlackAndWhite(palette) ? HighContrast : LeastContrast;
}

QColor Readable(QColor wanted, const QColor& background, double contrast) {
  const float towards = Luminance(background) < 0.18 ? step : -step;
  while (Contrast(wanted, background) < contrast) {
    const float lightness = wanted.lightnessF() + towards;
    if (lightness < 0.0F || lightness > 1.0F) return towards > 0 ? QColor(Qt::white) : QColor(Qt::black);
    wanted = QColor::fromHslF(std::max(wanted.hslHueF(), 0.0F), wanted.hslSaturationF(), lightness);
  }
  return wanted;
}

QColor TextColourOf(int colour, const QPalette& palette, QPalette::ColorRole text,
                    QPalette::ColorRole background) {
  const double contrast = WantedContrast(palette);
  if (colour == HighlightColour) {
    return Readable(palette.color(QPalette::Highlight), palette.color(background), contrast);
  }
  if (colour <= Black) return palette.color(text);
  const QColor wanted(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
  return Readable(wanted, palette.color(background), contrast);
}

QColor Between(const QColor& from, const QColor& to, double strength) {
  const auto mixed = [strength](int a, int b) { return a + static_cast<int>((b - a) * strength); };
  return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue())};
}

}  // namespace qismora

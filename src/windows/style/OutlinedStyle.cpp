#include "windows/style/OutlinedStyle.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

#include "windows/style/Colours.h"
#include "windows/style/LateIcon.h"

namespace qismora {

namespace {

constexpr int darkGround = 64;
constexpr double groupStrength = 0.2;
constexpr double gridStrength = 0.3;
constexpr double frameStrength = 0.45;
constexpr double fullStrength = 0.8;
constexpr double brightStrength = 0.28;
constexpr QMargins oneLine{1, 1, 1, 1};
constexpr int brighterButton = 150;
constexpr int focusTint = 36;
constexpr int titleMargin = 3;
constexpr qreal roundness = 2;

struct InkOnGround {
  QPalette::ColorRole Ink;
  QPalette::ColorRole Ground;
};

// Of what is selected the ground gives way: its letters are mostly black or white already. Menus have a
// ground between those of windows and of boxes.
constexpr InkOnGround letters[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::Window},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::Link, QPalette::Window},
    {QPalette::LinkVisited, QPalette::Window},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::Highlight, QPalette::HighlightedText},
};

/// The colour of an outline, stronger where the desktop asks for contrast above all.
QColor Line(const QPalette& palette, double strength) {
  return Between(palette.color(QPalette::Window), palette.color(QPalette::Active, QPalette::WindowText),
                 IsBlackAndWhite(palette) ? fullStrength : strength);
}

/// Whether the frames of the style itself are too faint.
bool NeedsOutlines(const QPalette& palette) {
  return IsBlackAndWhite(palette) || palette.color(QPalette::Window).lightness() <= darkGround;
}

bool Scrolls(const QWidget* widget) { return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr; }

// On a dark ground buttons are brighter than the window.
QColor FocusColour(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  const QColor ground = window.lightness() <= darkGround ? window.lighter(brighterButton) : window;
  return Readable(palette.color(QPalette::Active, QPalette::Highlight), ground, WantedContrast(palette));
}

// Shown from the first moment of a window, and not only once a key has moved it.
bool HasFocus(const QStyleOption& option) { return (option.state & QStyle::State_HasFocus) != 0; }

void DrawOutline(QPainter* painter, const QColor& line, const QRect& rect, qreal round = roundness,
                 const QBrush& ground = Qt::NoBrush) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(line);
  painter->setBrush(ground);
  painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), round, round);
  painter->restore();
}

// Filled bars of one plain colour: large tinted or smooth frames would start the painter's threads.
void DrawBars(QPainter* painter, const QColor& line, const QRect& rect) {
  for (const int y : {rect.top(), rect.bottom()}) painter->fillRect(rect.left(), y, rect.width(), 1, line);
  for (const int x : {rect.left(), rect.right()}) painter->fillRect(x, rect.top(), 1, rect.height(), line);
}

// A text has room for a second line within the first: it shows the focus.
void DrawFrame(QPainter* painter, const QStyleOption& option, const QWidget* widget) {
  const QPalette& palette = option.palette;
  const QColor usual = NeedsOutlines(palette)
                           ? Line(palette, frameStrength)
                           : Between(palette.color(QPalette::Window), Qt::black, brightStrength);
  DrawBars(painter, HasFocus(option) ? FocusColour(palette) : usual, option.rect);
  if (!Scrolls(widget)) return;
  DrawBars(painter, HasFocus(option) ? FocusColour(palette) : palette.color(QPalette::Base),
           option.rect.marginsRemoved(oneLine));
}

void DrawFocus(QPainter* painter, const QStyleOption& option) {
  const QColor line = FocusColour(option.palette);
  QColor tint = line;
  tint.setAlpha(focusTint);
  DrawOutline(painter, line, option.rect, roundness, tint);
}

}  // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

// Every menu bar asks for the sign that stands where it is too narrow for its entries. Making it has the
// toolkit load all that it can read pictures with, so it waits until such a menu bar comes.
QIcon OutlinedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton) return QIcon(new LateIcon(baseStyle(), which));
  return QProxyStyle::standardIcon(which, option, widget);
}

// Many a dark desktop leaves links dark blue, and entries that cannot be chosen nearly invisible.
void OutlinedStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  const double contrast = WantedContrast(palette);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto& [ink, ground] : letters) {
      const QColor wanted = palette.color(group, ink);
      const QColor readable = Readable(wanted, palette.color(group, ground), contrast);
      if (readable != wanted) palette.setColor(group, ink, readable);
    }
  }
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  const QPalette& palette = option->palette;
  switch (element) {
    case PE_FrameGroupBox: {
      const int title =
          qMax(pixelMetric(PM_IndicatorHeight, option, widget), option->fontMetrics.height()) + titleMargin;
      return DrawBars(painter, Line(palette, groupStrength), option->rect.adjusted(0, title, 0, 0));
    }
    case PE_FrameFocusRect:
      return DrawFocus(painter, *option);
    case PE_Frame:
      return DrawFrame(painter, *option, widget);
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_PanelMenu && NeedsOutlines(palette)) {
    return DrawBars(painter, Line(palette, frameStrength), option->rect);
  }
  const bool radio = element == PE_IndicatorRadioButton;
  const bool framed = radio || element == PE_PanelLineEdit || element == PE_IndicatorCheckBox ||
                      element == PE_PanelButtonCommand;
  if (!framed) return;
  const qreal round = radio ? option->rect.width() / 2.0 : roundness;
  if (HasFocus(*option)) {
    DrawOutline(painter, FocusColour(palette), option->rect, round);
    DrawOutline(painter, FocusColour(palette), option->rect.marginsRemoved(oneLine), round);
  } else if (NeedsOutlines(palette)) {
    DrawOutline(painter, Line(palette, frameStrength), option->rect, round);
  }
}

// The entry of the bar that the keys have reached looks like one that the mouse has opened. Borders are drawn
// here since the toolkit loses a side of them at 125 percent.
void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuBarItem && entry != nullptr && (entry->state & State_Selected) != 0) {
    QStyleOptionMenuItem opened = *entry;
    opened.state |= State_Sunken;
    return QProxyStyle::drawControl(element, &opened, painter, widget);
  }
  const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
  if (element == CE_ShapedFrame && frame != nullptr && frame->frameShape == QFrame::Box) {
    return DrawBars(painter, frame->palette.color(QPalette::WindowText), frame->rect);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void OutlinedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control != CC_ScrollBar || !NeedsOutlines(option->palette)) return;
  DrawOutline(painter, Line(option->palette, frameStrength),
              subControlRect(control, option, SC_ScrollBarSlider, widget));
}

int OutlinedStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int usual = QProxyStyle::pixelMetric(metric, option, widget);
  return metric == PM_DefaultFrameWidth && Scrolls(widget) ? usual + 1 : usual;
}

int OutlinedStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const {
  if (hint == SH_Table_GridLineColor && option != nullptr && NeedsOutlines(option->palette)) {
    return static_cast<int>(Line(option->palette, gridStrength).rgba());
  }
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace qismora

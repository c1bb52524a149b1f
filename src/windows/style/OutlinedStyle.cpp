#include "windows/style/OutlinedStyle.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOption>

#include "windows/language/Languages.h"
#include "windows/style/Colours.h"

namespace qismora {

namespace {

constexpr int darkBackground = 64;
constexpr double groupStrength = 0.2;
constexpr double gridStrength = 0.3;
constexpr double frameStrength = 0.45;
constexpr double fullStrength = 0.8;
constexpr QMargins oneLine{1, 1, 1, 1};
constexpr int brighterButton = 150;
constexpr int focusTint = 36;
constexpr int titleMargin = 3;
constexpr int extensionSize = 16;
constexpr qreal roundness = 2;

struct TextOnBackground {
  QPalette::ColorRole Text;
  QPalette::ColorRole Background;
};

// The first colour of each pair is adjusted to the second: of a selection the background, since its text is
// mostly black or white. Menus have a background between those of windows and of text fields.
constexpr TextOnBackground pairs[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::Text, QPalette::Window},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::Link, QPalette::Window},
    {QPalette::LinkVisited, QPalette::Window},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::Highlight, QPalette::HighlightedText},
};

/// The colour of an outline, stronger in high contrast.
QColor Line(const QPalette& palette, double strength) {
  return Between(palette.color(QPalette::Window), palette.color(QPalette::Active, QPalette::WindowText),
                 IsBlackAndWhite(palette) ? fullStrength : strength);
}

/// Whether the style's own frames are too faint.
bool NeedsOutlines(const QPalette& palette) {
  return IsBlackAndWhite(palette) || palette.color(QPalette::Window).lightness() <= darkBackground;
}

bool Scrolls(const QWidget* widget) { return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr; }

// On a dark background buttons are brighter than the window.
QColor FocusColour(const QPalette& palette) {
  const QColor window = palette.color(QPalette::Window);
  const bool dark = window.lightness() <= darkBackground;
  return Readable(palette.color(QPalette::Active, QPalette::Highlight),
                  dark ? window.lighter(brighterButton) : window, WantedContrast(palette));
}

// Shown from the start, not only after a key has moved the focus.
bool HasFocus(const QStyleOption& option) { return (option.state & QStyle::State_HasFocus) != 0; }

void DrawOutline(QPainter* painter, const QColor& line, const QRect& rect, qreal round = roundness,
                 const QBrush& inside = Qt::NoBrush) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(line);
  painter->setBrush(inside);
  painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), round, round);
  painter->restore();
}

void DrawFocus(QPainter* painter, const QStyleOption& option) {
  const QColor line = FocusColour(option.palette);
  QColor tint = line;
  tint.setAlpha(focusTint);
  DrawOutline(painter, line, option.rect, roundness, tint);
}

}  // namespace

void DrawFrame(QPainter* painter, const QColor& line, const QRect& rect) {
  for (const int y : {rect.top(), rect.bottom()}) painter->fillRect(rect.left(), y, rect.width(), 1, line);
  for (const int x : {rect.left(), rect.right()}) painter->fillRect(x, rect.top(), 1, rect.height(), line);
}

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

// Each menu bar asks for the arrow that it shows if it is too narrow. It is drawn here, because reading it
// from a picture would load all image plugins at the start.
QIcon OutlinedStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                  const QWidget* widget) const {
  if (which != SP_ToolBarHorizontalExtensionButton) return QProxyStyle::standardIcon(which, option, widget);
  QPixmap arrow(extensionSize, extensionSize);
  arrow.fill(Qt::transparent);
  QStyleOption sign;
  sign.rect = arrow.rect();
  sign.palette = QGuiApplication::palette();
  QPainter painter(&arrow);
  proxy()->drawPrimitive(PE_IndicatorArrowRight, &sign, &painter, widget);
  return arrow;
}

// Many dark desktops leave links dark blue, and disabled entries nearly invisible.
void OutlinedStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  const double contrast = WantedContrast(palette);
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    for (const auto& [text, background] : pairs) {
      const QColor wanted = palette.color(group, text);
      const QColor readable = Readable(wanted, palette.color(group, background), contrast);
      if (readable != wanted) palette.setColor(group, text, readable);
    }
  }
}

void OutlinedStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
  const QPalette& palette = option->palette;
  if (element == PE_FrameFocusRect) return DrawFocus(painter, *option);
  // Fusion draws this frame from a picture too, which is faint and blurred when it is scaled.
  if (element == PE_FrameGroupBox) {
    const int title = qMax(pixelMetric(PM_IndicatorHeight, option, widget), option->fontMetrics.height());
    return DrawFrame(painter, Line(palette, groupStrength),
                     option->rect.adjusted(0, title + titleMargin, 0, 0));
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  const bool radio = element == PE_IndicatorRadioButton;
  const qreal round = radio ? option->rect.width() / 2.0 : roundness;
  switch (element) {
    case PE_Frame:
      // A text area has space for a second line inside the first, which shows the focus.
      if (Scrolls(widget)) {
        const QColor inner = HasFocus(*option) ? FocusColour(palette) : palette.color(QPalette::Base);
        DrawFrame(painter, inner, option->rect.marginsRemoved(oneLine));
      }
      [[fallthrough]];
    case PE_PanelMenu:
      if (HasFocus(*option) || NeedsOutlines(palette)) {
        DrawFrame(painter, HasFocus(*option) ? FocusColour(palette) : Line(palette, frameStrength),
                  option->rect);
      }
      return;
    case PE_IndicatorRadioButton:
    case PE_IndicatorCheckBox:
    case PE_PanelLineEdit:
    case PE_PanelButtonCommand:
      if (HasFocus(*option)) {
        DrawOutline(painter, FocusColour(palette), option->rect, round);
        DrawOutline(painter, FocusColour(palette), option->rect.marginsRemoved(oneLine), round);
      } else if (NeedsOutlines(palette)) {
        DrawOutline(painter, Line(palette, frameStrength), option->rect, round);
      }
      return;
    default:
      return;
  }
}

// An entry of the menu bar that the keyboard has selected looks like one that the mouse has opened.
void OutlinedStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  // Styles expect the painter to have the direction of the application. That of a window may be another. Only
  // push buttons mirror their text by themselves.
  painter->setLayoutDirection(element == CE_PushButtonLabel ? Qt::LeftToRight : option->direction);
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (element == CE_MenuBarItem && entry != nullptr && (entry->state & State_Selected) != 0) {
    QStyleOptionMenuItem opened = *entry;
    opened.state |= State_Sunken;
    return QProxyStyle::drawControl(element, &opened, painter, widget);
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
  // An underlined letter of Arabic script would be drawn apart from the word that it joins.
  if (hint == SH_UnderlineShortcut && widget != nullptr &&
      (widget->layoutDirection() == Qt::RightToLeft || DialogsInLanguage::Direction() == Qt::RightToLeft)) {
    return 0;
  }
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

}  // namespace qismora

#include "windows/division/PaperPage.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextDocument>

#include "windows/language/Languages.h"

namespace qismora {

namespace {

constexpr double dotsOfPreview = 150;  // to the inch
constexpr double metresPerInch = 0.0254;

}  // namespace

QFont PaperFont(double points) {
  QFont font = FontOfLanguage(QGuiApplication::font());
  font.setPointSizeF(points);
  font.setHintingPreference(QFont::PreferNoHinting);  // as wide in a preview as on paper
  return font;
}

double FooterHeight(int dots) { return 2 * PointsOfFooter * dots / 72; }

void DrawPage(QPainter& painter, const QTextDocument& document, int page, const QString& foot) {
  const QSizeF size = document.pageSize();
  painter.save();
  painter.translate(0, -page * size.height());
  QAbstractTextDocumentLayout::PaintContext context;
  context.palette.setColor(QPalette::Text, Qt::black);
  context.clip = QRectF(QPointF(0, page * size.height()), size);
  painter.setClipRect(context.clip);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
  painter.setFont(PaperFont(PointsOfFooter));
  painter.setPen(Qt::black);
  painter.setLayoutDirection(CurrentDirection());
  const double height = FooterHeight(painter.device()->logicalDpiY());
  painter.drawText(QRectF(0, size.height(), size.width(), height), Qt::AlignHCenter | Qt::AlignBottom, foot);
}

QImage PictureOf(const QTextDocument& document, int page, const QString& foot,
                 const QPagedPaintDevice& device) {
  const int dots = device.logicalDpiX();
  const double scale = dotsOfPreview / dots;
  QImage image((QSizeF(device.pageLayout().paintRectPixels(dots).size()) * scale).toSize(),
               QImage::Format_Grayscale8);
  // So that fonts have the sizes that they have on the device.
  image.setDotsPerMeterX(qRound(dots / metresPerInch));
  image.setDotsPerMeterY(qRound(dots / metresPerInch));
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(scale, scale);
  DrawPage(painter, document, page, foot);
  return image;
}

}  // namespace qismora

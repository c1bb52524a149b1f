#pragma once

#include <QFont>

class QImage;
class QPagedPaintDevice;
class QPainter;
class QString;
class QTextDocument;

namespace qismora {

inline constexpr double PointsOfFooter = 8;

/// The font of the current language for paper.
QFont PaperFont(double points);
/// The height below the text of a page, in dots, on a device with this many dots per inch.
double FooterHeight(int dots);

/// Paints a page, counted from 0, with a line below the text.
void DrawPage(QPainter& painter, const QTextDocument& document, int page, const QString& foot);
/// What a device shows within its margins.
QImage PictureOf(const QTextDocument& document, int page, const QString& foot,
                 const QPagedPaintDevice& device);

}  // namespace qismora

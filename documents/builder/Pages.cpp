#include "Pages.h"

#include <algorithm>
#include <stdexcept>

namespace qismora::documents {

namespace {

constexpr int PagesWithoutContents = 4;
constexpr double BannerHeight = Points(118);
constexpr double ContentsHead = Points(44);
constexpr double NarrowestContents = Points(12.5);
constexpr double ContentsGap = Points(3.5);

TextStyle Sans(double size, const QColor& colour, bool bold = false) {
  TextStyle style;
  style.Family = Face::Sans;
  style.Size = size;
  style.Colour = colour;
  style.Bold = bold;
  return style;
}

/// A band of eight-pointed stars, each of two squares.
void DrawStars(QPainter& painter, const QRectF& band) {
  painter.setPen(QPen(QColor(255, 255, 255, 150), Points(0.7)));
  painter.setBrush(Qt::NoBrush);
  const double step = band.height();
  const double side = step * 0.62;
  const int count = static_cast<int>(band.width() / step);
  for (int i = 0; i < count; ++i) {
    painter.save();
    painter.translate(band.right() - step * (i + 0.5), band.center().y());
    painter.drawRect(QRectF(-side / 2, -side / 2, side, side));
    painter.rotate(45);
    painter.drawRect(QRectF(-side / 2, -side / 2, side, side));
    painter.restore();
  }
}

}  // namespace

Pages::Pages(const Source& source, std::vector<Piece> pieces) : source_(source), pieces_(std::move(pieces)) {
  Paginate(TitleHeight());
  if (Count() <= PagesWithoutContents) return;
  // The contents stand under the title. Behind short ones the text begins at once, else on the next page.
  contents_ = true;
  const double end = TitleHeight() + ContentsHeight();
  if (ContentsPitch() < NarrowestContents) throw std::runtime_error("the contents are longer than a page");
  Paginate(end < 0.6 * PageHeight ? end : ContentBottom);
}

void Pages::Paginate(double firstTop) {
  pages_.assign(1, {});
  entries_.clear();
  top_ = firstTop;
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    const std::size_t end = ChainEnd(i);
    const bool fresh = pages_.back().empty() && pages_.size() > 1;
    if (!fresh && (pieces_[i].BreakBefore || top_ + ChainHeight(i, end) > ContentBottom)) NewPage();
    if (pages_.back().empty() && pages_.size() > 1 && pieces_[i].Repeat) Place(*pieces_[i].Repeat);
    Place(pieces_[i]);
    if (pieces_[i].HeadingLevel == 1 || pieces_[i].HeadingLevel == 2) {
      entries_.push_back({pieces_[i].HeadingLevel, pieces_[i].Heading, Count()});
    }
  }
}

void Pages::NewPage() {
  pages_.emplace_back();
  top_ = ContentTop;
}

void Pages::Place(const Piece& piece) {
  if (!(pages_.back().empty() && pages_.size() > 1)) top_ += piece.Before;
  pages_.back().push_back({&piece, top_});
  top_ += piece.Height;
}

/// The end of the pieces that must stand on one page with the given one.
std::size_t Pages::ChainEnd(std::size_t from) const {
  std::size_t end = from;
  while (end + 1 < pieces_.size() && pieces_[end].KeepWithNext) ++end;
  return end + 1;
}

double Pages::ChainHeight(std::size_t from, std::size_t end) const {
  double height = 0;
  for (std::size_t i = from; i < end; ++i) height += pieces_[i].Before + pieces_[i].Height;
  // A chain longer than a page cannot be kept together.
  return height > ContentBottom - ContentTop ? pieces_[from].Before + pieces_[from].Height : height;
}

/// Long contents stand closer, so that they fit under the title.
double Pages::ContentsPitch() const {
  const auto chapters =
      std::count_if(entries_.begin(), entries_.end(), [](const Entry& e) { return e.Level == 1; });
  const double room =
      ContentBottom - TitleHeight() - ContentsHead - static_cast<double>(chapters) * ContentsGap;
  return std::min(Points(15.3), room / static_cast<double>(entries_.size()));
}

double Pages::ContentsHeight() const {
  double height = ContentsHead;
  for (const Entry& entry : entries_) height += ContentsPitch() + (entry.Level == 1 ? ContentsGap : 0);
  return height;
}

double Pages::TitleHeight() const { return Points(56) + BannerHeight + Points(10); }

void Pages::Draw(QPdfWriter& writer) const {
  QPainter painter(&writer);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int page = 1; page <= Count(); ++page) {
    if (page > 1) writer.newPage();
    if (page == 1) {
      DrawTitle(painter);
      if (contents_) DrawContents(painter, TitleHeight());
    }
    DrawHeadAndFoot(painter, page);
    for (const Placed& placed : pages_[static_cast<std::size_t>(page - 1)]) {
      painter.save();
      placed.What->Draw(painter, QPointF(Margin, placed.Top));
      painter.restore();
    }
  }
}

void Pages::DrawTitle(QPainter& painter) const {
  const QRectF banner(Margin, Points(56), ContentWidth, BannerHeight);
  painter.fillRect(banner, Accent);
  DrawStars(painter, QRectF(banner.left(), banner.bottom() - Points(22), banner.width(), Points(22)));
  const double inner = ContentWidth - Points(36);
  const QPointF at = banner.topLeft() + QPointF(Points(18), Points(8));
  const TextBlock title = OneLine(QString::fromStdString(source_.Title), Sans(23, Qt::white, true), inner);
  title.Draw(painter, at + QPointF(0, Points(4)));
  const TextBlock arabic = OneLine(QString::fromStdString(source_.TitleArabic), Sans(19, Qt::white), inner);
  if (title.UsedWidth() + arabic.UsedWidth() > inner) throw std::runtime_error("the two titles overlap");
  arabic.Draw(painter, at + QPointF(0, Points(6)));
  TextStyle subtitle = Sans(10.2, Qt::white);
  TextBlock(ReadInline(source_.Subtitle, subtitle), inner, Points(15))
      .Draw(painter, at + QPointF(0, Points(45)));
}

void Pages::DrawContents(QPainter& painter, double top) const {
  double y = top + Points(14);
  OneLine("Contents", Sans(13, Accent, true), ContentWidth).Draw(painter, QPointF(Margin, y));
  y += Points(26);
  for (const Entry& entry : entries_) {
    const TextStyle style = Sans(entry.Level == 1 ? 9.8 : 9.1, QColor(0x22, 0x22, 0x22), entry.Level == 1);
    const double indent = entry.Level == 1 ? 0 : Points(16);
    if (entry.Level == 1) y += ContentsGap;
    const TextBlock text =
        OneLine(QString::fromStdString(entry.Text), style, ContentWidth - Points(60) - indent);
    text.Draw(painter, QPointF(Margin + indent, y));
    const TextBlock number = OneLine(QString::number(entry.Page), style, ContentWidth, Qt::AlignRight);
    number.Draw(painter, QPointF(Margin, y));
    const double from = Margin + indent + text.UsedWidth() + Points(6);
    const double to = Margin + ContentWidth - number.UsedWidth() - Points(6);
    painter.setPen(QPen(Rule, Points(0.9), Qt::DotLine));
    painter.drawLine(QPointF(from, y + Points(10)), QPointF(to, y + Points(10)));
    y += ContentsPitch();
  }
}

void Pages::DrawHeadAndFoot(QPainter& painter, int page) const {
  const TextStyle style = Sans(8, Grey);
  if (page > 1) {
    OneLine(QString::fromStdString(source_.Title), style, ContentWidth)
        .Draw(painter, QPointF(Margin, Points(40)));
    OneLine("Qismora", style, ContentWidth, Qt::AlignRight).Draw(painter, QPointF(Margin, Points(40)));
    painter.fillRect(QRectF(Margin, Points(55), ContentWidth, Points(0.6)), Rule);
  }
  OneLine(QString("Page %1 of %2").arg(page).arg(Count()), style, ContentWidth, Qt::AlignHCenter)
      .Draw(painter, QPointF(Margin, Points(800)));
}

}  // namespace qismora::documents

#pragma once

#include <QWidget>
#include <vector>

#include "faraid/Fraction.h"
#include "faraid/Kinds.h"

namespace qismora {

/// The net estate as one bar, divided by heir. The parts that are too narrow for a name are named below the
/// bar, each beside its pattern.
class EstateBar : public QWidget {
 public:
  explicit EstateBar(QWidget* parent);

  struct Part {
    faraid::Kind Heir;
    faraid::Fraction Share;
    QString Name;
    /// What the tool tip of the part says.
    QString Words;
  };
  void Show(std::vector<Part> parts);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int BarHeight() const;
  /// From the side on which the language begins.
  QRectF PlaceOf(std::size_t part) const;
  bool HasRoomForName(std::size_t part) const;
  /// The names below the bar: the pattern of each, and its name beside.
  struct Entry {
    std::size_t Part;
    QRect Pattern;
    QRect Name;
  };
  std::vector<Entry> Legend() const;

  std::vector<Part> parts_;
};

}  // namespace qismora

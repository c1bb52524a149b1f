#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QPointer>
#include <QStyle>

namespace qismora {

/// An icon of a style, made only when it is drawn.
class LateIcon : public QIconEngine {
 public:
  LateIcon(QStyle* style, QStyle::StandardPixmap which) : style_(style), which_(which) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    Icon().paint(painter, rect, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Icon().pixmap(size, 1, mode, state);
  }
  QIconEngine* clone() const override { return new LateIcon(*this); }

 private:
  QIcon Icon() const { return style_ == nullptr ? QIcon() : style_->standardIcon(which_); }

  QPointer<QStyle> style_;
  QStyle::StandardPixmap which_;
};

}  // namespace qismora

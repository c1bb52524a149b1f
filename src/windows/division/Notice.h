#pragma once

#include <QLabel>

namespace qismora {

// The sentences of the Division window.

/// What is divided among whom. It wraps, unlike an AnnouncedLabel; screen readers announce it on request.
class Headline : public QLabel {
 public:
  explicit Headline(QWidget* parent);

  /// Larger than the font around it.
  void SetFont(QFont font);
};

/// A sentence that wraps, can be selected, and is hidden while it is empty. Tab stops at its links alone.
class Sentence : public QLabel {
 public:
  Sentence(const char* name, QWidget* parent);

  /// Shows rich text; nothing is shown if it is empty.
  void Show(const QString& html);

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

/// A sentence that cannot be missed: framed, with a stripe at its beginning.
class Notice : public Sentence {
 public:
  Notice(const char* name, QWidget* parent);

  /// Takes the colours that the desktop has now.
  void Emphasise();

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A link in a sentence or a notice.
QString Link(const QString& target, const QString& words);

}  // namespace qismora

#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <functional>

#include "division/DivisionView.h"

class QCheckBox;

namespace qismora {

class Headline;
class Notice;
class Sentence;
class Supposition;

/// The sentences above the table: what is divided, what is supposed, the estate and its bequests, where the
/// commands answer otherwise, and which fields cannot be read.
class DivisionSentences : public QWidget {
  Q_DECLARE_TR_FUNCTIONS(DivisionWindow)

 public:
  explicit DivisionSentences(QWidget* parent);

  void Show(const DivisionView& view, const Supposition& supposition, bool heirsConsent);
  /// The words that stay, in the current language and in a font that sets it.
  void Translate(const QFont& font);
  void Recolour();
  /// Announces what has changed to screen readers, once.
  void Announce();

  /// Called with the target of a link: field:INDEX of Text1, back: to the case, differs:HEADING.
  std::function<void(const QString&)> Followed;
  /// Called when the user has said whether the heirs consent to bequests above the third.
  std::function<void(bool)> Consented;

 private:
  Headline* headline_;
  Notice* supposition_;
  Sentence* estate_;
  Sentence* examples_;
  Sentence* bequests_;
  QCheckBox* consent_;
  Notice* notice_;
  Notice* unreadable_;
  QString announced_;
};

}  // namespace qismora

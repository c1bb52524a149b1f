#include "windows/casestudy/SavePanel.h"

#include <QDir>
#include <QPainter>
#include <QStyle>

#include "windows/platform/Utf8.h"
#include "windows/widgets/AccessibleRole.h"

namespace qismora {

SavePanel::SavePanel(const QString& folder, QWidget* parent)
    : AnnouncedLabel(QStringLiteral("StatusBar1.Panel2"), parent), folder_(folder) {
  ShowFolder();
}

void SavePanel::ShowFolder() { SetText(QStringLiteral("Full reports are saved in "), folder_); }

void SavePanel::SetText(const QString& words, const QString& path) {
  words_ = words;
  path_ = QDir::toNativeSeparators(path);
  SetWords(words_ + path_);
}

void SavePanel::ShowOutcome(const SaveOutcome& outcome) {
  SetText(outcome.Saved() ? QStringLiteral("Saved: ")
                          : QStringLiteral("Not saved (%1): ").arg(ToQt(outcome.Reason)),
          ToQt(outcome.Path));
  Announce(this);
}

void SavePanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int left = contentsRect().width() - fontMetrics().horizontalAdvance(words_);
  style()->drawItemText(&painter, contentsRect(), int(Qt::AlignRight | Qt::AlignVCenter), palette(),
                        isEnabled(), words_ + fontMetrics().elidedText(path_, Qt::ElideMiddle, left),
                        foregroundRole());
}

}  // namespace qismora

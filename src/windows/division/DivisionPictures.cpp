#include "windows/division/DivisionPictures.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

#include "windows/division/DivisionWords.h"
#include "windows/division/EstateBar.h"
#include "windows/division/FamilyTreeView.h"

namespace qismora {

namespace {

constexpr int topMargin = 4;
constexpr int leastPicturesHeight = 90;

}  // namespace

DivisionPictures::DivisionPictures(QWidget* parent)
    : QWidget(parent),
      bar_(new EstateBar(this)),
      tree_(new FamilyTreeView(this)),
      scroll_(new QScrollArea(this)) {
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setMinimumHeight(leastPicturesHeight);
  scroll_->setWidget(tree_);
  // Of a tree that is too large, the deceased is seen first.
  QScrollBar* across = scroll_->horizontalScrollBar();
  connect(across, &QScrollBar::rangeChanged, this, [this, across] {
    across->setValue(tree_->PlaceOfDeceased().center().x() - scroll_->viewport()->width() / 2);
  });
  QScrollBar* down = scroll_->verticalScrollBar();
  connect(down, &QScrollBar::rangeChanged, this, [this, down] {
    down->setValue(tree_->PlaceOfDeceased().center().y() - scroll_->viewport()->height() / 2);
  });
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, topMargin, 0, 0);
  rows->addWidget(bar_);
  rows->addWidget(scroll_, 1);
  tree_->Chosen = [this](faraid::Kind heir) {
    const QRect place = tree_->PlaceOf(heir);
    scroll_->ensureVisible(place.center().x(), place.center().y(), place.width(), place.height());
    Chosen(heir);
  };
}

void DivisionPictures::Show(const DivisionView& view) {
  std::vector<EstateBar::Part> parts;
  for (const DivisionLine& line : view.Takers) {
    const QString name = words::Heir(line.Heir(), line.Law.Heads);
    parts.push_back({line.Heir(), line.Law.Share, name,
                     name + QStringLiteral(": ") + words::Share(line.Law.Share) + QStringLiteral(", ") +
                         words::Amount(line.Amount.Together)});
  }
  bar_->Show(std::move(parts));
  tree_->Show(view);
}

void DivisionPictures::Choose(faraid::Kind heir) { tree_->Choose(heir); }

void DivisionPictures::Translate() {
  bar_->setAccessibleName(tr("The estate as a bar"));
  tree_->setAccessibleName(tr("Family tree"));
}

int DivisionPictures::FullHeight() const { return HeightBeside(tree_->FullHeight()); }

int DivisionPictures::LeastHeight() const { return HeightBeside(tree_->LeastHeight()); }

int DivisionPictures::HeightBeside(int tree) const {
  const bool across = tree_->sizeHint().width() > scroll_->width();
  return topMargin + bar_->sizeHint().height() + layout()->spacing() + tree +
         (across ? scroll_->horizontalScrollBar()->sizeHint().height() : 0);
}

}  // namespace qismora

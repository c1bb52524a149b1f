#pragma once

#include <QCoreApplication>

namespace qismora {

// The contexts under which the translations keep the texts that several files share.

/// What the window and the paper say.
class Words {
  Q_DECLARE_TR_FUNCTIONS(Words)
};

/// What the paper alone says.
class Paper {
  Q_DECLARE_TR_FUNCTIONS(Paper)
};

}  // namespace qismora

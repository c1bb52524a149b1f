#pragma once

#include <QByteArray>

#include "Pages.h"

namespace qismora::documents {

/// The document as the bytes of a PDF, the same bytes for the same pages.
QByteArray WritePdf(const Source& source, const Pages& pages);

}  // namespace qismora::documents

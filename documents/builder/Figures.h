#pragma once

#include <QPainter>
#include <string>

#include "Terms.h"

namespace qismora::documents {

/// The pictures of the documents, drawn by code and as wide as the text. An unknown name throws.
double FigureHeight(const std::string& name);
void DrawFigure(const std::string& name, const TermTable& terms, QPainter& painter, QPointF at);

}  // namespace qismora::documents

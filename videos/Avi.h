#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

namespace qismora::film {

/// A motion-JPEG film in the file format that players on every platform know, filled up to exactly the given
/// length with a chunk that they skip. Empty when the frames do not fit.
QByteArray Avi(const QList<QByteArray>& frames, QSize size, int framesPerSecond, qsizetype length);

}  // namespace qismora::film

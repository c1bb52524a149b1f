#pragma once

#include <QByteArray>
#include <QList>
#include <QSize>

namespace qismora::video {

/// Returns a motion-JPEG video in the AVI format, padded to exactly `length` bytes with a chunk that players
/// skip. Empty when the frames do not fit.
QByteArray Avi(const QList<QByteArray>& frames, QSize size, int framesPerSecond, qsizetype length);

}  // namespace qismora::video

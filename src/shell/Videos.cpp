#include "shell/Videos.h"

#include "base/Files.h"
#include "base/Text.h"

namespace qismora {

void Videos::PlayFirstVideo() { Play("brindhaven.avi", FirstVideoLength); }

void Videos::PlaySecondVideo() { Play("brindhaven1.avi", SecondVideoLength); }

void Videos::Play(const char* fileName, int expectedLength) {
  CurrentVideoPath = Join(ports_.Folders.Application(), "/", fileName);
  CurrentVideoLength = FileLength(CurrentVideoPath);
  if (CurrentVideoLength == expectedLength) Start();
}

void Videos::PlayOther() {
  if (CurrentVideoLength == FirstVideoLength) {
    PlaySecondVideo();
  } else if (CurrentVideoLength == SecondVideoLength) {
    PlayFirstVideo();
  }
}

void Videos::PlayAgain() {
  if (CurrentVideoLength == FirstVideoLength || CurrentVideoLength == SecondVideoLength) Start();
}

void Videos::Start() {
  ports_.MediaPlayer1.SetFile(CurrentVideoPath);
  ports_.MediaPlayer1.Play();
}

}  // namespace qismora

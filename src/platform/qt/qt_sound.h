// Sounds by Qt. Without a device or a file there is silence.
#pragma once

#include <QSoundEffect>

#include <string>

#include "platform/files.h"
#include "platform/sound.h"

namespace zepril {

class QtSound final : public Sound {
 public:
  // `files` finds the sounds; they must outlive this.
  explicit QtSound(const Files& files) : files_(files) {}

  void Play(const std::string& path) override;
  void Stop() override { effect_.stop(); }

 private:
  const Files& files_;
  QSoundEffect effect_;
};

}  // namespace zepril

// Sounds of the computer. One that can't be played is silence.
#pragma once

#include <string>

namespace zepril {

class Sound {
 public:
  virtual ~Sound() = default;
  // Plays a WAV file, from its beginning when it is playing already.
  virtual void Play(const std::string& path) = 0;
  virtual void Stop() = 0;
};

}  // namespace zepril

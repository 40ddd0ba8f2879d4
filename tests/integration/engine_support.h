// direwolf, run beside a test: it hears the sound that the test makes, and the sound of what it
// transmits is written to a file and decoded by `atest` of the same package.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/doubles/temp_folder.h"
#include "tests/integration/child_process_support.h"

namespace zepril {

// The whole file as bytes; empty when it can't be read.
std::string ReadWhole(const std::string& path);

// The name of a program of the package that is missing; empty when all are there.
std::string MissingOfTheEngine();

// A packet as it was decoded from the transmitted sound.
struct OnAir {
  int Channel = 0;     // radio port of the engine
  std::string Packet;  // "CALL>DESTINATION,DIGI:text"
  friend bool operator==(const OnAir&, const OnAir&) = default;
};

// Two channels of 1200 Bd.
class Engine {
 public:
  explicit Engine(const TempFolder& folder);
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  bool Runs() { return child_->Runs(); }
  void End() { child_->End(); }
  std::string Log() const { return ReadWhole(folder_.Sub("engine.log")); }

  // It has been asked to hand over what it hears.
  bool Monitors() const {
    return Log().find("Enable Reception of Monitoring Frames") != std::string::npos;
  }
  // The sound of a packet comes in on channel 1, with a pause behind it. False when it can't be
  // made.
  bool Play(const std::string& packet);
  // All that was transmitted so far: the packets of the first channel, then those of the second.
  std::vector<OnAir> Transmitted() const;

 private:
  const TempFolder& folder_;
  int sound_ = -1;
  std::unique_ptr<ChildProcess> child_;

 public:
  const int Port;
};

}  // namespace zepril

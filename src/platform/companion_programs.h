// Other programs that run beside this one: started, looked for, asked to close.
//
// Paths are the computer's own. A program counts as running while a process of it is there, whoever
// has started it; only what was started here is ever asked to close.
#pragma once

#include <string>

namespace zepril {

class CompanionPrograms {
 public:
  virtual ~CompanionPrograms() = default;
  // Starts the program, in the folder that it lies in. False when there is none, or the system
  // can't run it.
  virtual bool Start(const std::string& path) = 0;
  // The process of the program, 0 when none is there.
  virtual int ProcessOf(const std::string& path) = 0;
  // Asks the program that was started here to end; it takes its time. Nothing when none runs.
  virtual void AskToClose(const std::string& path) = 0;
};

// Where no other program may be started.
class NoCompanionPrograms final : public CompanionPrograms {
 public:
  bool Start(const std::string&) override { return false; }
  int ProcessOf(const std::string&) override { return 0; }
  void AskToClose(const std::string&) override {}
};

}  // namespace zepril

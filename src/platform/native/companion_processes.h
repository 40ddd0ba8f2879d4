// Programs beside this one, as processes of the system.
#pragma once

#include <sys/types.h>

#include <map>
#include <string>

#include "platform/companion_programs.h"

namespace zepril {

class CompanionProcesses final : public CompanionPrograms {
 public:
  // What was started goes on when this ends.
  CompanionProcesses() = default;
  ~CompanionProcesses() override;
  CompanionProcesses(const CompanionProcesses&) = delete;
  CompanionProcesses& operator=(const CompanionProcesses&) = delete;

  // It gets no input, writes nothing to our terminal, and is in a session of its own.
  bool Start(const std::string& path) override;
  // Looks at the system's list of processes: at the program of each, and at the first two words of
  // its command, as a script is the second one of its interpreter's.
  int ProcessOf(const std::string& path) override;
  void AskToClose(const std::string& path) override;

 private:
  // The process started here for the path, while it runs; else 0.
  pid_t OwnProcess(const std::string& path);

  std::map<std::string, pid_t> own_;
};

}  // namespace zepril

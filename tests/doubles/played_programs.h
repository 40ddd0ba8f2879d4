// Programs beside this one, played by the test: what is started runs until it is asked to close.
#pragma once

#include <string>
#include <vector>

#include "platform/companion_programs.h"

namespace zepril {

class PlayedPrograms final : public CompanionPrograms {
 public:
  bool Start(const std::string& path) override {
    Started.push_back(path);
    if (!IsInstalled) return false;
    Process = kProcess;
    return true;
  }
  int ProcessOf(const std::string& path) override {
    Asked = path;
    return Process;
  }
  void AskToClose(const std::string& path) override {
    Closed.push_back(path);
    Process = 0;
  }

  static constexpr int kProcess = 4711;

  bool IsInstalled = true;
  int Process = 0;  // set and cleared by an operator who starts or closes it by hand
  std::string Asked;
  std::vector<std::string> Started;
  std::vector<std::string> Closed;
};

}  // namespace zepril

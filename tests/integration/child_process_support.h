// Another program, run beside the test and ended with it.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace zepril {

// True when a program of this name can be run.
bool IsInstalled(const std::string& program);

// A port of 127.0.0.1 that nobody listens on at the moment.
int FreePort();

// True as soon as something listens on the port.
bool Listens(int port);

class ChildProcess {
 public:
  // Standard input is read from the descriptor `input`; standard output and errors go to the file
  // `log`.
  ChildProcess(const std::vector<std::string>& words, int input, const std::string& log);
  ~ChildProcess();
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  bool Runs();
  void Signal(int number);
  // Asks it to end in order; `Runs` tells when it has.
  void AskToEnd();
  void End();

 private:
  pid_t pid_ = -1;
};

}  // namespace zepril

// One running program a folder: a file in it that is locked for the run.
//
// The lock is the system's, held by the process: it ends with the process however that ends, so a
// file that a crashed run left behind stands in nobody's way.
#pragma once

#include <string>

namespace zepril {

class RunLock {
 public:
  enum class Outcome {
    Taken,         // the folder is this run's
    TakenByOther,  // another program runs in it
    Unknown,       // the folder or its disk takes no lock: there is no telling
  };

  RunLock() = default;
  ~RunLock();
  RunLock(const RunLock&) = delete;
  RunLock& operator=(const RunLock&) = delete;

  // `path`: the native path of the file. When another program has it, nothing in it changes.
  Outcome Take(const std::string& path);
  // Asks the program that has the lock to come to the front. False when that can't be told it.
  static bool AskForFront(const std::string& path);
  // Whether such a wish has come since the last call.
  bool FrontWanted();

 private:
  int fd_ = -1;
};

}  // namespace zepril

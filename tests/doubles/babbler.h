// A modem gone mad on a pseudo-terminal: it listens to nothing and never stops.
#pragma once

#include <atomic>
#include <string>
#include <thread>
#include <utility>

#include "tests/doubles/pseudo_terminal.h"

namespace zepril {

// Says the same again and again to whoever has the line open.
class Babbler {
 public:
  Babbler(PseudoTerminal& line, std::string text)
      : thread_([this, &line, text = std::move(text)] {
          while (!ended_) {
            line.Heard();
            if (line.Say(text) == 0) std::this_thread::yield();
          }
        }) {}
  ~Babbler() {
    ended_ = true;
    thread_.join();
  }
  Babbler(const Babbler&) = delete;
  Babbler& operator=(const Babbler&) = delete;

 private:
  std::atomic<bool> ended_{false};
  std::thread thread_;
};

}  // namespace zepril

// Writes down what long work tells of itself.
#pragma once

#include <string>
#include <vector>

#include "core/progress.h"

namespace zepril {

class RecordedProgress final : public Progress {
 public:
  void Report(std::string_view what, double share) override {
    What = what;
    Shares.push_back(share);
  }
  void Done() override { ++Ended; }

  std::string What;
  std::vector<double> Shares;
  int Ended = 0;
};

}  // namespace zepril

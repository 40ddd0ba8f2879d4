// The machine of the companion tool: nobody sits at it, and no line leads away from it.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <utility>

#include "platform/absent_devices.h"
#include "platform/machine.h"
#include "platform/quiet_machine.h"

namespace zepril {

// Steps come from the command alone, one after the other.
class ToolLoop final : public Loop {
 public:
  void RunStep(const std::function<void()>& step) override {
    ++depth_;
    step();
    --depth_;
    while (depth_ == 0 && !posted_.empty()) {
      const std::function<void()> work = std::move(posted_.front());
      posted_.pop_front();
      work();
    }
  }
  using Loop::RunStep;
  void Post(std::function<void()> work) override { posted_.push_back(std::move(work)); }

 private:
  int depth_ = 0;
  std::deque<std::function<void()>> posted_;
};

struct ToolMachine {
  // `surfaces`: empty where nothing is painted. Files and clock must outlive what is made.
  Machine Given(Files& files, Clock& clock, SurfaceFactory surfaces = {}) {
    return {files,
            clock,
            Steps,
            Boxes,
            Desktop,
            [] { return std::make_shared<AbsentSocket>(); },
            [] { return std::make_shared<AbsentSerialPort>(); },
            std::move(surfaces),
            std::make_shared<AbsentPages>(),
            Programs,
            {}};
  }

  ToolLoop Steps;
  QuietDialogs Boxes;
  QuietDesktop Desktop;
  NoCompanionPrograms Programs;
};

}  // namespace zepril

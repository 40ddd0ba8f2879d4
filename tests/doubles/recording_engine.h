// A packet engine on this computer that writes down what it is given to send.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/monitor_engine.h"

namespace zepril {

class RecordingEngine final : public MonitorEngine {
 public:
  bool AGWStartPoll(std::string_view, std::string_view call) override {
    if (OnStart) OnStart(std::string(call));
    return true;
  }
  std::string AGWGetData() override { return {}; }
  bool AGWPutData(std::string_view header, std::string_view text) override {
    Sent.push_back(std::string(header) + " | " + std::string(text));
    return true;
  }
  void AGWClose() override {}
  bool LinkIsUp() const override { return true; }
  void DropUnsent() override {}
  std::vector<std::string> Sent;
  std::function<void(const std::string& call)> OnStart;
};

}  // namespace zepril

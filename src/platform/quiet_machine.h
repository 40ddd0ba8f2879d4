// A machine at which nobody sits: questions get their default answer, nothing is opened.
#pragma once

#include <string>

#include "platform/desktop_actions.h"
#include "platform/dialogs.h"

namespace zepril {

class QuietDialogs final : public Dialogs {
 public:
  DialogAnswer Ask(const std::string&, const std::string&, DialogButtons,
                   DialogAnswer default_answer) override {
    return default_answer;
  }
};

class QuietDesktop final : public DesktopActions {
 public:
  bool MainWindowActive() const override { return false; }
  void Open(const std::string&) override {}
  bool MovePointerOnMap(int, int) override { return false; }
};

}  // namespace zepril
